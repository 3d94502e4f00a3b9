// The firmware model behind hidapi's functions: which frames it takes, and what can fail on the way. What
// it answers to whole works of the product is seen in the tests of those.

#include "Bytes.h"
#include "VirtualBus.h"

#include <algorithm>
#include <hidapi/hidapi.h>
#include <memory>
#include <numeric>
#include <QtTest>

using namespace std::chrono_literals;
using sim::Byte;
using sim::Bytes;
using sim::Channel;
using virtualhid::DevicePtr;
using virtualhid::Fault;
using virtualhid::VirtualBus;

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Bytes)

namespace {

// A host written for these tests alone: it frames, sends and reads by hand.

struct Closer
{
    void operator()(hid_device *device) const { hid_close(device); }
};
using Handle = std::unique_ptr<hid_device, Closer>;

Handle open(const DevicePtr &device, Channel channel)
{
    return Handle{hid_open_path(device->path(channel).c_str())};
}

/// 64 bytes with \a header from 0, its checksum, and \a payload behind it.
Bytes closed(Bytes header, const Bytes &payload = {})
{
    const std::size_t place = header[0] == 0x07 || header[0] == 0x08 ? 8 : 7;
    header.resize(64);
    header[place] = static_cast<Byte>(~std::accumulate(header.begin(), header.begin() + place, 0u));
    std::copy(payload.begin(), payload.end(), header.begin() + 8);
    return header;
}

Bytes prefixed(Bytes prefix, const Bytes &body)
{
    prefix.insert(prefix.end(), body.begin(), body.end());
    return prefix;
}

/// Sends a closed frame over the cable and reads the answer; empty if there is none.
Bytes askWired(const Handle &device, const Bytes &frame)
{
    const Bytes report = prefixed({0x00}, frame);
    Bytes reply(65);
    if (hid_send_feature_report(device.get(), report.data(), report.size()) < 0)
        return {};
    const int count = hid_get_feature_report(device.get(), reply.data(), reply.size());
    return count < 1 ? Bytes{} : Bytes(reply.begin() + 1, reply.begin() + count);
}

/// Sends a closed frame over the air and reads the answer as it comes; empty if there is none.
Bytes askWireless(const Handle &device, const Bytes &frame)
{
    const Bytes report = prefixed({0x06, 0x55}, frame);
    Bytes reply(66);
    hid_write(device.get(), report.data(), report.size());
    const int count = hid_read_timeout(device.get(), reply.data(), reply.size(), 100);
    return Bytes(reply.begin(), reply.begin() + std::max(count, 0));
}

} // namespace

class TestVirtualKeyboards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void knowsFinishedFrames_data();
    void knowsFinishedFrames();
    void ignoresBadChecksum();
    void refusesNonsense_data();
    void refusesNonsense();
    void spoilsReplies_data();
    void spoilsReplies();
    void faultHitsItsFrame();
    void unplugAtFrame();

private:
    DevicePtr keyboard;
    Handle command;
};

void TestVirtualKeyboards::init()
{
    keyboard = VirtualBus::instance().plug("wired-500");
    command = open(keyboard, Channel::Command);
    QVERIFY(command);
}

void TestVirtualKeyboards::cleanup()
{
    command.reset();
    QCOMPARE(VirtualBus::instance().openHandles(), 0);
    QCOMPARE(VirtualBus::instance().counters().listsAlive, 0u);
    VirtualBus::instance().reset();
}

void TestVirtualKeyboards::knowsFinishedFrames_data()
{
    QTest::addColumn<Bytes>("frame");
    QTest::newRow("identity") << Bytes{0x8F, 0, 0, 0, 0, 0, 0, 0x70};
    QTest::newRow("key matrix") << Bytes{0x8A, 0x00, 0xFF, 0, 0, 0, 0, 0x76};
    QTest::newRow("light, checksum one further") << Bytes{0x07, 1, 3, 3, 7, 0xFF, 0xFF, 0xFF, 0xED};
    QTest::newRow("key test") << Bytes{0x1B, 1, 0, 0, 0, 0, 0, 0xE3};
    QTest::newRow("sensor page 2") << Bytes{0xE5, 0xFE, 1, 2, 0, 0, 0, 0x19};
    QTest::newRow("travel") << Bytes{0x65, 0, 0, 0, 1, 0, 0, 0x99, 0x90, 0x01, 0, 0};
    QTest::newRow("music") << Bytes{0x0D, 0, 0, 0, 0, 0, 0, 0xF2, 6, 5, 4};
    QTest::newRow("one key") << Bytes{0x0A, 1, 0, 0, 0, 1, 2, 0xF1, 0, 0, 0x29, 0};
}

void TestVirtualKeyboards::knowsFinishedFrames()
{
    QFETCH(Bytes, frame);
    frame.resize(64);
    QVERIFY(!askWired(command, frame).empty());
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{});
    QCOMPARE(keyboard->frames().front().command(), frame[0]);
    QCOMPARE(keyboard->frames().front().report.size(), std::size_t{65});
}

void TestVirtualKeyboards::ignoresBadChecksum()
{
    Bytes frame = closed({0x06, 9});
    ++frame[7];
    QVERIFY(askWired(command, frame).empty());
    QCOMPARE(keyboard->state().settings.debounce, sim::Settings{}.debounce);
    QCOMPARE(keyboard->frameFaults().badChecksums, 1u);
    QVERIFY(!keyboard->frames().front().frame.checksumOk());
}

void TestVirtualKeyboards::refusesNonsense_data()
{
    QTest::addColumn<Bytes>("header");
    QTest::newRow("profile 4") << Bytes{0x04, 4};
    QTest::newRow("key past the matrix") << Bytes{0x0A, 0, 128, 0, 0, 1, 0};
    QTest::newRow("all keys at once") << Bytes{0x0A, 0, 0xFF, 0, 0, 1, 0};
    QTest::newRow("layer 4") << Bytes{0x0A, 0, 0, 0, 0, 1, 4};
    QTest::newRow("matrix page 8") << Bytes{0x8A, 0, 0xFF, 8, 0};
    QTest::newRow("matrix read without its mark") << Bytes{0x8A, 0, 0, 0, 0};
    QTest::newRow("Fn page 10") << Bytes{0x90, 0, 0, 0xFF, 10};
    QTest::newRow("Fn read with the matrix's shape") << Bytes{0x90, 0, 0xFF, 0, 0};
    QTest::newRow("unknown table") << Bytes{0x65, 0x0B, 0, 0, 1};
    QTest::newRow("write to the sensors") << Bytes{0x65, 0xFE, 0, 0, 1};
    QTest::newRow("macro page that skips one") << Bytes{0x0B, 0, 1, 56, 1};
    QTest::newRow("picture page without its length") << Bytes{0x0C, 0, 0xFF, 0, 0, 0};
    QTest::newRow("rate code 7") << Bytes{0x03, 0, 7};
}

void TestVirtualKeyboards::refusesNonsense()
{
    QFETCH(Bytes, header);
    QCOMPARE(askWired(command, closed(header)).at(0), header.front());
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{.malformed = 1});
}

void TestVirtualKeyboards::spoilsReplies_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<Bytes>("wired");
    QTest::addColumn<Bytes>("wireless");
    const Bytes whole = prefixed({0x86, 2}, Bytes(62));
    QTest::newRow("none") << Fault{} << whole << prefixed({0x06, 0x55}, whole);
    QTest::newRow("lost") << Fault::lost() << Bytes{} << Bytes{};
    QTest::newRow("write refused") << Fault::writeRefused() << Bytes{} << Bytes{};
    QTest::newRow("one byte") << Fault::shortReply(1) << Bytes{0x86} << Bytes{0x06, 0x55, 0x86};
    QTest::newRow("prefix alone") << Fault::shortReply(0) << Bytes{} << Bytes{0x06, 0x55};
    const Bytes wrong = prefixed({0x42, 2}, Bytes(62));
    QTest::newRow("wrong first byte")
        << Fault::wrongFirstByte(0x42) << wrong << prefixed({0x06, 0x55}, wrong);
    QTest::newRow("any bytes") << Fault::reply({1, 2, 3}) << Bytes{1, 2, 3} << Bytes{0x06, 0x55, 1, 2, 3};
}

void TestVirtualKeyboards::spoilsReplies()
{
    QFETCH(Fault, fault);
    const DevicePtr radio = VirtualBus::instance().plug("bluetooth");
    const Handle wireless = open(radio, Channel::Bluetooth);
    keyboard->faultOnCommand(0x86, fault);
    radio->faultOnCommand(0x86, fault);
    const Bytes frame = closed({0x86});
    QTEST(askWired(command, frame), "wired");
    QTEST(askWireless(wireless, frame), "wireless");
    QCOMPARE(askWired(command, frame).size(), std::size_t{64}); // once only
}

void TestVirtualKeyboards::faultHitsItsFrame()
{
    const auto answered = [this](Byte number) { return !askWired(command, closed({number})).empty(); };
    QVERIFY(answered(0x86));
    keyboard->faultAtFrame(1, Fault::lost());
    keyboard->faultOnCommand(0x83, Fault::lost(), 2);
    QVERIFY(answered(0x86));
    QVERIFY(!answered(0x86));
    QVERIFY(answered(0x86));
    QVERIFY(!answered(0x83));
    QVERIFY(!answered(0x83));
    QVERIFY(answered(0x83));
    keyboard->addFault({.times = {}, .fault = Fault::lost()});
    for (int i = 0; i < 5; ++i)
        QVERIFY(!answered(0x86));
    keyboard->clearFaults();
    QVERIFY(answered(0x86));
    QCOMPARE(keyboard->frameCount(), std::size_t{13});
}

void TestVirtualKeyboards::unplugAtFrame()
{
    int hotPlugs = 0;
    VirtualBus::instance().setHotPlugObserver([&hotPlugs] { ++hotPlugs; });
    keyboard->faultAtFrame(1, Fault::unplugged());
    QVERIFY(!askWired(command, closed({0x86})).empty());
    QVERIFY(askWired(command, closed({0x86})).empty());
    QVERIFY(!keyboard->isPlugged());
    QCOMPARE(hotPlugs, 1);
    Bytes buffer(65);
    QCOMPARE(hid_get_feature_report(command.get(), buffer.data(), buffer.size()), -1);
    QCOMPARE(hid_read_timeout(command.get(), buffer.data(), buffer.size(), 1000), -1);
    QCOMPARE(hid_write(command.get(), buffer.data(), buffer.size()), -1);
    QCOMPARE(keyboard->frameCount(), std::size_t{1});
    QCOMPARE(VirtualBus::instance().counters().misuses, 0u);
}

QTEST_GUILESS_MAIN(TestVirtualKeyboards)
#include "tst_virtualkeyboards.moc"
