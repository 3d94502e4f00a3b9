#include "ColorLabel.h"
#include "ColorSquare.h"
#include "DialogColorPicker.h"
#include "ModuleEfColor.h"
#include "ModuleEfLumi.h"
#include "ModuleEfMode.h"
#include "ModuleEfSpeed.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTableView>
#include <QTest>
#include <tuple>

namespace {

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

/// The effect controls: what a click tells the page, and what a reply shows.
class TestEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickShowsTheOptions();
    void replyIsShownAndNotSentBack();
    void levelsTellAndShow();
    void clickedDotGoesToTheMiddle();
    void customColourGoesToTheSelectedSwatch();
    void sideLightBlock();
    void sideLightReply();
    void pickedColourIsSentAfterAPause();
};

void TestEffects::clickShowsTheOptions()
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

void TestEffects::replyIsShownAndNotSentBack()
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

void TestEffects::levelsTellAndShow()
{
    ModuleEfLumi brightness;
    ModuleEfSpeed speed;
    QSignalSpy bright(&brightness, &ModuleEfLumi::onBrightChanged);
    QSignalSpy fast(&speed, &ModuleEfSpeed::onSpeedChanged);
    auto *brightSlider = child<QSlider>(brightness, "horizontalSlider");
    auto *speedSlider = child<QSlider>(speed, "horiCyanSlider");
    QCOMPARE(child<QLabel>(speed, "labelTitle2")->text(), QStringLiteral("25%"));
    for (const int level : {3, 3, 9}) { // the second one moves nothing, and so holds nothing back
        brightness.setBright(level);
        speed.setSpeed(level);
    }
    QCOMPARE(child<QLabel>(brightness, "labelTitle2")->text(), QStringLiteral("100%"));
    brightness.setBright(4);
    brightSlider->setValue(2);
    speedSlider->setValue(0);
    QCOMPARE(bright, QList<QVariantList>({{2}}));
    QCOMPARE(fast, QList<QVariantList>({{uchar(0)}}));
    QCOMPARE(child<QLabel>(brightness, "labelTitle2")->text(), QStringLiteral("50%"));
}

void TestEffects::clickedDotGoesToTheMiddle()
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

void TestEffects::customColourGoesToTheSelectedSwatch()
{
    ModuleEfColor module;
    QSignalSpy color(&module, &ModuleEfColor::onSetColor);
    auto *square = child<ColorSquare>(module, "colorSquare");
    auto *swatch = child<ColorLabel>(module, "label_5");
    const QColor before = swatch->color();
    QTest::mouseClick(square, Qt::LeftButton, {}, {300, 0});
    QCOMPARE(swatch->color(), before);
    QTest::mousePress(swatch, Qt::LeftButton);
    QTest::mouseClick(square, Qt::LeftButton, {}, {300, 200});
    QCOMPARE(swatch->color(), QColor(Qt::black));
    QCOMPARE(color, QList<QVariantList>({{QColor(Qt::red), 8}, {QColor(Qt::black), 8}}));
    QVERIFY(child<QWidget>(module, "labelTitleL1")->isHidden());
    QVERIFY(child<QWidget>(module, "checkBoxSingle")->isHidden());
}

void TestEffects::sideLightBlock()
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

void TestEffects::sideLightReply()
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

void TestEffects::pickedColourIsSentAfterAPause()
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

QTEST_MAIN(TestEffects)
#include "tst_effects.moc"
