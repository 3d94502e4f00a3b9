#include "CommandPump.h"
#include "ConnectedKeyboard.h"
#include "HidHandle.h"

#include <hidapi/hidapi.h>
#include <mutex>
#include <QTest>

using virtualhid::Fault;
using virtualhid::VirtualBus;
using virtualhid::Way;
using namespace std::chrono_literals;
using Kick = CommandPump::Kick;

/// The queue and its pace, on a bare handle.
class TestPump : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { VirtualBus::instance().reset(); }

    void burstGoesOutInOrderAndPaced_data();
    void burstGoesOutInOrderAndPaced();
    void twoImmediateKicks();
    void wirelessNotice_data();
    void wirelessNotice();
    void strayReportIsNoAnswer();
    void lostReplyLeavesTheQueue_data();
    void lostReplyLeavesTheQueue();
    void stepsOfAnOldLinkDoNothing();
    void unsendableCommands();

private:
    HidHandle open(const char *model, sim::Channel channel);

    virtualhid::DevicePtr keyboard;
};

void TestPump::init()
{
    VirtualBus::instance().reset();
}

HidHandle TestPump::open(const char *model, sim::Channel channel)
{
    keyboard = VirtualBus::instance().plug(model);
    return HidHandle::open(QByteArray::fromStdString(keyboard->path(channel)));
}

void TestPump::burstGoesOutInOrderAndPaced_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<bool>("wireless");
    QTest::addColumn<int>("beforeReading");
    QTest::addColumn<int>("pace");
    QTest::newRow("wired") << QByteArray("wired-500") << false << 20 << 30;
    QTest::newRow("wireless") << QByteArray("bluetooth") << true << 100 << 110;
}

void TestPump::burstGoesOutInOrderAndPaced()
{
    QFETCH(QByteArray, model);
    QFETCH(bool, wireless);
    QFETCH(int, beforeReading);
    QFETCH(int, pace);
    const HidHandle handle = open(model, wireless ? sim::Channel::Bluetooth : sim::Channel::Command);
    CommandPump pump;
    QSignalSpy replies(&pump, &CommandPump::replied);
    QSignalSpy drained(&pump, &CommandPump::drained);
    pump.setLink(&handle, wireless);
    for (const char command : QByteArray::fromHex("83868991"))
        pump.enqueue(QByteArray(1, command), Kick::Deferred);
    QCOMPARE(keyboard->frameCount(), size_t(0));
    QVERIFY(drained.wait());

    const auto frames = keyboard->frames();
    QCOMPARE(frames.size(), size_t(4));
    QCOMPARE(replies.size(), 4);
    for (qsizetype i = 0; i < replies.size(); ++i) {
        QCOMPARE(quint8(replies.at(i).first().toByteArray().at(0)), frames[size_t(i)].command());
        if (i > 0)
            QVERIFY(frames[size_t(i)].when - frames[size_t(i) - 1].when >= std::chrono::milliseconds(pace));
    }
    sim::TimePoint sent{};
    for (const virtualhid::Transfer &transfer : keyboard->transfers()) {
        if (transfer.way == Way::FeatureSent || transfer.way == Way::OutputSent)
            sent = transfer.when;
        else
            QVERIFY(transfer.when - sent >= std::chrono::milliseconds(beforeReading));
    }
}

void TestPump::twoImmediateKicks()
{
    const HidHandle handle = open("wired-500", sim::Channel::Command);
    CommandPump pump;
    QSignalSpy replies(&pump, &CommandPump::replied);
    pump.setLink(&handle, false);
    pump.enqueue(QByteArray::fromHex("0603"), Kick::Immediate);
    pump.enqueue(QByteArray::fromHex("030002"), Kick::Immediate);
    QCOMPARE(keyboard->frameCount(), size_t(2));
    QCOMPARE(quint8(pump.lastFrame().at(0)), quint8(3));
    QTRY_COMPARE(replies.size(), 2);
    QCOMPARE(keyboard->state().settings.debounce, sim::Byte(3));
    QCOMPARE(keyboard->state().settings.reportRate, sim::Byte(2));
}

void TestPump::wirelessNotice_data()
{
    QTest::addColumn<bool>("answerFollows");
    QTest::addColumn<int>("replyCount");
    QTest::newRow("the second report is the answer") << true << 1;
    QTest::newRow("nothing follows") << false << 0;
}

void TestPump::wirelessNotice()
{
    QFETCH(bool, answerFollows);
    const HidHandle handle = open("bluetooth", sim::Channel::Bluetooth);
    CommandPump pump;
    QSignalSpy replies(&pump, &CommandPump::replied);
    pump.setLink(&handle, true);
    Fault fault = Fault::notice();
    fault.lostReply = !answerFollows;
    keyboard->faultAtFrame(0, fault);
    pump.enqueue(QByteArray::fromHex("8F"), Kick::Immediate);
    QTest::qWait(1100);
    QTEST(int(replies.size()), "replyCount");
    if (answerFollows)
        QCOMPARE(quint8(replies.at(0).first().toByteArray().at(0)), quint8(0x8F));
}

void TestPump::strayReportIsNoAnswer()
{
    const HidHandle handle = open("bluetooth", sim::Channel::Bluetooth);
    const HidHandle search =
        HidHandle::open(QByteArray::fromStdString(keyboard->path(sim::Channel::Bluetooth)));
    QByteArray question = QByteArray::fromHex("06558F00000000000070");
    question.resize(66, '\0');
    QVERIFY(hid_write(search.get(), reinterpret_cast<const quint8 *>(question.constData()), 66) > 0);
    QTest::qWait(50);

    CommandPump pump;
    QSignalSpy replies(&pump, &CommandPump::replied);
    pump.setLink(&handle, true);
    std::unique_lock air(airMutex()); // the search has another question
    pump.enqueue(QByteArray::fromHex("86"), Kick::Immediate);
    QTest::qWait(50);
    QCOMPARE(keyboard->frameCount(), size_t(1));
    air.unlock();
    QVERIFY(replies.wait());
    QVERIFY(air.try_lock());
    QCOMPARE(quint8(replies.first().first().toByteArray().at(0)), quint8(0x86));
}

void TestPump::lostReplyLeavesTheQueue_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<bool>("wireless");
    QTest::newRow("wired") << QByteArray("wired-500") << false;
    QTest::newRow("wireless") << QByteArray("bluetooth") << true;
}

void TestPump::lostReplyLeavesTheQueue()
{
    QFETCH(QByteArray, model);
    QFETCH(bool, wireless);
    const HidHandle handle = open(model, wireless ? sim::Channel::Bluetooth : sim::Channel::Command);
    CommandPump pump;
    QSignalSpy drained(&pump, &CommandPump::drained);
    pump.setLink(&handle, wireless);
    keyboard->faultAtFrame(1, Fault::lost());
    for (const char command : QByteArray::fromHex("838689"))
        pump.enqueue(QByteArray(1, command), Kick::Deferred);
    QTest::qWait(1200);
    QCOMPARE(keyboard->frameCount(), size_t(2));
    QCOMPARE(pump.queueLength(), 1);
    QVERIFY(drained.isEmpty());

    pump.enqueue(QByteArray::fromHex("91"), Kick::Immediate);
    QCOMPARE(keyboard->frames().back().command(), sim::Byte(0x89));
    QVERIFY(drained.wait());
    QCOMPARE(keyboard->frames().back().command(), sim::Byte(0x91));
}

void TestPump::stepsOfAnOldLinkDoNothing()
{
    const HidHandle handle = open("wired-500", sim::Channel::Command);
    CommandPump pump;
    QSignalSpy replies(&pump, &CommandPump::replied);
    pump.setLink(&handle, false);
    pump.enqueue(QByteArray::fromHex("83"), Kick::Immediate);
    pump.enqueue(QByteArray::fromHex("86"), Kick::Deferred);
    pump.setLink(nullptr, false);
    QTest::qWait(50);
    pump.setLink(&handle, false);
    pump.readStep();
    pump.setLink(nullptr, false);
    pump.readStep();
    QTest::qWait(100);
    QCOMPARE(replies.size(), 1);
    QCOMPARE(keyboard->frameCount(), size_t(1));
    QCOMPARE(pump.queueLength(), 1);
    QCOMPARE(VirtualBus::instance().counters().misuses, 0u);
}

void TestPump::unsendableCommands()
{
    const HidHandle handle = open("wired-500", sim::Channel::Command);
    CommandPump pump;
    pump.enqueue(QByteArray::fromHex("83"), Kick::Immediate);
    QCOMPARE(pump.queueLength(), 0);
    pump.setLink(&handle, false);
    pump.enqueue({}, Kick::Immediate);
    QCOMPARE(keyboard->frameCount(), size_t(0));
    // What is longer than a frame is cut to it.
    pump.enqueue(QByteArray(5000, '\x11'), Kick::Immediate);
    QCOMPARE(keyboard->frames().back().report.size(), size_t(65));
}

QTEST_GUILESS_MAIN(TestPump)
#include "tst_pump.moc"
