#include "ColorLabel.h"
#include "ColorSlider.h"
#include "ColorSquare.h"
#include "DialogColorPicker.h"
#include "ScreenPipette.h"

#include <QCursor>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

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

} // namespace

/// Choosing a colour by square, slider, number and pipette.
class TestColourWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointerChoosesItsPixel_data();
    void pointerChoosesItsPixel();
    void aNewHueIsReportedForTheSamePlace();
    void ringContrastsWithItsGround();
    void oneSwatchOfAParentIsSelected();
    void everyChoiceIsReportedTwice();
    void typedChannels_data();
    void typedChannels();
    void pickerGoesWithItsWindow();
    void pickerStaysOnTheScreen();
    void pipetteTakesWhatIsUnderThePointer();
};

void TestColourWidgets::pointerChoosesItsPixel_data()
{
    QTest::addColumn<double>("hue");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("pixel");
    const std::array hues{0.0, 0.04, 0.2, 0.41, 0.5, 0.71, 0.99, 1.0};
    for (const double hue : hues) {
        for (const QPoint pixel : {QPoint(300, 0), QPoint(211, 37), QPoint(1, 199), QPoint(150, 100)})
            QTest::addRow("hue %.2f at %d, %d", hue, pixel.x(), pixel.y()) << hue << pixel << pixel;
    }
    QTest::newRow("left above") << 0.6 << QPoint(-20, -1) << QPoint(0, 0);
    QTest::newRow("right below") << 0.6 << QPoint(1000, 700) << QPoint(300, 200);
}

void TestColourWidgets::pointerChoosesItsPixel()
{
    QFETCH(double, hue);
    QFETCH(QPoint, pointer);
    QFETCH(QPoint, pixel);
    ColorSquare square;
    square.resize(SquareSize);
    square.setHue(hue);
    square.grab();
    QSignalSpy selected(&square, &ColorSquare::colorSelected);
    QTest::mousePress(&square, Qt::LeftButton, {}, {5, 5});
    QMouseEvent move(QEvent::MouseMove, pointer, square.mapToGlobal(pointer), Qt::NoButton, Qt::LeftButton,
                     {});
    QCoreApplication::sendEvent(&square, &move);
    QCOMPARE(selected.size(), 2);
    QCOMPARE(lastColor(selected), colorAt(hue, pixel.x(), pixel.y()));
}

void TestColourWidgets::aNewHueIsReportedForTheSamePlace()
{
    ColorSquare square;
    square.resize(SquareSize);
    square.grab();
    QTest::mouseClick(&square, Qt::LeftButton, {}, {299, 0});
    QSignalSpy selected(&square, &ColorSquare::colorSelected);
    square.setHue(0.5);
    QCOMPARE(selected.size(), 0);
    square.grab();
    square.grab();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(lastColor(selected), colorAt(0.5, 299, 0));
    square.setColor({128, 128, 128});
    QCOMPARE(square.hue(), 0.0);
    square.setHue(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(square.hue(), 0.0);
    square.setColor(Qt::blue);
    square.grab();
    QTest::keyClick(&square, Qt::Key_Left);
    QCOMPARE(lastColor(selected), colorAt(2.0 / 3, 298, 0));
}

void TestColourWidgets::ringContrastsWithItsGround()
{
    ColorSquare square;
    square.resize(SquareSize);
    square.setHue(0.5);
    for (const auto &[pointer, ring] :
         {std::pair(QPoint(150, 60), QColor(Qt::black)), std::pair(QPoint(150, 140), QColor(Qt::white))}) {
        QTest::mouseClick(&square, Qt::LeftButton, {}, pointer);
        const QImage image = square.grab().toImage();
        QCOMPARE(image.pixelColor(pointer + QPoint(8, 0)), ring);
        QVERIFY(image.pixelColor(pointer) != ring);
    }
}

void TestColourWidgets::oneSwatchOfAParentIsSelected()
{
    QWidget here;
    QWidget there;
    auto *first = new ColorLabel(&here);
    auto *second = new ColorLabel(&here);
    ColorLabel other(&there);
    first->resize(40, 40);
    first->setColor(Qt::red);
    const auto ringShows = [first] { return first->grab().toImage().pixelColor(20, 2).red() > 250; };
    QTest::mousePress(&other, Qt::LeftButton);
    QVERIFY(!ColorLabel::selectedOf(&here));
    QVERIFY(!ringShows());
    QTest::mousePress(first, Qt::LeftButton);
    QVERIFY(first->isSelected() && other.isSelected());
    QVERIFY(ringShows());
    QTest::keyClick(second, Qt::Key_Space);
    QCOMPARE(ColorLabel::selectedOf(&here), second);
    QVERIFY(!ringShows());
    delete second;
    QVERIFY(!ColorLabel::selectedOf(&here));
}

void TestColourWidgets::everyChoiceIsReportedTwice()
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

void TestColourWidgets::typedChannels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("green");
    QTest::newRow("a number") << QStringLiteral("7") << 7;
    QTest::newRow("too large") << QStringLiteral("999") << 255;
    QTest::newRow("negative") << QStringLiteral("-5") << 0;
    QTest::newRow("no number") << QStringLiteral("x") << 0;
}

void TestColourWidgets::typedChannels()
{
    QFETCH(QString, text);
    QFETCH(int, green);
    DialogColorPicker picker;
    picker.setColor({200, 100, 50});
    QSignalSpy picked(&picker, &DialogColorPicker::onPickupColor);
    auto *box = picker.findChild<QLineEdit *>(QStringLiteral("lineEditG"));
    box->selectAll();
    QTest::keyClicks(box, text);
    QCOMPARE(picked.size(), 2 * text.size());
    QCOMPARE(lastColor(picked), QColor(200, green, 50));
    QCOMPARE(box->text(), text);
    auto *square = picker.findChild<ColorSquare *>();
    QCOMPARE(square->hue(), double(QColor(200, 100, 50).hueF()));
}

void TestColourWidgets::pickerGoesWithItsWindow()
{
    DialogColorPicker picker;
    auto *pipette = picker.findChild<ScreenPipette *>();
    QEvent deactivated(QEvent::WindowDeactivate);
    picker.showAt(10, 10);
    pipette->show();
    QCoreApplication::sendEvent(&picker, &deactivated);
    QVERIFY(picker.isVisible());
    pipette->hide();
    QCoreApplication::sendEvent(&picker, &deactivated);
    QVERIFY(!picker.isVisible());
    picker.showAt(10, 10);
    pipette->show();
    picker.findChild<QPushButton *>(QStringLiteral("pushButton"))->click();
    QVERIFY(!picker.isVisible() && !pipette->isVisible());
}

void TestColourWidgets::pickerStaysOnTheScreen()
{
    DialogColorPicker picker;
    const QRect screen = picker.screen()->availableGeometry();
    QCursor::setPos(screen.center());
    picker.showAt(-1, -1);
    QCOMPARE(picker.pos(), screen.center() - QPoint(picker.width() / 2, 0));
    QCursor::setPos(screen.bottomRight());
    picker.showAt(-1, 20);
    QVERIFY(screen.contains(picker.geometry()));
    picker.showAt(30, 40);
    QCOMPARE(picker.pos(), QPoint(30, 40));
}

void TestColourWidgets::pipetteTakesWhatIsUnderThePointer()
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

QTEST_MAIN(TestColourWidgets)
#include "tst_colourwidgets.moc"
