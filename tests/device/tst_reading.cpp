#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"

#include <QLabel>
#include <QRandomGenerator>
#include <QTest>

using virtualhid::Fault;
using virtualhid::VirtualBus;
using namespace std::chrono_literals;

namespace {

/// Everything of the cache that a reply can change, in one value.
QByteArray fingerprint(const DeviceCache &cache)
{
    QByteArray all;
    QDataStream out(&all, QIODevice::WriteOnly);
    out << cache.kbOptions << cache.deviceInfo << cache.userPicture << cache.calibrationBuffer
        << cache.reportRate << cache.debounce << cache.deviceId << cache.firmwareVersion;
    for (const auto &pages : {cache.keyPages, cache.fnPages, cache.keyMatrix, cache.fnMatrix}) {
        for (const QByteArray &page : pages)
            out << page;
    }
    for (const QByteArray &table : cache.magnetTables)
        out << table;
    for (const QByteArray &params : cache.ledParams)
        out << params;
    for (const QByteArray &params : cache.sideLedParams)
        out << params;
    for (const quint16 time : cache.sleepTimes)
        out << time;
    return all;
}

sim::Bytes toSim(const QByteArray &bytes)
{
    return {bytes.cbegin(), bytes.cend()};
}

} // namespace

/// How the state of a keyboard gets into the cache, and what the connection makes of answers, good and bad.
class TestReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shortRepliesChangeNothingElse();
    void lastFrameDecidesTheMeaning();
    void keyTestSamples();
    void inputIsNotPolledWhileReading();
    void layerIsSigned();
    void anyReplyIsSurvived();

    void firmwareDecidesTheTables_data();
    void firmwareDecidesTheTables();
    void ordersItsFrames();
    void gapsAreNeverShorterThanPromised();
    void oldMatricesStayUntilTheEnd();
    void lostReplyStopsIt();
    void newReadDropsTheOld();
    void factoryReset();

private:
    std::unique_ptr<ConnectedKeyboard> shared; ///< read whole once, for the tests that leave it as it is
};

void TestReading::firmwareDecidesTheTables_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<quint16>("version");
    QTest::addColumn<int>("frames");
    QTest::newRow("older than 3.00 has no magnetism tables")
        << QByteArray("wired-2ff") << quint16(0x2FF) << 47;
    QTest::newRow("3.00 has them") << QByteArray("wired-300") << quint16(0x300) << 99;
}

void TestReading::firmwareDecidesTheTables()
{
    QFETCH(QByteArray, model);
    QFETCH(quint16, version);
    QFETCH(int, frames);
    sim::DeviceOptions options;
    options.firmware = version;
    ConnectedKeyboard link(model, options);
    QSignalSpy started(&link.connection, &DialogDeviceConnect::onReadAll);
    QVERIFY(link.readAll());
    QCOMPARE(started.size(), 1);
    QCOMPARE(link.keyboard->frameCount() - link.sequenceStart(), size_t(frames));
    QVERIFY(!link.connection.isReadingAll());
    // The version is not asked again with the state, so the field is empty although the label still shows it.
    QCOMPARE(link.connection.deviceCache().firmwareVersion, quint16(0));
    QVERIFY(
        link.control<QLabel>("labelVersion")->text().startsWith(QString::asprintf("Ver:0x%03X", version)));
}

void TestReading::ordersItsFrames()
{
    ConnectedKeyboard link("wired-500");
    QVERIFY(link.readAll());
    QByteArray expected("83 87 88 86 91 ");
    expected +=
        QByteArray("8A ").repeated(32) + QByteArray("90 ").repeated(10) + QByteArray("E5 ").repeated(52);
    QCOMPARE(link.commands(link.sequenceStart()), expected.trimmed());
    const size_t firstKeyPage = link.sequenceStart() + 5;
    QCOMPARE(link.frame(firstKeyPage + 8 + 3), QByteArray("8A 00 FF 03 01 00 00 72"));
    QCOMPARE(link.frame(firstKeyPage + 32 + 9), QByteArray("90 00 00 FF 09 00 00 67"));

    QByteArray tables;
    for (size_t i = firstKeyPage + 42; i < link.keyboard->frameCount(); ++i)
        tables += link.frame(i, 4).mid(3, 2) + link.frame(i, 4).last(2) + ' ';
    QVERIFY2(tables.startsWith("0000 0001 0002 0003 0100"), tables);
    QVERIFY2(tables.trimmed().endsWith("0A07 FF00 FF01 FF02 FF03 FE00 FE01 FE02 FE03 FC00 FC01 FB00 FB01"),
             tables);
}

void TestReading::gapsAreNeverShorterThanPromised()
{
    ConnectedKeyboard link("wired-500");
    QVERIFY(link.readAll());
    const auto frames = link.keyboard->frames();
    for (size_t i = link.sequenceStart() + 1; i < frames.size(); ++i)
        QVERIFY2(frames[i].when - frames[i - 1].when >= 30ms, qPrintable(QString::number(i)));
    for (const virtualhid::Transfer &transfer : link.keyboard->transfers())
        QVERIFY(transfer.result > 0 || transfer.way == virtualhid::Way::InputRead);
}

void TestReading::oldMatricesStayUntilTheEnd()
{
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.keyboard->edit([](sim::KeyboardState &state) { state.keys.setKey(0, 0, 0, {1, 2, 3, 4}); });
    const KeyEntry before = link.connection.deviceCache().keyEntry(0, 0);
    link.keyboard->clearLog();
    link.connection.DoReadAll();
    QVERIFY(link.waitForFrames(30));
    QCOMPARE(link.connection.deviceCache().keyEntry(0, 0), before);
    QVERIFY(link.readDone.wait());
    QCOMPARE(link.connection.deviceCache().keyEntry(0, 0), (KeyEntry{{1, 2, 3, 4}}));
}

void TestReading::lostReplyStopsIt()
{
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.readDone.clear();
    link.keyboard->clearLog();
    link.keyboard->faultAtFrame(10, Fault::lost());
    link.connection.DoReadAll();
    QVERIFY(link.waitForFrames(11));
    link.settle();
    QCOMPARE(link.keyboard->frameCount(), size_t(11));
    QVERIFY(link.connection.isReadingAll());
    QVERIFY(link.readDone.isEmpty());

    // The next kick goes on with what waits, not with the new command.
    link.connection.DoSendHex(QStringLiteral("84"), true);
    QCOMPARE(link.frame(11), QByteArray("8A 00 FF 06 00 00 00 70"));
    QVERIFY(link.readDone.wait());
}

void TestReading::newReadDropsTheOld()
{
    ConnectedKeyboard link("wired-2ff");
    QVERIFY(link.readAll());
    link.readDone.clear();
    link.keyboard->clearLog();
    link.connection.DoReadAll();
    QVERIFY(link.waitForFrames(5));
    link.connection.DoSetProfile(1);
    // The profile's read begins half a second on; what the first one has not sent by then is never sent.
    QVERIFY(link.readDone.wait());
    QCOMPARE(link.frame(link.keyboard->frameCount() - 42), QByteArray("8A 01 FF 00 00 00 00 75"));
    QCOMPARE(link.connection.deviceCache().keyMatrix[0].size(), 512);
    QTest::qWait(200);
    QCOMPARE(link.readDone.size(), 1);
}

void TestReading::factoryReset()
{
    ConnectedKeyboard link("wired-2ff");
    link.keyboard->edit([](sim::KeyboardState &state) { state.keys.setKey(0, 0, 0, {1, 2, 3, 4}); });
    QVERIFY(link.readAll());
    link.keyboard->clearLog();
    link.readDone.clear();
    link.connection.DoFactoryReset();
    QCOMPARE(link.connection.deviceCache().keyEntry(0, 0), keys::DefaultEntryAt(0));
    QVERIFY(link.readDone.wait());
    QCOMPARE(link.frame(0), QByteArray("01 00 00 00 00 00 00 FE"));
    QCOMPARE(link.keyboard->state().factoryResets, 1u);
    QCOMPARE(link.connection.deviceCache().keyEntry(0, 0), keys::DefaultEntryAt(0));
}

void TestReading::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
}

void TestReading::shortRepliesChangeNothingElse()
{
    ConnectedKeyboard &link = *shared;
    const QByteArray before = fingerprint(link.connection.deviceCache());
    QSignalSpy layer(&link.connection, &DialogDeviceConnect::onUpdataLayer);
    QSignalSpy readBack(&link.connection, &DialogDeviceConnect::onReadBack);
    for (const quint8 command : {0x83, 0x84, 0x86, 0x87, 0x88, 0x91}) {
        for (const size_t length : {0u, 1u}) {
            link.settle();
            readBack.clear();
            link.keyboard->faultOnCommand(command, Fault::shortReply(length));
            link.connection.DoSendHex(QString::number(command, 16), true);
            QVERIFY(readBack.wait());
            QCOMPARE(size_t(readBack.first().first().toByteArray().size()), length);
            QCOMPARE(fingerprint(link.connection.deviceCache()), before);
        }
    }
    QVERIFY(layer.isEmpty());
}

void TestReading::lastFrameDecidesTheMeaning()
{
    ConnectedKeyboard &link = *shared;
    // The answer names another command, and lacks the bit of a read; it still is the answer to what was sent.
    link.keyboard->faultOnCommand(0x86, Fault::reply(toSim(QByteArray::fromHex("03090A"))));
    QSignalSpy readBack(&link.connection, &DialogDeviceConnect::onReadBack);
    link.connection.DoSendHex(QStringLiteral("86"), true);
    QVERIFY(readBack.wait());
    QCOMPARE(link.connection.deviceCache().debounce, quint8(9));
}

void TestReading::keyTestSamples()
{
    ConnectedKeyboard &link = *shared;
    QSignalSpy sample(&link.connection, &DialogDeviceConnect::onKeyTest);
    for (const auto &[report, travel] : {std::pair{"0500D002", 1.0f}, // by its report id
                                         {"071B6801", 0.5f},          // by its second byte
                                         {"05", 0.0f}}) {             // cut off
        sample.clear();
        link.keyboard->injectInput(sim::Channel::KeyTest,
                                   toSim(QByteArray::fromHex("0700D002"))); // something else
        link.keyboard->injectInput(sim::Channel::KeyTest, toSim(QByteArray::fromHex(report)));
        QVERIFY(sample.wait());
        QCOMPARE(link.connection.GetKeyTravel(), travel);
        QCOMPARE(sample.size(), 1);
    }
}

void TestReading::inputIsNotPolledWhileReading()
{
    ConnectedKeyboard &link = *shared;
    QSignalSpy sample(&link.connection, &DialogDeviceConnect::onKeyTest);
    link.readDone.clear();
    link.connection.DoReadAll();
    link.keyboard->injectInput(sim::Channel::KeyTest, toSim(QByteArray::fromHex("051B1000")));
    QTest::qWait(200);
    QVERIFY(sample.isEmpty());
    QVERIFY(link.readDone.wait());
    QTRY_COMPARE(sample.size(), 1);
}

void TestReading::layerIsSigned()
{
    shared.reset();
    for (const auto &[reply, expected] :
         {std::pair{"8402", 2}, {"84FF", -1}}) { // nonsense stays recognisable
        ConnectedKeyboard link("wired-2ff");
        QSignalSpy layer(&link.connection, &DialogDeviceConnect::onUpdataLayer);
        link.keyboard->faultOnCommand(0x84, Fault::reply(toSim(QByteArray::fromHex(reply))), 2);
        link.connectDevice();
        QVERIFY(layer.wait());
        QCOMPARE(layer.first().first().toInt(), expected);
    }
}

// Every command that is dispatched is answered with noise of every length; the program must go on, and so
// must the reading, up to its end.
void TestReading::anyReplyIsSurvived()
{
    QRandomGenerator random(1);
    ConnectedKeyboard link("wired-500");
    QVERIFY(link.readAll());
    link.readDone.clear();
    link.keyboard->clearLog();
    for (size_t frame = 0; frame < 99; ++frame) {
        QByteArray noise(1 + random.bounded(1024), '\0');
        for (char &byte : noise)
            byte = char(random.bounded(256));
        link.keyboard->faultAtFrame(frame, Fault::reply(toSim(noise)));
    }
    link.connection.DoReadAll();
    QVERIFY(link.readDone.wait(10000));
    for (int number = 0; number < 256; ++number) {
        for (const int position : {0, 127, 128, 255}) {
            link.connection.deviceCache().magnetism(quint8(number), quint8(position));
            link.connection.deviceCache().keyEntry(quint8(position), quint8(number));
        }
    }
}

QTEST_MAIN(TestReading)
#include "tst_reading.moc"
