#include "ConnectedKeyboard.h"

#include <QRandomGenerator>
#include <QTest>

using virtualhid::Fault;
using virtualhid::VirtualBus;

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

/// What the connection makes of answers, good and bad.
class TestReplies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }

    void shortRepliesChangeNothingElse_data();
    void shortRepliesChangeNothingElse();
    void lastFrameDecidesTheMeaning();
    void keyTestSamples_data();
    void keyTestSamples();
    void inputIsNotPolledWhileReading();
    void layerIsSigned_data();
    void layerIsSigned();
    void anyReplyIsSurvived_data();
    void anyReplyIsSurvived();

private:
    std::unique_ptr<ConnectedKeyboard> shared; ///< read whole once, for the tests that leave it as it is
};

void TestReplies::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
}

void TestReplies::shortRepliesChangeNothingElse_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("length");
    for (const char *command : {"83", "84", "86", "87", "88", "91"}) {
        for (const int length : {0, 1})
            QTest::addRow("%s with %d bytes", command, length) << QByteArray::fromHex(command) << length;
    }
}

void TestReplies::shortRepliesChangeNothingElse()
{
    QFETCH(QByteArray, command);
    QFETCH(int, length);
    ConnectedKeyboard &link = *shared;
    const QByteArray before = fingerprint(link.connection.deviceCache());
    QSignalSpy layer(&link.connection, &DialogDeviceConnect::onUpdataLayer);
    QSignalSpy readBack(&link.connection, &DialogDeviceConnect::onReadBack);
    link.keyboard->faultOnCommand(sim::Byte(command.at(0)), Fault::shortReply(size_t(length)));
    link.connection.DoSendHex(QString::fromLatin1(command.toHex()), true);
    QVERIFY(readBack.wait());
    QCOMPARE(readBack.first().first().toByteArray().size(), length);
    QCOMPARE(fingerprint(link.connection.deviceCache()), before);
    QVERIFY(layer.isEmpty());
}

void TestReplies::lastFrameDecidesTheMeaning()
{
    ConnectedKeyboard &link = *shared;
    // The answer names another command, and lacks the bit of a read; it still is the answer to what was sent.
    link.keyboard->faultOnCommand(0x86, Fault::reply(toSim(QByteArray::fromHex("03090A"))));
    QSignalSpy readBack(&link.connection, &DialogDeviceConnect::onReadBack);
    link.connection.DoSendHex(QStringLiteral("86"), true);
    QVERIFY(readBack.wait());
    QCOMPARE(link.connection.deviceCache().debounce, quint8(9));
}

void TestReplies::layerIsSigned_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("layer");
    QTest::newRow("third profile") << QByteArray::fromHex("8402") << 2;
    QTest::newRow("nonsense stays recognisable") << QByteArray::fromHex("84FF") << -1;
}

void TestReplies::layerIsSigned()
{
    QFETCH(QByteArray, reply);
    shared.reset();
    ConnectedKeyboard link("wired-2ff");
    QSignalSpy layer(&link.connection, &DialogDeviceConnect::onUpdataLayer);
    link.keyboard->faultOnCommand(0x84, Fault::reply(toSim(reply)), 2);
    link.connectDevice();
    QVERIFY(layer.wait());
    QTEST(layer.first().first().toInt(), "layer");
}

void TestReplies::anyReplyIsSurvived_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 2; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

// Every command that is dispatched is answered with noise of every length; the program must go on, and so
// must the reading, up to its end.
void TestReplies::anyReplyIsSurvived()
{
    QFETCH(quint32, seed);
    shared.reset();
    QRandomGenerator random(seed);
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
    // The next clean read repairs whatever the noise left.
    QSignalSpy done(&link.connection, &DialogDeviceConnect::onReadDone);
    link.keyboard->clearFaults();
    link.connection.DoReadAll();
    QVERIFY(done.wait(10000));
    QCOMPARE(link.connection.deviceCache().keyMatrix[0].size(), 512);
    QCOMPARE(link.connection.deviceCache().magnetTables[0].size(), 256);
}

void TestReplies::keyTestSamples_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<float>("travel");
    QTest::newRow("by its report id") << QByteArray::fromHex("0500D002") << 1.0f;
    QTest::newRow("by its second byte") << QByteArray::fromHex("071B6801") << 0.5f;
    QTest::newRow("something else") << QByteArray::fromHex("0700D002") << -1.0f;
    QTest::newRow("cut off") << QByteArray::fromHex("05") << 0.0f;
}

void TestReplies::keyTestSamples()
{
    QFETCH(QByteArray, report);
    QFETCH(float, travel);
    ConnectedKeyboard &link = *shared;
    QSignalSpy sample(&link.connection, &DialogDeviceConnect::onKeyTest);
    link.keyboard->injectInput(sim::Channel::KeyTest, toSim(report));
    QTest::qWait(100);
    QCOMPARE(sample.size(), travel < 0 ? 0 : 1);
    if (travel >= 0)
        QCOMPARE(link.connection.GetKeyTravel(), travel);
}

void TestReplies::inputIsNotPolledWhileReading()
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

QTEST_MAIN(TestReplies)
#include "tst_replies.moc"
