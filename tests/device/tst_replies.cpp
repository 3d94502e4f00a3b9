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

    void shortRepliesChangeNothingElse();
    void lastFrameDecidesTheMeaning();
    void keyTestSamples();
    void inputIsNotPolledWhileReading();
    void layerIsSigned();
    void anyReplyIsSurvived();

private:
    std::unique_ptr<ConnectedKeyboard> shared; ///< read whole once, for the tests that leave it as it is
};

void TestReplies::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
}

void TestReplies::shortRepliesChangeNothingElse()
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

void TestReplies::keyTestSamples()
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

void TestReplies::layerIsSigned()
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
void TestReplies::anyReplyIsSurvived()
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

QTEST_MAIN(TestReplies)
#include "tst_replies.moc"
