#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"
#include "ModuleGenKeymapping.h"

#include <functional>
#include <QPushButton>
#include <QTest>

using namespace std::chrono_literals;
using Connection = DialogDeviceConnect;
using Operation = std::function<void(Connection &)>;

namespace {

constexpr quint8 Profile = 1;
constexpr quint8 Esc = 0x29;
constexpr quint8 A = 0x04;
constexpr quint8 FnKey = keys::FnKeyCode;
constexpr quint8 Knob = 0xFB;
constexpr quint8 NoKey = 0x76;
constexpr KeyEntry VolumeUp{{0x03, 0x00, 0xE9, 0x00}};

} // namespace

/// The operations on what keys do. One keyboard on its second profile is shared; after every test it must
/// hold what the cache says.
class TestKeyOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();
    void cleanup();

    void writes_data();
    void writes();
    void resetWritesTenFrames();
    void groupIsPaced_data();
    void groupIsPaced();
    void groupOfAListenerIsPaced();
    void emptyGroupDoesNotKick();
    void nothingIsWrittenWhileReading();
    void entries_data();
    void entries();
    void display_data();
    void display();
    void writesLastOverReconnect();

private:
    bool gapsAreKept() const;

    std::unique_ptr<ConnectedKeyboard> shared;
    Connection *connection = nullptr;
};

void TestKeyOperations::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-500");
    connection = &shared->connection;
    shared->keyboard->edit([](sim::KeyboardState &state) { state.profile = Profile; });
    QVERIFY(shared->readAll());
}

void TestKeyOperations::init()
{
    shared->settle();
    shared->keyboard->clearLog();
}

void TestKeyOperations::cleanup()
{
    shared->settle();
    const sim::KeyMatrices held = shared->keyboard->state().keys;
    KeyEntry entry;
    for (quint8 position = 0; position < keys::PositionCount; ++position) {
        for (quint8 layer = 0; layer < 4; ++layer) {
            connection->GetKeyEntry(entry, position, layer);
            QCOMPARE(entry.bytes, held.key(Profile, layer, position));
        }
        connection->GetKeyEntry(entry, position, DeviceCache::FnLayer);
        QCOMPARE(entry.bytes, held.fn(position));
    }
}

void TestKeyOperations::writes_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("frame");
    const auto row = [](const char *name, const Operation &operation, const char *frame) {
        QTest::newRow(name) << operation << QByteArray(frame);
    };
    row(
        "the last of a group",
        [](Connection &c) {
            c.DoSetKey(Esc, {{0, 0, 0x29, 0}}, 2, 1);
        },
        "0A 01 00 00 00 01 02 F1 00 00 29 00");
    row(
        "within a group, by a code of its own", [](Connection &c) { c.DoSetKey(Knob, VolumeUp, 0, 0); },
        "0A 01 5C 00 00 00 00 98 03 00 E9 00");
    row(
        "code 0 is the first hole", [](Connection &c) { c.DoSetKey(0, VolumeUp, 0, 1); },
        "0A 01 0A 00 00 01 00 E9 03 00 E9 00");
    row(
        "a code that no key has", [](Connection &c) { c.DoSetKey(NoKey, VolumeUp, 0, 1); },
        "0A 01 FF 00 00 01 00 F4 03 00 E9 00");
    row(
        "a layer that isn't there", [](Connection &c) { c.DoSetKey(Esc, VolumeUp, 9, 1); },
        "0A 01 00 00 00 01 09 EA 03 00 E9 00");
    row(
        "an Fn layer is none for a key write", [](Connection &c) { c.DoSetKey(Esc, VolumeUp, 0xF0, 1); },
        "0A 01 00 00 00 01 F0 03 03 00 E9 00");
    row(
        "disabled", [](Connection &c) { c.DoSetKeyCode(A, false, 0); },
        "0A 01 09 00 00 01 00 EA 00 00 00 00");
    row(
        "enabled", [](Connection &c) { c.DoSetKeyCode(A, true, 3); }, "0A 01 09 00 00 01 03 E7 00 00 04 00");
    row(
        "Fn", [](Connection &c) { c.DoSetFn(A, VolumeUp); }, "10 00 00 09 00 00 00 E6 03 00 E9 00");
    row(
        "Fn of a code that no key has", [](Connection &c) { c.DoSetFn(NoKey, VolumeUp); },
        "10 00 00 FF 00 00 00 F0 03 00 E9 00");
    row(
        "Fn disabled", [](Connection &c) { c.DoSetFnCode(Esc, false); },
        "10 00 00 00 00 00 00 EF 00 00 00 01");
    row(
        "Fn enabled", [](Connection &c) { c.DoSetFnCode(A, true); }, "10 00 00 09 00 00 00 E6 00 00 00 00");
}

void TestKeyOperations::writes()
{
    QFETCH(Operation, operation);
    operation(*connection);
    QCOMPARE(shared->keyboard->frameCount(), size_t(1));
    QTEST(shared->frame(0, 12), "frame");
}

bool TestKeyOperations::gapsAreKept() const
{
    const auto frames = shared->keyboard->frames();
    for (size_t i = 1; i < frames.size(); ++i) {
        if (frames[i].when - frames[i - 1].when < 30ms)
            return false;
    }
    return true;
}

void TestKeyOperations::resetWritesTenFrames()
{
    const quint8 position = keys::PositionOfCode(FnKey);
    shared->keyboard->edit([position](sim::KeyboardState &state) {
        for (quint8 layer = 0; layer < 4; ++layer)
            state.keys.setKey(Profile, layer, position, VolumeUp.bytes);
        for (const int table : {0x07, 0x00, 0x01, 0x06, 0xFB, 0xFC})
            state.active().magnetism.setValue(sim::Byte(table), position, 99);
    });
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

    const sim::KeyboardState state = shared->keyboard->state();
    QCOMPARE(state.keys.key(Profile, 0, position), (sim::KeyEntry{0, 0, FnKey, 0}));
    const std::pair<int, quint32> defaults[] = {{0x07, 0},  {0x00, 400}, {0x01, 560},
                                                {0x06, 60}, {0xFB, 60},  {0xFC, 2}};
    for (const auto &[table, value] : defaults) {
        QCOMPARE(state.active().magnetism.value(sim::Byte(table), position), value);
        QCOMPARE(connection->GetMagnetism(quint8(table), position), value);
    }
}

void TestKeyOperations::groupIsPaced_data()
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

void TestKeyOperations::groupIsPaced()
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

void TestKeyOperations::groupOfAListenerIsPaced()
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

void TestKeyOperations::emptyGroupDoesNotKick()
{
    // Two commands wait behind an answer that never comes.
    shared->keyboard->faultAtFrame(0, virtualhid::Fault::lost());
    for (int i = 0; i < 3; ++i)
        connection->DoSendCommand(0x86, 1, false);
    shared->settle();
    QCOMPARE(shared->keyboard->frameCount(), size_t(1));
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

void TestKeyOperations::nothingIsWrittenWhileReading()
{
    const auto before = connection->deviceCache().keyMatrix;
    const auto fnBefore = connection->deviceCache().fnMatrix;
    shared->readDone.clear();
    connection->DoReadAll();
    connection->DoSetKey(Esc, {{1, 2, 3, 4}}, 0, 1);
    connection->DoSetFn(Esc, {{1, 2, 3, 4}});
    connection->DoSetKeyCode(A, false, 0);
    connection->DoSetFnCode(A, false);
    connection->DoResetKey(Esc);
    QCOMPARE(shared->keyboard->frameCount(), size_t(0));
    QCOMPARE(connection->deviceCache().keyMatrix, before);
    QCOMPARE(connection->deviceCache().fnMatrix, fnBefore);
    QVERIFY(shared->readDone.wait(20000));
    QCOMPARE(shared->keyboard->frameCount(), size_t(99));
    // Reading brought what the writes had left in the cache.
    QCOMPARE(connection->deviceCache().keyMatrix, before);
    QCOMPARE(connection->deviceCache().fnMatrix, fnBefore);
}

void TestKeyOperations::entries_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("layer");
    QTest::addColumn<bool>("known");
    QTest::newRow("factory key") << 0 << 0 << true;
    QTest::newRow("factory Fn key") << 1 << 0xF0 << true;
    QTest::newRow("layer that wasn't read") << 0 << 1 << false;
    QTest::newRow("Fn matrix that wasn't read") << 1 << 0xF1 << false;
    QTest::newRow("layer that isn't there") << 0 << 0x20 << false;
    QTest::newRow("Fn matrix that isn't there") << 1 << 0xFF << false;
    QTest::newRow("position past the matrix") << 255 << 0 << false;
}

void TestKeyOperations::entries()
{
    QFETCH(int, position);
    QFETCH(int, layer);
    const Connection unconnected;
    KeyEntry entry = VolumeUp;
    unconnected.GetKeyEntry(entry, quint8(position), quint8(layer));
    QTEST(!entry.isEmpty(), "known");
}

void TestKeyOperations::display_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("names");
    const QString empty;
    QTest::newRow("every layer has its name")
        << int(A) << 0 << QStringList{empty, QStringLiteral("A"), QStringLiteral("L-Ctrl + A"), empty};
    QTest::newRow("toggle with the flag")
        << int(A) << 0x84 << QStringList{empty, QStringLiteral("A"), QStringLiteral("L-Ctrl + A"), empty};
    QTest::newRow("SnapKey") << int(A) << 7 << QStringList{QStringLiteral("Q")};
    QTest::newRow("SnapKey with the flag") << int(A) << 0x87 << QStringList{QStringLiteral("Q")};
    QTest::newRow("a code that no key has") << int(NoKey) << 0 << QStringList();
}

void TestKeyOperations::display()
{
    QFETCH(int, code);
    QFETCH(int, mode);
    connection->DoSetKey(A, {{0, 0, A, 0}}, 0, 0);
    connection->DoSetKey(A, {{0, A, 0, 0}}, 1, 0);
    connection->DoSetKey(A, {{0, 0xE0, A, 0}}, 2, 0);
    connection->DoSetKey(A, {}, 3, 1);
    connection->SetMagnetism(0x07, keys::PositionOfCode(A), quint32(mode));
    connection->SetMagnetism(0x09, keys::PositionOfCode(A), 0x14);
    QStringList names{QStringLiteral("of the key before")};
    connection->GetKeyDisplay(names, quint8(code));
    QTEST(names, "names");

    const Connection unconnected;
    unconnected.GetKeyDisplay(names, quint8(code));
    QVERIFY(names.isEmpty());
}

void TestKeyOperations::writesLastOverReconnect()
{
    connection->DoSetKey(Esc, VolumeUp, 3, 1);
    connection->DoSetFn(Esc, VolumeUp);
    shared->settle();
    shared->readDone.clear();
    shared->control<QPushButton>("pushButtonConnect")->click();
    QVERIFY(shared->readDone.wait(20000));
    KeyEntry entry;
    connection->GetKeyEntry(entry, 0, 3);
    QCOMPARE(entry, VolumeUp);
    connection->GetKeyEntry(entry, 0, DeviceCache::FnLayer);
    QCOMPARE(entry, VolumeUp);
}

QTEST_MAIN(TestKeyOperations)
#include "tst_keys_ops.moc"
