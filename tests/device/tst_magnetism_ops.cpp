#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"

#include <QPushButton>
#include <QtEndian>
#include <QTest>

using namespace std::chrono_literals;

namespace {

constexpr quint8 Esc = 0x29;
constexpr quint8 A = 0x04;
constexpr quint8 NoKey = 0x76;
constexpr quint8 AllKeys = 0xFF;
constexpr int WholeScan = 256;

} // namespace

/// The operations on magnetic switches, the key test and the calibration, on one keyboard that is shared.
class TestMagnetismOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();
    /// A calibration that a failed test leaves on would keep the pump from ever resting.
    void cleanup() { connection->DoStopCalibration(); }

    void writes_data();
    void writes();
    void unknownPlacesOfTheCache();
    void keyFlag_data();
    void keyFlag();
    void keyTest();
    void stoppedKeyTestDropsWhatWaits();
    void calibration();
    void stoppedCalibrationDropsWhatWaits();
    void guardsWhileReading();
    void writesLastOverReconnect();

private:
    quint32 held(quint8 table, int position) const;
    QByteArray sensorPages() const;

    std::unique_ptr<ConnectedKeyboard> shared;
    DialogDeviceConnect *connection = nullptr;
};

void TestMagnetismOperations::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-500");
    connection = &shared->connection;
    QVERIFY(shared->readAll());
}

void TestMagnetismOperations::init()
{
    shared->settle();
    shared->keyboard->clearLog();
}

quint32 TestMagnetismOperations::held(quint8 table, int position) const
{
    return shared->keyboard->state().active().magnetism.value(table, position);
}

void TestMagnetismOperations::writes_data()
{
    QTest::addColumn<int>("table");
    QTest::addColumn<int>("code");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<int>("commit");
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<quint32>("kept");
    const auto row = [](const char *name, int table, int code, quint32 value, int commit, const char *frame,
                        quint32 kept) {
        QTest::newRow(name) << table << code << value << commit << QByteArray(frame) << kept;
    };
    row("2 mm", 0x00, Esc, 400, 1, "65 00 00 00 01 00 00 99 90 01 00 00", 400);
    row("within a group", 0x01, A, 560, 0, "65 01 00 09 00 00 00 90 30 02 00 00", 560);
    row("a key by a code of its own", 0xFC, 0xFB, 5, 1, "65 FC 00 5C 01 00 00 41 05 00 00 00", 5);
    row("the cache keeps a byte", 0xFB, Esc, 0x1234, 1, "65 FB 00 00 01 00 00 9E 34 12 00 00", 0x34);
    row("32 bits go out of which a byte is kept", 0x08, Esc, 0x55565B6F, 1,
        "65 08 00 00 01 00 00 91 6F 5B 56 55", 0x6F);
    row("32 bits are kept", 0x0A, Esc, 0x12345678, 1, "65 0A 00 00 01 00 00 8F 78 56 34 12", 0x12345678);
    row("a table that isn't there", 0x0B, Esc, 7, 1, "65 0B 00 00 01 00 00 8E 07 00 00 00", 0);
}

void TestMagnetismOperations::writes()
{
    QFETCH(int, table);
    QFETCH(int, code);
    QFETCH(quint32, value);
    QFETCH(int, commit);
    const quint8 position = keys::PositionOfCode(quint8(code));
    connection->DoSetMagnetism(quint8(table), quint8(code), value, quint8(commit));
    QTEST(connection->GetMagnetism(quint8(table), position), "kept");
    QTEST(shared->frame(0, 12), "frame");
    QCOMPARE(held(quint8(table), position), sim::findMagnetTable(sim::Byte(table)) ? value : 0);
}

void TestMagnetismOperations::unknownPlacesOfTheCache()
{
    const auto before = connection->deviceCache().magnetTables;
    connection->SetMagnetism(0x00, 128, 7);
    connection->SetMagnetism(0x0B, 0, 7);
    // All keys, and a code that no key has, are for the keyboard alone.
    connection->DoSetMagnetism(0x05, AllKeys, 9, 1);
    shared->settle();
    QCOMPARE(held(0x05, 127), 9u);
    connection->DoSetMagnetism(0x05, NoKey, 8, 1);
    QCOMPARE(held(0x05, 127), 8u);
    QCOMPARE(connection->deviceCache().magnetTables, before);
    QCOMPARE(connection->GetMagnetism(0x00, 128), 0u);
    QCOMPARE(connection->GetKeyMode(NoKey), quint8(0));

    DialogDeviceConnect unconnected;
    unconnected.SetMagnetism(0x00, 0, 7);
    QCOMPARE(unconnected.GetMagnetism(0x00, 0), 0u);
}

void TestMagnetismOperations::keyFlag_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("on");
    QTest::addColumn<int>("result");
    QTest::newRow("set on a plain key") << 0 << true << 0x80;
    QTest::newRow("the mode stays") << 0x03 << true << 0x83;
    QTest::newRow("set again") << 0x83 << true << 0x83;
    QTest::newRow("cleared") << 0x83 << false << 0x03;
}

void TestMagnetismOperations::keyFlag()
{
    QFETCH(int, mode);
    QFETCH(bool, on);
    connection->SetMagnetism(0x07, keys::PositionOfCode(A), quint32(mode));
    connection->DoSetKeyFlag(A, on);
    QTEST(int(connection->GetKeyMode(A)), "result");
    QTEST(int(held(0x07, keys::PositionOfCode(A))), "result");
    QVERIFY(!shared->keyboard->state().active().magnetism.groupOpen());
}

void TestMagnetismOperations::keyTest()
{
    QSignalSpy testing(connection, &DialogDeviceConnect::onKeyTesting);
    connection->DoStopKeyTest();
    shared->settle();
    QVERIFY(!shared->keyboard->keyTestRunning());
    connection->DoStartKeyTest();
    QVERIFY(shared->keyboard->keyTestRunning());
    QCOMPARE(testing, (QList<QVariantList>{{false}, {true}}));
    QCOMPARE(shared->commands(), QByteArray("1B 1B"));

    shared->keyboard->press(0, 720, 20ms, 200ms);
    QTRY_COMPARE(connection->GetKeyTravel(), 1.0f);
    QTRY_COMPARE(connection->GetKeyTravel(), 0.0f);
}

void TestMagnetismOperations::stoppedKeyTestDropsWhatWaits()
{
    for (int i = 0; i < 5; ++i)
        connection->DoSendCommand(0x86, 1, false);
    connection->DoStopKeyTest();
    shared->settle();
    QCOMPARE(shared->commands(), QByteArray("1B"));
    QVERIFY(!shared->keyboard->keyTestRunning());
}

/// The sensor pages asked for, one digit each.
QByteArray TestMagnetismOperations::sensorPages() const
{
    QByteArray pages;
    for (const virtualhid::ReceivedFrame &frame : shared->keyboard->frames()) {
        if (frame.command() == 0xE5 && frame.frame[1] == 0xFE && frame.frame[2] == 1)
            pages += char('0' + frame.frame[3]);
    }
    return pages;
}

void TestMagnetismOperations::calibration()
{
    const auto tables = connection->deviceCache().magnetTables;
    QSignalSpy scans(connection, &DialogDeviceConnect::onCalibration);
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
    QCOMPARE(scans.size(), 1);

    // The page counter goes on, so that the first scan of the next calibration lacks its beginning.
    connection->DoStartCalibration();
    QVERIFY(scans.wait(2000));
    QCOMPARE(scan(1).size(), WholeScan * 3 / 4);
    QVERIFY(scans.wait(2000));
    QCOMPARE(scan(2).size(), WholeScan);
    connection->DoStopCalibration();
    shared->settle();
    QCOMPARE(connection->deviceCache().magnetTables, tables);

    const auto frames = shared->keyboard->frames();
    QCOMPARE(frames.front().command(), sim::Byte(0x1E));
    QCOMPARE(shared->frame(frames.size() - 1, 2), QByteArray("1E 00"));
}

void TestMagnetismOperations::stoppedCalibrationDropsWhatWaits()
{
    for (int i = 0; i < 5; ++i)
        connection->DoSendCommand(0x86, 1, false);
    connection->DoStopCalibration();
    shared->settle();
    QCOMPARE(shared->commands(), QByteArray("1E"));
}

void TestMagnetismOperations::guardsWhileReading()
{
    QSignalSpy testing(connection, &DialogDeviceConnect::onKeyTesting);
    shared->readDone.clear();
    connection->DoReadAll();
    connection->DoSetMagnetism(0x00, Esc, 1, 1);
    connection->DoSetKeyFlag(Esc, true);
    connection->DoStartKeyTest();
    connection->DoStopKeyTest();
    connection->DoStartCalibration();
    QCOMPARE(shared->keyboard->frameCount(), size_t(0));
    QVERIFY(testing.isEmpty());
    QVERIFY(shared->readDone.wait(20000));
    QCOMPARE(shared->keyboard->frameCount(), size_t(99));
    QCOMPARE(connection->deviceCache().magnetTables[12].size(), WholeScan);

    // The way out of a calibration is always open.
    connection->DoReadAll();
    connection->DoStopCalibration();
    QCOMPARE(shared->commands(99), QByteArray("1E"));
    QTRY_VERIFY(!connection->isReadingAll());
}

void TestMagnetismOperations::writesLastOverReconnect()
{
    shared->readDone.clear();
    connection->DoReadAll();
    QVERIFY(shared->readDone.wait(20000));
    {
        const DialogDeviceConnect::WriteGroup group(*connection);
        for (const quint8 table : {0x00, 0x01, 0x02, 0x03})
            connection->DoSetMagnetism(table, A, 300u + table, 0);
        connection->DoSetKeyFlag(A, true);
    }
    connection->DoSetMagnetism(0x06, AllKeys, 77, 1);
    shared->settle();
    shared->readDone.clear();
    shared->control<QPushButton>("pushButtonConnect")->click();
    QVERIFY(shared->readDone.wait(20000));
    for (const quint8 table : {0x00, 0x01, 0x02, 0x03})
        QCOMPARE(connection->GetMagnetism(table, keys::PositionOfCode(A)), 300u + table);
    QCOMPARE(connection->GetKeyMode(A) & KeyMode::Flag, int(KeyMode::Flag));
    QCOMPARE(connection->GetMagnetism(0x06, 0), 77u);
    QCOMPARE(connection->GetMagnetism(0x06, 127), 77u);
}

QTEST_MAIN(TestMagnetismOperations)
#include "tst_magnetism_ops.moc"
