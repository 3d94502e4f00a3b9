#include "ConnectedKeyboard.h"
#include "FrameMain.h"
#include "ModuleRtSet.h"

#include <memory>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

namespace {

constexpr int SomePosition = 17;
const QString Wave = QStringLiteral("光波 (04)");

/// The page on a keyboard that was set up before it was read.
struct Home
{
    Home()
    {
        change({.effect = 7, .speed = 1, .brightness = 2},
               {.effect = 3, .speed = 4, .brightness = 1, .option = 8, .red = 1, .green = 2, .blue = 3});
        read = device.readAll();
        device.settle();
        page.show();
    }

    void change(const sim::LedParams &keys, const sim::LedParams &side)
    {
        device.keyboard->edit([keys, side](sim::KeyboardState &state) {
            state.active().lighting.keys.show(keys);
            state.active().lighting.side.show(side);
        });
    }

    /// Changes the light at the keyboard and reads it again.
    void reread(const sim::LedParams &keys)
    {
        change(keys, {.effect = 1, .speed = 2, .brightness = 4, .option = 7});
        device.connection.DoSendCommand(0x87, 8, true);
        device.settle();
        device.connection.DoSendCommand(0x88, 8, true);
        device.settle();
        device.keyboard->clearLog();
    }

    template <typename Widget = QWidget>
    Widget *control(const char *name) const
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }

    void clickEffect(const QString &text) const
    {
        for (auto *button : page.findChildren<QPushButton *>()) {
            if (button->text() == text)
                button->click();
        }
    }

    sim::LedParams keys()
    {
        device.settle();
        return device.keyboard->state().active().lighting.keys.current();
    }

    ConnectedKeyboard device{"wired-500"};
    FrameMain page;
    bool read = false; // whole, once, at the start
};

QLineEdit *boxOf(const ModuleRtSet &control)
{
    return control.findChild<QLineEdit *>();
}

void type(const ModuleRtSet &control, const QString &text)
{
    boxOf(control)->selectAll();
    QTest::keyClicks(boxOf(control), text);
}

void click(const ModuleRtSet &control, const char *name)
{
    control.findChild<QAbstractButton *>(QLatin1String(name))->click();
}

} // namespace

/// The home page, judged by what the keyboard then holds.
class TestHome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whatWasReadIsShownAndNotWritten();
    void speedAndColorSurviveOtherChanges();
    void lightIsWritten();
    void travelsGoToAllKeys_data();
    void travelsGoToAllKeys();
    void rulerFollowsThePointer();
    void typedTravels();
    void aKeyboardThatGoes();

private:
    std::unique_ptr<Home> home;
};

void TestHome::initTestCase()
{
    home = std::make_unique<Home>();
    QVERIFY(home->read);
}

void TestHome::whatWasReadIsShownAndNotWritten()
{
    QCOMPARE(home->control<QComboBox>("comboBoxPic")->currentText(), QStringLiteral("Z形"));
    QCOMPARE(home->control<QSlider>("horiCyanSlider")->value(), 3);
    QCOMPARE(home->control<QSlider>("horizontalSlider")->value(), 2);
    QVERIFY(home->control<QAbstractButton>("pushButton5")->isChecked());
    QVERIFY(home->control<QAbstractButton>("radioButtonS3")->isChecked());
    QVERIFY(home->control<QAbstractButton>("radioButtonL1")->isChecked());
    QVERIFY(!home->control("labelPickup")->isHidden());
    const auto frames = home->device.keyboard->frames();
    for (size_t i = home->device.sequenceStart(); i < frames.size(); ++i)
        QVERIFY2(frames[i].command() & 0x80, "only reads");
    QVERIFY(home->control("labelPic")->isHidden());
}

void TestHome::speedAndColorSurviveOtherChanges()
{
    const sim::LedParams colored{
        .effect = 1, .speed = 1, .brightness = 4, .option = 8, .red = 9, .green = 8, .blue = 7};
    home->reread(colored);
    home->control<QSlider>("horizontalSlider")->setValue(2);
    sim::LedParams darker = colored;
    darker.brightness = 2;
    QVERIFY(home->keys() == darker);
    for (const int speed : {0, 1, 2, 4}) { // as on the wire
        home->reread({.effect = 1, .speed = sim::Byte(speed), .brightness = 4, .option = 7});
        home->control<QSlider>("horizontalSlider")->setValue(2);
        QCOMPARE(int(home->keys().brightness), 2);
        QCOMPARE(int(home->keys().speed), speed);
        home->clickEffect(Wave);
        QCOMPARE(int(home->keys().effect), 4);
        QCOMPARE(int(home->keys().speed), speed);
        home->control<QSlider>("horiCyanSlider")->setValue(speed);
        QCOMPARE(int(home->keys().speed), 4 - speed);
        home->control<QSlider>("horizontalSlider")->setValue(0);
        QCOMPARE(int(home->keys().speed), 4 - speed);
        // A frame for each change; on the middle row the slider stood there already.
        QCOMPARE(int(home->device.keyboard->frameCount()), speed == 2 ? 3 : 4);
    }
}

void TestHome::lightIsWritten()
{
    home->reread({.effect = 1, .speed = 2, .brightness = 4, .option = 7});
    home->clickEffect(Wave);
    home->control<QComboBox>("comboBoxPic")->setCurrentIndex(2);
    QCOMPARE(int(home->keys().effect), 4);
    QCOMPARE(int(home->keys().option), 2 * 16 + 7);
    home->control<QTabWidget>("tabWidget")->setCurrentIndex(1);
    QTest::mouseClick(home->control("colorSquare"), Qt::LeftButton, {}, {300, 0});
    const sim::LedParams keys = home->keys();
    QCOMPARE(QColor(keys.red, keys.green, keys.blue), QColor(Qt::red));
    QCOMPARE(int(keys.option), 8);
    for (const bool dark : {true, false}) {
        home->control<QAbstractButton>("checkBoxEFMode")->click();
        home->device.settle();
        QCOMPARE(home->device.keyboard->state().active().lighting.on, !dark);
    }

    home->control<QAbstractButton>("pushButton3")->click();
    home->control<QAbstractButton>("pushButtonCol1")->click();
    home->device.settle();
    const sim::LedParams side = home->device.keyboard->state().active().lighting.side.current();
    const sim::LedParams wanted{.effect = 4, .speed = 2, .brightness = 4, .option = 8};
    QVERIFY(side == wanted);
}

void TestHome::travelsGoToAllKeys_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QByteArray>("frames");
    QTest::addColumn<QList<int>>("raw"); // tables 0 to 3
    QTest::newRow("ruler") << QStringLiteral("pushButtonPlug") << QByteArray("65 65")
                           << QList<int>{115, 115, 60, 60};
    QTest::newRow("press") << QStringLiteral("pushButtonP1") << QByteArray("65")
                           << QList<int>{400, 560, 40, 60};
}

void TestHome::travelsGoToAllKeys()
{
    QFETCH(QString, control);
    QFETCH(QList<int>, raw);
    home->device.keyboard->clearLog();
    home->device.keyboard->edit([](sim::KeyboardState &state) { state.active().magnetism = {}; });
    home->page.findChild<QAbstractButton *>(control)->click();
    home->device.settle();
    QTEST(home->device.commands(), "frames");
    const sim::KeyboardState state = home->device.keyboard->state();
    for (int table = 0; table < raw.size(); ++table)
        QCOMPARE(int(state.active().magnetism.value(sim::Byte(table), SomePosition)), raw[table]);
    QVERIFY(!state.active().magnetism.groupOpen());
    QCOMPARE(home->device.connection.GetMagnetism(0, SomePosition), quint32(400));
}

void TestHome::rulerFollowsThePointer()
{
    ModuleRtSet control;
    control.resize(548, 124);
    control.show();
    QSignalSpy set(&control, &ModuleRtSet::onSetValue);
    const auto drag = [&control](const QPoint &from, const QPoint &to) {
        QTest::mousePress(&control, Qt::LeftButton, {}, from);
        QTest::mouseMove(&control, to);
        QTest::mouseRelease(&control, Qt::LeftButton, {}, to);
        QTest::mouseMove(&control, from);
    };
    drag({150, 60}, {281, 60});
    QCOMPARE(set, QList<QVariantList>({{1.35F, 0}, {2.5F, 0}}));
    drag({18, 89}, {300, 70}); // one end, and a place beyond the other
    QCOMPARE(boxOf(control)->text(), QStringLiteral("0.200 mm"));
    click(control, "checkBoxRTMode");
    drag({150, 60}, {200, 60});
    QCOMPARE(set.size(), 3);
    click(control, "checkBoxRTMode");

    for (int thousandths = 205; thousandths <= 2500; thousandths += 5) { // every step is reached
        click(control, "pushButtonPlug");
        QCOMPARE(boxOf(control)->text(), QString::asprintf("%.3f mm", thousandths / 1000.0));
    }
}

void TestHome::typedTravels()
{
    const auto typed = [](const char *text, const char *button) {
        ModuleRtSet control;
        type(control, QLatin1String(text));
        if (button)
            click(control, button);
        else
            QTest::keyClick(boxOf(control), Qt::Key_Return);
        return boxOf(control)->text();
    };
    QCOMPARE(typed("1.23456", "pushButtonPlug"), QStringLiteral("1.235 mm")); // from a whole step
    QCOMPARE(typed("9", nullptr), QStringLiteral("2.500 mm"));
    QCOMPARE(typed("x", nullptr), QStringLiteral("0.200 mm"));
    QCOMPARE(typed("2.5", "pushButtonPlug"), QStringLiteral("2.500 mm"));
    QCOMPARE(typed("1 mm", "pushButtonMinus"), QStringLiteral("0.995 mm"));
}

void TestHome::aKeyboardThatGoes()
{
    FrameMain before; // built without a connection
    for (const QByteArray &reply : {QByteArray(), QByteArray::fromHex("87"), QByteArray::fromHex("87FFFFFF"),
                                    QByteArray::fromHex("880102")})
        Q_EMIT home->device.connection.onReadBack(reply);
    virtualhid::VirtualBus::instance().reset();
    for (const FrameMain *page : {&before, &home->page}) {
        page->findChild<QSlider *>(QStringLiteral("horizontalSlider"))->setValue(3);
        page->findChild<QAbstractButton *>(QStringLiteral("pushButtonPlug"))->click();
        page->findChild<QAbstractButton *>(QStringLiteral("pushButton4"))->click();
    }
    before.setDevicePicture(QStringLiteral("/nowhere.png"));
    QVERIFY(!before.findChild<QLabel *>(QStringLiteral("labelPic"))->isHidden());
}

QTEST_MAIN(TestHome)
#include "tst_home.moc"
