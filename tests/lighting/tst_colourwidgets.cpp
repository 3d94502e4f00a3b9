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
    void pointerChoosesItsPixel();
    void aNewHueIsReportedForTheSamePlace();
    void everyChoiceIsReportedTwice();
    void typedChannels();
    void pickerGoesWithItsWindow();
    void pipetteTakesWhatIsUnderThePointer();
};

void TestColourWidgets::pointerChoosesItsPixel()
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

void TestColourWidgets::typedChannels()
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
