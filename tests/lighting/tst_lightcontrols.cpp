#include "ColorSlider.h"
#include "ColorSquare.h"
#include "DialogColorPicker.h"
#include "ModuleEfColor.h"
#include "ModuleEfMode.h"
#include "ScreenPipette.h"

#include <limits>
#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <tuple>

namespace {

constexpr QSize SquareSize(300, 200);

QColor lastColor(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QColor() : spy.last().at(0).value<QColor>();
}

QColor colorAt(double hue, int x, int y)
{
    const auto saturation = float(double(x) / SquareSize.width());
    const auto value = float(double(SquareSize.height() - y) / SquareSize.height());
    return QColor::fromRgb(QColor::fromHsvF(float(hue), saturation, value, 1.0F).rgb());
}

template <typename Widget>
Widget *child(const QWidget &parent, const char *name)
{
    return parent.findChild<Widget *>(QLatin1String(name));
}

QAbstractButton *effectButton(const ModuleEfMode &module, int id)
{
    return module.findChild<QButtonGroup *>()->button(id);
}

QStringList optionsShown(const ModuleEfMode &module)
{
    const auto *box = child<QComboBox>(module, "comboBoxPic");
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts += box->itemText(i);
    return texts;
}

void clickDot(const ModuleEfColor &module, int column)
{
    auto *table = child<QTableView>(module, "tableView");
    const QRect cell = table->visualRect(table->model()->index(0, column));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
}

QByteArray lastBlock(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QByteArray() : spy.last().at(0).toByteArray().toHex(' ');
}

} // namespace

/// Choosing a colour by square, slider, number and pipette; the effect controls: what a click tells the page,
/// and what a reply shows.
class TestLightControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointerChoosesItsPixel();
    void everyChoiceIsReportedTwice();
    void typedChannels();
    void pipetteTakesWhatIsUnderThePointer();
    void clickShowsTheOptions();
    void replyIsShownAndNotSentBack();
    void clickedDotGoesToTheMiddle();
    void sideLightBlock();
    void sideLightReply();
    void pickedColourIsSentAfterAPause();
};

void TestLightControls::pointerChoosesItsPixel()
{
    const std::array<std::pair<QPoint, QPoint>, 5> places{{{{300, 0}, {300, 0}},
                                                           {{211, 37}, {211, 37}},
                                                           {{1, 199}, {1, 199}}, // pointer and pixel
                                                           {{-20, -1}, {0, 0}},
                                                           {{1000, 700}, {300, 200}}}};
    for (const double hue : {0.0, 0.04, 0.2, 0.41, 0.5, 0.71, 0.99, 1.0}) {
        ColorSquare square;
        square.resize(SquareSize);
        square.setHue(hue);
        square.grab();
        QSignalSpy selected(&square, &ColorSquare::colorSelected);
        QTest::mousePress(&square, Qt::LeftButton, {}, {5, 5});
        for (const auto &[pointer, pixel] : places) {
            QMouseEvent move(QEvent::MouseMove, pointer, square.mapToGlobal(pointer), Qt::NoButton,
                             Qt::LeftButton, {});
            QCoreApplication::sendEvent(&square, &move);
            QCOMPARE(lastColor(selected), colorAt(hue, pixel.x(), pixel.y()));
        }
        QCOMPARE(size_t(selected.size()), 1 + places.size());
    }
    ColorSquare square;
    square.setHue(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(square.hue(), 0.0);
}

void TestLightControls::everyChoiceIsReportedTwice()
{
    DialogColorPicker picker;
    picker.show();
    QSignalSpy picked(&picker, &DialogColorPicker::onPickupColor);
    picker.setColor({12, 34, 56});
    QCOMPARE(picked.size(), 0);
    QTest::mouseClick(picker.findChild<ColorSquare *>(), Qt::LeftButton, {}, {300, 0});
    QCOMPARE(picked.size(), 2);
    auto *hue = picker.findChild<ColorSlider *>(QStringLiteral("horizontalSlider"));
    hue->setValue(120);
    QTRY_COMPARE(picked.size(), 4);
    QCOMPARE(picked[2], picked[3]);
    QCOMPARE(lastColor(picked), QColor(Qt::green));
    QCOMPARE(picker.findChild<QLineEdit *>(QStringLiteral("lineEditG"))->text(), QStringLiteral("255"));
    QCOMPARE(picker.findChild<QLineEdit *>(QStringLiteral("lineEditHex"))->text(), QStringLiteral("#00FF00"));
    QTest::keyClicks(picker.findChild<QLineEdit *>(QStringLiteral("lineEditHex")), QStringLiteral("12"));
    QCOMPARE(picked.size(), 4);
}

void TestLightControls::typedChannels()
{
    for (const auto &[text, green] : {std::pair("7", 7), {"999", 255}, {"-5", 0}, {"x", 0}}) {
        DialogColorPicker picker;
        picker.setColor({200, 100, 50});
        QSignalSpy picked(&picker, &DialogColorPicker::onPickupColor);
        auto *box = picker.findChild<QLineEdit *>(QStringLiteral("lineEditG"));
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(text));
        QCOMPARE(lastColor(picked), QColor(200, green, 50));
        QCOMPARE(picker.findChild<ColorSquare *>()->hue(), double(QColor(200, 100, 50).hueF()));
    }
}

void TestLightControls::pipetteTakesWhatIsUnderThePointer()
{
    QWidget elsewhere; // a window of another colour on the screen
    elsewhere.setPalette(QPalette(QColor(10, 200, 30)));
    elsewhere.setGeometry(500, 500, 200, 200);
    elsewhere.show();
    QVERIFY(QTest::qWaitForWindowExposed(&elsewhere));
    DialogColorPicker picker;
    picker.showAt(0, 0);
    QLabel *button = picker.findChild<QLabel *>(QStringLiteral("labelPick"));
    auto *pipette = picker.findChild<ScreenPipette *>();
    QSignalSpy picked(&picker, &DialogColorPicker::onPickupColor);
    QCursor::setPos(300, 300);
    QTest::mousePress(button, Qt::RightButton);
    QVERIFY(!pipette->isVisible());
    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(pipette->isVisible());
    const QPoint there(600, 600);
    QCursor::setPos(there);
    QTRY_COMPARE(pipette->geometry().center(), there);
    QTRY_COMPARE(lastColor(picked), QColor(10, 200, 30));
    QTest::mouseRelease(button, Qt::LeftButton);
    QVERIFY(!pipette->isVisible());
    picked.clear();
    QCursor::setPos(610, 610);
    QTest::qWait(50); // five of its looks at the pointer
    QCOMPARE(picked.size(), 0);
    QCOMPARE(picker.color(), QColor(10, 200, 30));
}

void TestLightControls::clickShowsTheOptions()
{
    for (const auto &[id, label, options] : {std::tuple(4, "光波 (04)", "左,右,上,下"),
                                             {7, "川流不息 (07)", "Z形,回形"},
                                             {11, "彩泉涌动 (0B)", "向内,向外"},
                                             {12, "百花争艳 (0C)", "向右,向左"},
                                             {13, "自定义 (0D)", "图案1,图案2,图案3,图案4,图案5"},
                                             {15, "峰回路转 (0F)", "顺时针,逆时针"},
                                             {3, "霓虹 (03)", "无"},
                                             {24, "层出不穷 (18)", "无"}}) {
        ModuleEfMode module;
        QSignalSpy changed(&module, &ModuleEfMode::onModeChanged);
        QCOMPARE(effectButton(module, id)->text(), QString::fromUtf8(label));
        effectButton(module, id)->click();
        QCOMPARE(changed, QList<QVariantList>({{id, uchar(0)}}));
        QCOMPARE(optionsShown(module).join(u','), QString::fromUtf8(options));
        auto *box = child<QComboBox>(module, "comboBoxPic");
        const int last = box->count() - 1;
        box->setCurrentIndex(last);
        QCOMPARE(changed.last(), QVariantList({id, uchar(last)}));
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&module, &language);
        QCOMPARE(box->currentIndex(), last);
        QCOMPARE(changed.size(), last > 0 ? 2 : 1);
    }
}

void TestLightControls::replyIsShownAndNotSentBack()
{
    ModuleEfMode module;
    QVERIFY(effectButton(module, 1)->isChecked());
    QSignalSpy changed(&module, &ModuleEfMode::onModeChanged);
    module.setMode(7);
    module.setMode(7);
    QCOMPARE(changed.size(), 0);
    QVERIFY(effectButton(module, 7)->isChecked());
    QCOMPARE(optionsShown(module).first(), QStringLiteral("Z形"));
    // An effect that isn't listed takes the next click's signal, and only that.
    module.setMode(99);
    effectButton(module, 3)->click();
    effectButton(module, 5)->click();
    child<QAbstractButton>(module, "checkBoxEFMode")->click();
    QCOMPARE(changed, QList<QVariantList>({{5, uchar(0)}, {-1, uchar(1)}}));
}

void TestLightControls::clickedDotGoesToTheMiddle()
{
    ModuleEfColor module;
    module.resize(480, 304);
    module.show();
    QSignalSpy color(&module, &ModuleEfColor::onSetColor);
    for (const int column : {3, 6, 0, 0, 3})
        clickDot(module, column);
    const QColor yellow(0xFF, 0xFF, 0x00);
    const QColor cyan(0x00, 0xFF, 0xFF);
    const QColor red(0xFF, 0x00, 0x00);
    QCOMPARE(color, QList<QVariantList>({{yellow, 3}, {cyan, 6}, {yellow, 3}, {red, 0}, {red, 0}}));
    clickDot(module, 6); // back: the order is one for all instances
}

void TestLightControls::sideLightBlock()
{
    ModuleEfColor module;
    QSignalSpy side(&module, &ModuleEfColor::onSetSideLed);
    for (const auto &[button, block] :
         {std::pair("pushButton5", "00 03 00 00 07 ff ff ff 00 00"),
          {"radioButtonS4", "00 03 03 00 07 ff ff ff 00 00"}, // as they stand in the group,
          {"radioButtonS3", "00 03 04 00 07 ff ff ff 00 00"}, // not as they are named
          {"radioButtonL3", "00 03 04 03 07 ff ff ff 00 00"},
          {"pushButtonCol1", "00 03 04 03 08 ff ff ff 00 00"},
          {"pushButtonCol0", "00 03 04 03 07 ff ff ff 00 00"}}) {
        child<QAbstractButton>(module, button)->click();
        QCOMPARE(lastBlock(side), QByteArray(block));
        QCOMPARE(child<QWidget>(module, "labelPickup")->isHidden(), qstrcmp(button, "pushButtonCol1") != 0);
    }
    QCOMPARE(side.size(), 6);
}

void TestLightControls::sideLightReply()
{
    // The block that a click on brightness 2 sends after the reply.
    const auto blockAfter = [](const char *reply) {
        ModuleEfColor module;
        QSignalSpy side(&module, &ModuleEfColor::onSetSideLed);
        module.setSideLed(QByteArray::fromHex(reply));
        const bool silent = side.isEmpty();
        child<QAbstractButton>(module, "radioButtonL2")->click();
        return silent ? lastBlock(side) : QByteArray("sent back");
    };
    QCOMPARE(blockAfter("88040103080a141e0000"), "00 04 01 02 08 0a 14 1e 00 00");
    QCOMPARE(blockAfter("8801040207ffffff"), "00 01 04 02 07 ff ff ff 00 00");
    QCOMPARE(blockAfter("88ff060908010203"), "00 00 00 02 08 01 02 03 00 00"); // past the groups
    for (const char *broken : {"8804010308", ""})
        QCOMPARE(blockAfter(broken), "00 00 00 02 07 ff ff ff 00 00");
}

void TestLightControls::pickedColourIsSentAfterAPause()
{
    ModuleEfColor module;
    child<QAbstractButton>(module, "pushButtonCol1")->click();
    module.show();
    QVERIFY(!module.findChild<DialogColorPicker *>());
    QTest::mouseRelease(child<QLabel>(module, "labelPickup"), Qt::LeftButton);
    auto *picker = module.findChild<DialogColorPicker *>();
    QVERIFY(picker && picker->isVisible());
    QSignalSpy side(&module, &ModuleEfColor::onSetSideLed);
    for (const int x : {10, 100, 200, 300})
        QTest::mouseClick(picker->findChild<ColorSquare *>(), Qt::LeftButton, {}, {x, 0});
    QCOMPARE(side.size(), 0);
    QTRY_COMPARE(side.size(), 1);
    QCOMPARE(lastBlock(side), QByteArray("00 00 00 00 08 ff 00 00 00 00"));
}

QTEST_MAIN(TestLightControls)
#include "tst_lightcontrols.moc"
