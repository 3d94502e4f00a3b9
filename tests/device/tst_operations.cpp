#include "CommandRows.h"
#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"

#include <functional>
#include <QColor>
#include <QPushButton>
#include <QtEndian>
#include <QTest>

using namespace std::chrono_literals;
using Connection = DialogDeviceConnect;
using Operation = std::function<void(Connection &)>;
using SleepTimes = std::array<quint16, 4>;

namespace {

constexpr quint8 Profile = 1;
constexpr quint8 Esc = 0x29;
constexpr quint8 A = 0x04;
constexpr quint8 FnKey = keys::FnKeyCode;
constexpr quint8 Knob = 0xFB;
constexpr quint8 NoKey = 0x76;
constexpr quint8 AllKeys = 0xFF;
constexpr int WholeScan = 256;
constexpr KeyEntry VolumeUp{{0x03, 0x00, 0xE9, 0x00}};
constexpr sim::LedParams Baseline{
    .effect = 1, .speed = 2, .brightness = 3, .option = 7, .red = 10, .green = 20, .blue = 30};

} // namespace

/// The operations that pages ask for. One keyboard on its second profile is shared; after every test it must
/// hold what the cache says of its keys.
class TestOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();
    void cleanup();

    void writes_data();
    void writes();
    void magnetism_data();
    void magnetism();
    void resetWritesTenFrames();
    void groupIsPaced_data();
    void groupIsPaced();
    void groupOfAListenerIsPaced();
    void emptyGroupDoesNotKick();
    void light_data();
    void light();
    void options();
    void sleepTimes_data();
    void sleepTimes();
    void entriesThatAreNotThere();
    void calibration();
    void stopsDropWhatWaits();
    void guardsWhileReading();
    void unconnected();
    void writesLastOverReconnect();

private:
    bool gapsAreKept() const;
    quint32 held(quint8 table, int position) const
    {
        return shared->keyboard->state().active().magnetism.value(table, position);
    }
    QByteArray sensorPages() const;

    std::unique_ptr<ConnectedKeyboard> shared;
    Connection *connection = nullptr;
};

void TestOperations::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-500");
    connection = &shared->connection;
    shared->keyboard->edit([](sim::KeyboardState &state) { state.profile = Profile; });
    QVERIFY(shared->readAll());
}

void TestOperations::init()
{
    shared->settle();
    shared->keyboard->clearLog();
    CommandRows *rows = connection->commandRows();
    const quint8 bytes[] = {Baseline.effect, Baseline.speed, Baseline.brightness, Baseline.option,
                            Baseline.red,    Baseline.green, Baseline.blue};
    for (int i = 0; i < int(std::size(bytes)); ++i)
        rows->setByte(rows->rowOf(0x07), i + 1, bytes[i]);
}

void TestOperations::cleanup()
{
    connection->DoStopCalibration(); // one that a failed test leaves on would keep the pump from ever resting
    shared->settle();
    const sim::KeyboardState state = shared->keyboard->state();
    KeyEntry entry;
    for (quint8 position = 0; position < keys::PositionCount; ++position) {
        for (quint8 layer = 0; layer < 4; ++layer) {
            connection->GetKeyEntry(entry, position, layer);
            QCOMPARE(entry.bytes, state.keys.key(state.profile, layer, position));
        }
        connection->GetKeyEntry(entry, position, DeviceCache::FnLayer);
        QCOMPARE(entry.bytes, state.keys.fn(position));
    }
}

void TestOperations::writes_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("frame");
    // clang-format off
    const auto row = [](const char *name, const char *frame, const Operation &operation) {
        QTest::newRow(name) << operation << QByteArray(frame);
    };
    row("the last of a group", "0A 01 00 00 00 01 02 F1 00 00 29 00",
        [](Connection &c) { c.DoSetKey(Esc, {{0, 0, 0x29, 0}}, 2, 1); });
    row("within a group, by a code of its own", "0A 01 5C 00 00 00 00 98 03 00 E9 00",
        [](Connection &c) { c.DoSetKey(Knob, VolumeUp, 0, 0); });
    row("code 0 is the first hole", "0A 01 0A 00 00 01 00 E9 03 00 E9 00",
        [](Connection &c) { c.DoSetKey(0, VolumeUp, 0, 1); });
    row("a code that no key has", "0A 01 FF 00 00 01 00 F4 03 00 E9 00",
        [](Connection &c) { c.DoSetKey(NoKey, VolumeUp, 0, 1); });
    row("a layer that isn't there", "0A 01 00 00 00 01 09 EA 03 00 E9 00",
        [](Connection &c) { c.DoSetKey(Esc, VolumeUp, 9, 1); });
    row("an Fn layer is none for a key write", "0A 01 00 00 00 01 F0 03 03 00 E9 00",
        [](Connection &c) { c.DoSetKey(Esc, VolumeUp, 0xF0, 1); });
    row("disabled", "0A 01 09 00 00 01 00 EA 00 00 00 00", [](Connection &c) { c.DoSetKeyCode(A, false, 0); });
    row("enabled", "0A 01 09 00 00 01 03 E7 00 00 04 00", [](Connection &c) { c.DoSetKeyCode(A, true, 3); });
    row("Fn", "10 00 00 09 00 00 00 E6 03 00 E9 00", [](Connection &c) { c.DoSetFn(A, VolumeUp); });
    row("Fn disabled", "10 00 00 00 00 00 00 EF 00 00 00 01", [](Connection &c) { c.DoSetFnCode(Esc, false); });
    row("Fn enabled", "10 00 00 09 00 00 00 E6 00 00 00 00", [](Connection &c) { c.DoSetFnCode(A, true); });
    row("report rate", "03 00 02 00 00 00 00 FA 00 00 00 00", [](Connection &c) { c.DoSetReportRate(2); });
    row("debounce", "06 03 00 00 00 00 00 F6 00 00 00 00", [](Connection &c) { c.DoSetDebounce(3); });
    row("light off", "05 00 00 00 00 00 00 FA 00 00 00 00", [](Connection &c) { c.DoSetLedOnOff(true); });
    row("light on", "05 01 01 00 00 00 00 F8 00 00 00 00", [](Connection &c) { c.DoSetLedOnOff(false); });
    row("light has its checksum one byte later", "07 01 01 03 07 0A 14 1E B0 00 00 00",
        [](Connection &c) { c.DoSetLedSpeed(3); });
    row("side light, and what stands at the checksum is lost", "08 02 03 04 08 0A 14 1E AA 00 00 00",
        [](Connection &c) { c.DoSetSideLed(QByteArray::fromHex("00020304080a141e5500")); });
    row("short side light", "08 02 00 00 00 00 00 00 F5 00 00 00",
        [](Connection &c) { c.DoSetSideLed(QByteArray::fromHex("0002")); });
    // clang-format on
}

void TestOperations::writes()
{
    QFETCH(Operation, operation);
    operation(*connection);
    QCOMPARE(shared->keyboard->frameCount(), size_t(1));
    QTEST(shared->frame(0, 12), "frame");
}

void TestOperations::magnetism_data()
{
    QTest::addColumn<quint8>("table");
    QTest::addColumn<quint8>("code");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<quint32>("kept");
    const auto row = [](const char *name, quint8 table, quint8 code, quint32 value, const char *frame,
                        quint32 kept) {
        QTest::newRow(name) << table << code << value << QByteArray(frame) << kept;
    };
    row("2 mm", 0x00, Esc, 400, "65 00 00 00 01 00 00 99 90 01 00 00", 400);
    row("a key by a code of its own", 0xFC, Knob, 5, "65 FC 00 5C 01 00 00 41 05 00 00 00", 5);
    row("the cache keeps a byte", 0xFB, Esc, 0x1234, "65 FB 00 00 01 00 00 9E 34 12 00 00", 0x34);
    row("32 bits are kept", 0x0A, Esc, 0x12345678, "65 0A 00 00 01 00 00 8F 78 56 34 12", 0x12345678);
    row("a table that isn't there", 0x0B, Esc, 7, "65 0B 00 00 01 00 00 8E 07 00 00 00", 0);
    row("all keys are for the keyboard alone", 0x05, AllKeys, 9, "65 05 00 FF 01 00 00 95 09 00 00 00", 0);
}

void TestOperations::magnetism()
{
    QFETCH(quint8, table);
    QFETCH(quint8, code);
    QFETCH(quint32, value);
    const quint8 position = keys::PositionOfCode(code);
    connection->DoSetMagnetism(table, code, value, 1);
    QTEST(connection->GetMagnetism(table, position), "kept");
    QTEST(shared->frame(0, 12), "frame");
    QCOMPARE(held(table, code == AllKeys ? 127 : position), sim::findMagnetTable(table) ? value : 0);
    connection->SetMagnetism(table, 128, 7); // past the cache
    QCOMPARE(connection->GetMagnetism(table, 128), 0u);
}

bool TestOperations::gapsAreKept() const
{
    const auto frames = shared->keyboard->frames();
    for (size_t i = 1; i < frames.size(); ++i) {
        if (frames[i].when - frames[i - 1].when < 30ms)
            return false;
    }
    return true;
}

void TestOperations::resetWritesTenFrames()
{
    const quint8 position = keys::PositionOfCode(FnKey);
    connection->DoResetKey(FnKey);
    QCOMPARE(shared->keyboard->frameCount(), size_t(1));
    shared->settle();
    const char *const expected[] = {"0A 01 41 00 00 00 00", "0A 01 41 00 00 00 01", "0A 01 41 00 00 00 02",
                                    "0A 01 41 00 00 01 03", "65 07 00 41 00 00 00", "65 00 00 41 00 00 00",
                                    "65 01 00 41 00 00 00", "65 06 00 41 00 00 00", "65 FB 00 41 00 00 00",
                                    "65 FC 00 41 01 00 00"};
    QCOMPARE(shared->keyboard->frameCount(), std::size(expected));
    for (size_t i = 0; i < std::size(expected); ++i)
        QCOMPARE(shared->frame(i, 7), QByteArray(expected[i]));
    QVERIFY(gapsAreKept());
    const std::pair<quint8, quint32> defaults[] = {{0x07, 0},  {0x00, 400}, {0x01, 560},
                                                   {0x06, 60}, {0xFB, 60},  {0xFC, 2}};
    for (const auto &[table, value] : defaults) {
        QCOMPARE(held(table, position), value);
        QCOMPARE(connection->GetMagnetism(table, position), value);
    }
}

void TestOperations::groupIsPaced_data()
{
    QTest::addColumn<Operation>("before");
    QTest::addColumn<int>("sentAtOnce");
    QTest::addColumn<int>("sentInAll");
    QTest::newRow("the pump rests") << Operation([](Connection &) {}) << 1 << 12;
    QTest::newRow("a write is on its way")
        << Operation([](Connection &c) { c.DoSetFn(A, VolumeUp); }) << 1 << 13;
    QTest::newRow("a read waits for its kick")
        << Operation([](Connection &c) { c.DoSendCommand(0x86, 1, false); }) << 0 << 13;
}

void TestOperations::groupIsPaced()
{
    QFETCH(Operation, before);
    before(*connection);
    {
        const Connection::WriteGroup group(*connection);
        for (quint8 round = 0; round < 3; ++round) {
            const Connection::WriteGroup inner(*connection);
            for (quint8 layer = 0; layer < 4; ++layer)
                connection->DoSetKey(Esc, {{0, round, layer, 0}}, layer, layer == 3);
        }
    }
    QTEST(int(shared->keyboard->frameCount()), "sentAtOnce");
    shared->settle();
    QTEST(int(shared->keyboard->frameCount()), "sentInAll");
    QVERIFY(gapsAreKept());
    QCOMPARE(shared->frame(shared->keyboard->frameCount() - 1, 11),
             QByteArray("0A 01 00 00 00 01 03 F0 00 02 03"));
    QVERIFY(!shared->keyboard->state().keys.groupOpen());
}

void TestOperations::groupOfAListenerIsPaced()
{
    QObject listener;
    connect(connection, &Connection::onReadBack, &listener, [this, &listener] {
        disconnect(connection, &Connection::onReadBack, &listener, nullptr);
        connection->DoResetKey(Esc);
    });
    connection->DoSetFn(A, VolumeUp);
    shared->settle();
    QCOMPARE(shared->keyboard->frameCount(), size_t(11));
    QVERIFY(gapsAreKept());
}

void TestOperations::emptyGroupDoesNotKick()
{
    // Two commands wait behind an answer that never comes.
    shared->keyboard->faultAtFrame(0, virtualhid::Fault::lost());
    for (int i = 0; i < 3; ++i)
        connection->DoSendCommand(0x86, 1, false);
    shared->settle();
    {
        const Connection::WriteGroup group(*connection);
    }
    QCOMPARE(shared->keyboard->frameCount(), size_t(1));
    {
        const Connection::WriteGroup group(*connection);
        connection->DoSetKey(Esc, VolumeUp, 0, 1);
    }
    shared->settle();
    QCOMPARE(shared->commands(), QByteArray("86 86 86 0A"));
}

void TestOperations::light_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("shown"); // effect, speed, brightness, option and colour
    // clang-format off
    const auto row = [](const char *name, const char *shown, const Operation &operation) {
        QTest::newRow(name) << operation << QByteArray(shown);
    };
    row("effect with option", "05020327 0a141e", [](Connection &c) { c.DoSetLedEffect(5, 2); });
    row("picture in a slot", "0d020320 0a141e", [](Connection &c) { c.DoSetLedEffect(13, 2); });
    row("fastest", "01000307 0a141e", [](Connection &c) { c.DoSetLedSpeed(4); });
    row("option without colour", "01020306 0a141e", [](Connection &c) { c.DoSetLedColor(QColor(1, 2, 3), 6); });
    row("colour", "01020307 010203", [](Connection &c) { c.DoSetLedColor(QColor(1, 2, 3), 7); });
    row("invalid colour is black", "01020308 000000", [](Connection &c) { c.DoSetLedColor(QColor(), 8); });
    row("numbers past a byte are cut", "0202fff7 0a141e", [](Connection &c) {
        const Connection::WriteGroup group(c);
        c.DoSetLedEffect(0x102, 0x1F);
        c.DoSetLedBrightness(-1);
    });
    // clang-format on
}

void TestOperations::light()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, shown);
    operation(*connection);
    shared->settle();
    const sim::LedParams keys = shared->keyboard->light().keys;
    const QByteArray bytes = bytesOf(
        sim::Bytes{keys.effect, keys.speed, keys.brightness, keys.option, keys.red, keys.green, keys.blue});
    QCOMPARE(bytes, QByteArray::fromHex(shown));
}

void TestOperations::options()
{
    const std::tuple<quint8, bool, bool> cases[] = {
        {2, true, true}, {6, true, false}, {62, true, true}, {63, false, false}, {255, false, false}};
    for (const auto &[index, sent, arrives] : cases) { // 6 is the place of the checksum
        shared->settle();
        shared->keyboard->clearLog();
        sim::Page expected = shared->keyboard->state().settings.options;
        if (arrives)
            expected[size_t(index) + 1] = 4;
        expected[0] = 0x09;
        connection->DoSetKbOption(index, 4);
        QCOMPARE(shared->keyboard->frameCount(), size_t(sent));
        sim::Page options = shared->keyboard->state().settings.options;
        options[0] = 0x09;
        QCOMPARE(options, expected);
        QCOMPARE(connection->GetKbOption(index), quint8(sent ? 4 : 0));
    }
}

void TestOperations::sleepTimes_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("slot");
    QTest::addColumn<SleepTimes>("times");
    QTest::newRow("last slot") << 2 << 3 << SleepTimes{1, 2, 3, 120};
    QTest::newRow("16 bits are kept") << 1100 << 1 << SleepTimes{1, 0x1D0, 3, 4};
    QTest::newRow("no such slot") << 5 << 4 << SleepTimes{1, 2, 3, 4};
    QTest::newRow("negative slot") << 5 << -1 << SleepTimes{1, 2, 3, 4};
    QTest::newRow("the largest number") << INT_MAX << 2 << SleepTimes{1, 2, 0xFFC4, 4};
}

void TestOperations::sleepTimes()
{
    QFETCH(int, minutes);
    QFETCH(int, slot);
    shared->keyboard->edit([](sim::KeyboardState &state) { state.settings.sleepTimes = {1, 2, 3, 4}; });
    connection->DoSendCommand(0x91, 1, true);
    shared->settle();
    shared->keyboard->clearLog();
    connection->DoSetSleepTime(minutes, slot);
    QVERIFY(shared->frame(0, 8).startsWith("11 00 00"));
    SleepTimes times{};
    connection->GetSleepTimes(times);
    QTEST(times, "times");
    QCOMPARE(times, shared->keyboard->state().settings.sleepTimes);
}

void TestOperations::entriesThatAreNotThere()
{
    const Connection none;
    const auto isKnown = [&none](int position, int layer) {
        KeyEntry entry = VolumeUp;
        none.GetKeyEntry(entry, quint8(position), quint8(layer));
        return !entry.isEmpty();
    };
    QVERIFY(isKnown(0, 0) && isKnown(1, 0xF0)); // of the factory
    for (const auto &[position, layer] :
         {std::pair{0, 1}, {1, 0xF1}, {0, 0x20}, {1, 0xFF}, {255, 0}}) // not read, or no such place
        QVERIFY(!isKnown(position, layer));
}

/// The sensor pages asked for, one digit each.
QByteArray TestOperations::sensorPages() const
{
    QByteArray pages;
    for (const virtualhid::ReceivedFrame &frame : shared->keyboard->frames()) {
        if (frame.command() == 0xE5 && frame.frame[1] == 0xFE && frame.frame[2] == 1)
            pages += char('0' + frame.frame[3]);
    }
    return pages;
}

void TestOperations::calibration()
{
    const auto tables = connection->deviceCache().magnetTables;
    QSignalSpy scans(connection, &Connection::onCalibration);
    const auto scan = [&scans](qsizetype index) { return scans.at(index).first().toByteArray(); };
    connection->DoStartCalibration();
    QVERIFY(shared->keyboard->calibrating());
    shared->keyboard->press(0, 600, 10ms, 10ms);
    shared->keyboard->press(127, 500, 10ms, 10ms);
    QVERIFY(scans.wait(2000));
    QCOMPARE(scan(0).size(), WholeScan);
    QCOMPARE(qFromLittleEndian<quint16>(scan(0).constData()), quint16(600));
    QCOMPARE(qFromLittleEndian<quint16>(scan(0).constData() + 254), quint16(500));
    QTRY_COMPARE(sensorPages(), QByteArray("01230"));
    connection->DoStopCalibration();
    shared->settle();
    QVERIFY(!shared->keyboard->calibrating());
    QCOMPARE(sensorPages(), QByteArray("01230"));

    // The page counter goes on, so that the first scan of the next calibration lacks its beginning.
    connection->DoStartCalibration();
    QVERIFY(scans.wait(2000));
    QCOMPARE(scan(1).size(), WholeScan * 3 / 4);
    QVERIFY(scans.wait(2000));
    QCOMPARE(scan(2).size(), WholeScan);
    connection->DoStopCalibration();
    shared->settle();
    QCOMPARE(connection->deviceCache().magnetTables, tables);
}

void TestOperations::stopsDropWhatWaits()
{
    for (const auto stop : {&Connection::DoStopKeyTest, &Connection::DoStopCalibration}) {
        for (int i = 0; i < 5; ++i)
            connection->DoSendCommand(0x86, 1, false);
        (connection->*stop)();
        shared->settle();
    }
    QCOMPARE(shared->commands(), QByteArray("1B 1E"));
}

void TestOperations::guardsWhileReading()
{
    const auto cache = [this] {
        const DeviceCache &all = connection->deviceCache();
        return std::tuple(all.keyMatrix, all.fnMatrix, all.sleepTimes);
    };
    shared->readDone.clear();
    connection->DoReadAll();
    QVERIFY(shared->readDone.wait(20000)); // nothing is in the cache that the keyboard doesn't hold
    shared->settle();
    shared->keyboard->clearLog();
    const auto before = cache();
    const auto tables = connection->deviceCache().magnetTables;
    QSignalSpy testing(connection, &Connection::onKeyTesting);
    connection->DoReadAll();
    connection->DoSetKey(Esc, {{1, 2, 3, 4}}, 0, 1);
    connection->DoSetFn(Esc, {{1, 2, 3, 4}});
    connection->DoSetKeyCode(A, false, 0);
    connection->DoSetFnCode(A, false);
    connection->DoResetKey(Esc);
    connection->DoSetMagnetism(0x00, Esc, 1, 1);
    connection->DoSetKeyFlag(Esc, true);
    connection->DoStartKeyTest();
    connection->DoStopKeyTest();
    connection->DoStartCalibration();
    connection->DoSetSleepTime(9, 0);
    connection->DoSetReportRate(1);
    connection->DoSetDebounce(9);
    connection->DoSetLedOnOff(true);
    connection->DoSetLedBrightness(2);
    connection->DoWriteUserPic(0, QByteArray(500, '\1'));
    connection->DoReadUserPic(0);
    QCOMPARE(shared->keyboard->frameCount(), size_t(0));
    QVERIFY(cache() == before);
    QVERIFY(testing.isEmpty());

    QVERIFY(shared->readDone.wait(20000));
    QCOMPARE(shared->keyboard->frameCount(), size_t(99));
    QVERIFY(cache() == before && connection->deviceCache().magnetTables == tables);

    // The way out of a calibration is always open.
    connection->DoReadAll();
    connection->DoStopCalibration();
    QCOMPARE(shared->commands(99), QByteArray("1E"));
    QTRY_VERIFY(!connection->isReadingAll());

    // These two are not held back either; each kick sends the front of the queue.
    shared->settle();
    shared->keyboard->clearLog();
    connection->DoReadAll();
    connection->DoSetSideLed(QByteArray::fromHex("00010203070102030000"));
    connection->DoSetKbOption(2, 1);
    QVERIFY(shared->readDone.wait(20000));
    QVERIFY2(shared->commands().endsWith("E5 08 09"), shared->commands());
    connection->DoReadAll(); // in order again
    QVERIFY(shared->readDone.wait(20000));
}

void TestOperations::unconnected()
{
    Connection none;
    none.DoSetKbOption(2, 1);
    none.SetMagnetism(0x00, 0, 7);
    none.DoSetSideLed({});
    none.DoSetSideLed(QByteArray(10, '\1'));
    none.DoSetLedEffect(5, 0);
    none.DoSetSleepTime(1, 0);
    QCOMPARE(none.GetKbOption(2), quint8(0));
    QCOMPARE(none.GetMagnetism(0x00, 0), 0u);
    QStringList names{QStringLiteral("of the key before")};
    none.GetKeyDisplay(names, A);
    QVERIFY(names.isEmpty());
    QVERIFY(none.deviceCache().kbOptions.isEmpty());
    QCOMPARE(shared->keyboard->frameCount(), size_t(0));
}

void TestOperations::writesLastOverReconnect()
{
    {
        const Connection::WriteGroup group(*connection);
        connection->DoSetKey(Esc, VolumeUp, 3, 1);
        connection->DoSetFn(Esc, VolumeUp);
        for (const quint8 table : {0x00, 0x01, 0x02, 0x03})
            connection->DoSetMagnetism(table, A, 300u + table, 0);
        connection->DoSetKeyFlag(A, true);
        connection->DoSetMagnetism(0x06, AllKeys, 77, 1);
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
    KeyEntry entry;
    for (const quint8 layer : {quint8(3), DeviceCache::FnLayer}) {
        connection->GetKeyEntry(entry, 0, layer);
        QCOMPARE(entry, VolumeUp);
    }
    for (const quint8 table : {0x00, 0x01, 0x02, 0x03})
        QCOMPARE(connection->GetMagnetism(table, keys::PositionOfCode(A)), 300u + table);
    QCOMPARE(connection->GetKeyMode(A) & KeyMode::Flag, int(KeyMode::Flag));
    QCOMPARE(connection->GetMagnetism(0x06, 127), 77u);
    QCOMPARE(connection->GetReportRate(), quint8(1));
    QCOMPARE(connection->GetDebounce(), quint8(8));
    SleepTimes times{};
    connection->GetSleepTimes(times);
    QCOMPARE(times[2], quint16(420));
    QCOMPARE(connection->GetKbOption(3), quint8(2));
    CommandRows *rows = connection->commandRows();
    QCOMPARE(rows->byte(rows->rowOf(0x07), 3), quint8(4));
}

QTEST_MAIN(TestOperations)
#include "tst_operations.moc"
