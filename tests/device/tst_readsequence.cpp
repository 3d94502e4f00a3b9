#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

using virtualhid::Fault;
using virtualhid::VirtualBus;
using namespace std::chrono_literals;

/// How the state of a keyboard gets into the cache.
class TestReadSequence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firmwareDecidesTheTables_data();
    void firmwareDecidesTheTables();
    void ordersItsFrames();
    void gapsAreNeverShorterThanPromised();
    void oldMatricesStayUntilTheEnd();
    void lostReplyStopsIt();
    void newReadDropsTheOld();
    void factoryReset();
};

void TestReadSequence::firmwareDecidesTheTables_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<quint16>("version");
    QTest::addColumn<int>("frames");
    QTest::newRow("older than 3.00 has no magnetism tables")
        << QByteArray("wired-2ff") << quint16(0x2FF) << 47;
    QTest::newRow("3.00 has them") << QByteArray("wired-300") << quint16(0x300) << 99;
}

void TestReadSequence::firmwareDecidesTheTables()
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

void TestReadSequence::ordersItsFrames()
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

void TestReadSequence::gapsAreNeverShorterThanPromised()
{
    ConnectedKeyboard link("wired-500");
    QVERIFY(link.readAll());
    const auto frames = link.keyboard->frames();
    for (size_t i = link.sequenceStart() + 1; i < frames.size(); ++i)
        QVERIFY2(frames[i].when - frames[i - 1].when >= 30ms, qPrintable(QString::number(i)));
    for (const virtualhid::Transfer &transfer : link.keyboard->transfers())
        QVERIFY(transfer.result > 0 || transfer.way == virtualhid::Way::InputRead);
}

void TestReadSequence::oldMatricesStayUntilTheEnd()
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

void TestReadSequence::lostReplyStopsIt()
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

void TestReadSequence::newReadDropsTheOld()
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

void TestReadSequence::factoryReset()
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

QTEST_MAIN(TestReadSequence)
#include "tst_readsequence.moc"
