#include "CommandRows.h"
#include "ConnectedKeyboard.h"

#include <algorithm>
#include <functional>
#include <QColor>
#include <QPushButton>
#include <QTest>

using Connection = DialogDeviceConnect;
using Operation = std::function<void(Connection &)>;
using SleepTimes = std::array<quint16, 4>;

namespace {

constexpr sim::LedParams Baseline{
    .effect = 1, .speed = 2, .brightness = 3, .option = 7, .red = 10, .green = 20, .blue = 30};

/// The baseline with some of it changed.
template <typename Change>
sim::LedParams baselineBut(Change change)
{
    sim::LedParams params = Baseline;
    change(params);
    return params;
}

} // namespace

Q_DECLARE_METATYPE(sim::LedParams)

/// The operations on settings and light, on one keyboard that is shared.
class TestSettingsOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();
    void cleanup();

    void writes_data();
    void writes();
    void light_data();
    void light();
    void sideLight_data();
    void sideLight();
    void musicFollowsTheEffect();
    void options_data();
    void options();
    void sleepTimes_data();
    void sleepTimes();
    void guardsWhileReading();
    void unconnected();
    void writesLastOverReconnect();

private:
    std::unique_ptr<ConnectedKeyboard> shared;
    Connection *connection = nullptr;
};

void TestSettingsOperations::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    connection = &shared->connection;
    QVERIFY(shared->readAll());
}

void TestSettingsOperations::init()
{
    shared->settle();
    shared->keyboard->clearLog();
    CommandRows *rows = connection->commandRows();
    const quint8 bytes[] = {Baseline.effect, Baseline.speed, Baseline.brightness, Baseline.option,
                            Baseline.red,    Baseline.green, Baseline.blue};
    for (int i = 0; i < int(std::size(bytes)); ++i)
        rows->setByte(rows->rowOf(0x07), i + 1, bytes[i]);
}

void TestSettingsOperations::cleanup()
{
    QCOMPARE(shared->keyboard->frameFaults(), sim::FrameFaults{});
}

void TestSettingsOperations::writes_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("frame");
    const auto row = [](const char *name, const Operation &operation, const char *frame) {
        QTest::newRow(name) << operation << QByteArray(frame);
    };
    row(
        "report rate", [](Connection &c) { c.DoSetReportRate(2); }, "03 00 02 00 00 00 00 FA 00");
    row(
        "debounce", [](Connection &c) { c.DoSetDebounce(3); }, "06 03 00 00 00 00 00 F6 00");
    row(
        "light off", [](Connection &c) { c.DoSetLedOnOff(true); }, "05 00 00 00 00 00 00 FA 00");
    row(
        "light on", [](Connection &c) { c.DoSetLedOnOff(false); }, "05 01 01 00 00 00 00 F8 00");
    row(
        "light has its checksum one byte later", [](Connection &c) { c.DoSetLedSpeed(3); },
        "07 01 01 03 07 0A 14 1E B0");
    row(
        "profile", [](Connection &c) { c.DoSetProfile(0); }, "04 00 00 00 00 00 00 FB 00");
}

void TestSettingsOperations::writes()
{
    QFETCH(Operation, operation);
    operation(*connection);
    QCOMPARE(shared->keyboard->frameCount(), size_t(1));
    QTEST(shared->frame(0, 9), "frame");
}

void TestSettingsOperations::light_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<sim::LedParams>("shown");
    const auto row = [](const char *name, const Operation &operation, const auto &change) {
        QTest::newRow(name) << operation << baselineBut(change);
    };
    row(
        "effect with option", [](Connection &c) { c.DoSetLedEffect(5, 2); },
        [](sim::LedParams &p) { p.effect = 5, p.option = 0x27; });
    row(
        "picture in a slot", [](Connection &c) { c.DoSetLedEffect(13, 2); },
        [](sim::LedParams &p) { p.effect = 13, p.option = 0x20; });
    row(
        "fastest", [](Connection &c) { c.DoSetLedSpeed(4); }, [](sim::LedParams &p) { p.speed = 0; });
    row(
        "slowest", [](Connection &c) { c.DoSetLedSpeed(0); }, [](sim::LedParams &p) { p.speed = 4; });
    row(
        "brightness", [](Connection &c) { c.DoSetLedBrightness(1); },
        [](sim::LedParams &p) { p.brightness = 1; });
    row(
        "option without colour", [](Connection &c) { c.DoSetLedColor(QColor(1, 2, 3), 6); },
        [](sim::LedParams &p) { p.option = 6; });
    row(
        "colour", [](Connection &c) { c.DoSetLedColor(QColor(1, 2, 3), 7); },
        [](sim::LedParams &p) { p.red = 1, p.green = 2, p.blue = 3; });
    row(
        "invalid colour is black", [](Connection &c) { c.DoSetLedColor(QColor(), 8); },
        [](sim::LedParams &p) { p.option = 8, p.red = p.green = p.blue = 0; });
    row(
        "numbers past a byte are cut",
        [](Connection &c) {
            const Connection::WriteGroup group(c);
            c.DoSetLedEffect(0x102, 0x1F);
            c.DoSetLedBrightness(-1);
        },
        [](sim::LedParams &p) { p.effect = 2, p.option = 0xF7, p.brightness = 0xFF; });
}

void TestSettingsOperations::light()
{
    QFETCH(Operation, operation);
    operation(*connection);
    shared->settle();
    const sim::LightView view = shared->keyboard->light();
    QTEST(view.keys, "shown");
}

void TestSettingsOperations::sideLight_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<QByteArray>("frame");
    QTest::newRow("whole") << QByteArray::fromHex("ff020304080a141e0000")
                           << QByteArray("08 02 03 04 08 0A 14 1E AA 00");
    QTest::newRow("what stands at the checksum is lost")
        << QByteArray::fromHex("00020304080a141e5500") << QByteArray("08 02 03 04 08 0A 14 1E AA 00");
    QTest::newRow("short") << QByteArray::fromHex("0002") << QByteArray("08 02 00 00 00 00 00 00 F5 00");
    QTest::newRow("empty") << QByteArray() << QByteArray();
}

void TestSettingsOperations::sideLight()
{
    QFETCH(QByteArray, block);
    connection->DoSetSideLed(block);
    QTEST(shared->frame(0, 10), "frame");
    if (block.size() == 10)
        QCOMPARE(shared->keyboard->light().side, (sim::LedParams{2, 3, 4, 8, 10, 20, 30}));
}

void TestSettingsOperations::musicFollowsTheEffect()
{
    connection->DoSetLedEffect(22, 0);
    QVERIFY(connection->isMusicOn());
    connection->DoSetLedEffect(5, 0);
    QVERIFY(!connection->isMusicOn());
    connection->DoSetLedEffect(22, 0);
    QTRY_COMPARE(shared->keyboard->light().keys.effect, sim::MusicEffect);
    shared->readDone.clear();
    connection->DoReadAll();
    QVERIFY(!connection->isMusicOn());
    QVERIFY(shared->readDone.wait(20000));
    QVERIFY(!connection->isMusicOn());
    QCOMPARE(shared->keyboard->light().keys.effect, sim::MusicEffect);
}

void TestSettingsOperations::options_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("arrives");
    QTest::newRow("switch") << 2 << 1 << true;
    QTest::newRow("choice") << 3 << 1 << true;
    QTest::newRow("the checksum's place") << 6 << 1 << false;
    QTest::newRow("last") << 62 << 1 << true;
    QTest::newRow("past the block") << 63 << 0 << false;
    QTest::newRow("far past the block") << 255 << 0 << false;
}

void TestSettingsOperations::options()
{
    QFETCH(int, index);
    QFETCH(bool, arrives);
    sim::Page expected = shared->keyboard->state().settings.options;
    if (arrives)
        expected[size_t(index) + 1] = 4;
    expected[0] = 0x09;
    connection->DoSetKbOption(quint8(index), 4);
    QTEST(int(shared->keyboard->frameCount()), "frames");
    sim::Page held = shared->keyboard->state().settings.options;
    held[0] = 0x09;
    QCOMPARE(held, expected);
    QCOMPARE(connection->GetKbOption(quint8(index)), quint8(index < 63 ? 4 : 0));
}

void TestSettingsOperations::sleepTimes_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QByteArray>("frame");
    QTest::newRow("five minutes") << 5 << 0 << QByteArray("11 00 00 00 00 00 00 EE 2C 01 02 00 03 00 04 00");
    QTest::newRow("last slot") << 2 << 3 << QByteArray("11 00 00 00 00 00 00 EE 01 00 02 00 03 00 78 00");
    QTest::newRow("16 bits are kept")
        << 1100 << 1 << QByteArray("11 00 00 00 00 00 00 EE 01 00 D0 01 03 00 04 00");
    QTest::newRow("no such slot") << 5 << 4 << QByteArray("11 00 00 00 00 00 00 EE 01 00 02 00 03 00 04 00");
    QTest::newRow("negative slot") << 5 << -1
                                   << QByteArray("11 00 00 00 00 00 00 EE 01 00 02 00 03 00 04 00");
    QTest::newRow("the largest number")
        << INT_MAX << 2 << QByteArray("11 00 00 00 00 00 00 EE 01 00 02 00 C4 FF 04 00");
}

void TestSettingsOperations::sleepTimes()
{
    QFETCH(int, minutes);
    QFETCH(int, slot);
    shared->keyboard->edit([](sim::KeyboardState &state) { state.settings.sleepTimes = {1, 2, 3, 4}; });
    connection->DoSendCommand(0x91, 1, true);
    shared->settle();
    shared->keyboard->clearLog();
    connection->DoSetSleepTime(minutes, slot);
    QTEST(shared->frame(0, 16), "frame");
    SleepTimes times{};
    connection->GetSleepTimes(times);
    QCOMPARE(times, shared->keyboard->state().settings.sleepTimes);
}

void TestSettingsOperations::guardsWhileReading()
{
    SleepTimes before{};
    connection->GetSleepTimes(before);
    shared->readDone.clear();
    connection->DoReadAll();
    connection->DoSetSleepTime(9, 0);
    connection->DoSetReportRate(1);
    connection->DoSetDebounce(9);
    connection->DoSetLedOnOff(true);
    connection->DoSetLedBrightness(2);
    QCOMPARE(shared->keyboard->frameCount(), size_t(0));
    SleepTimes after{};
    connection->GetSleepTimes(after);
    QCOMPARE(after, before);

    // These two are not held back; each kick sends the front of the queue.
    connection->DoSetSideLed(QByteArray::fromHex("00010203070102030000"));
    connection->DoSetKbOption(2, 1);
    QVERIFY(shared->readDone.wait(20000));
    const QByteArray sent = shared->commands();
    QCOMPARE(shared->keyboard->frameCount(), size_t(47 + 2));
    QVERIFY2(sent.endsWith("90 08 09"), sent);
}

void TestSettingsOperations::unconnected()
{
    Connection none;
    none.DoSetKbOption(2, 1);
    QCOMPARE(none.GetKbOption(2), quint8(0));
    none.DoSetSideLed(QByteArray(10, '\1'));
    none.DoSetLedEffect(5, 0);
    none.DoSetSleepTime(1, 0);
    QVERIFY(none.deviceCache().kbOptions.isEmpty());
    QCOMPARE(shared->keyboard->frameCount(), size_t(0));
}

void TestSettingsOperations::writesLastOverReconnect()
{
    {
        const Connection::WriteGroup group(*connection);
        connection->DoSetReportRate(1);
        connection->DoSetDebounce(8);
        connection->DoSetSleepTime(7, 2);
        connection->DoSetKbOption(3, 2);
        connection->DoSetLedBrightness(4);
    }
    shared->settle();
    shared->readDone.clear();
    shared->control<QPushButton>("pushButtonConnect")->click();
    QVERIFY(shared->readDone.wait(20000));
    QCOMPARE(connection->GetReportRate(), quint8(1));
    QCOMPARE(connection->GetDebounce(), quint8(8));
    SleepTimes times{};
    connection->GetSleepTimes(times);
    QCOMPARE(times[2], quint16(420));
    QCOMPARE(connection->GetKbOption(3), quint8(2));
    CommandRows *rows = connection->commandRows();
    QCOMPARE(rows->byte(rows->rowOf(0x07), 3), quint8(4));
}

QTEST_MAIN(TestSettingsOperations)
#include "tst_settings_ops.moc"
