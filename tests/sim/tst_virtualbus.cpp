// hidapi's functions on the virtual bus: what is listed, what can fail, and what several threads may do.

#include "Wire.h"

#include <algorithm>
#include <atomic>
#include <QRandomGenerator>
#include <QtTest>
#include <thread>

using namespace std::chrono_literals;
using sim::Channel;
using virtualhid::DevicePtr;
using virtualhid::Fault;
using virtualhid::VirtualBus;
using wire::Byte;
using wire::Bytes;

Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Bytes)

namespace {

using List = std::unique_ptr<hid_device_info, decltype(&hid_free_enumeration)>;

List enumerate(unsigned short vendor, unsigned short product)
{
    return {hid_enumerate(vendor, product), hid_free_enumeration};
}

int lengthOf(const List &list)
{
    int count = 0;
    for (const hid_device_info *entry = list.get(); entry; entry = entry->next)
        ++count;
    return count;
}

} // namespace

class TestVirtualBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void listsInterfaces();
    void filtersByIds_data();
    void filtersByIds();
    void everyModelOpens();
    void spoilsReplies_data();
    void spoilsReplies();
    void delaysReply();
    void faultHitsItsFrame();
    void opensFail();
    void unplugAtFrame();
    void unplugWakesReader();
    void replugKeepsStateAndPath();
    void closedHandleIsNoticed();
    void everyHandleGetsInput();
    void survivesAnyReport();
    void threadsShareTheBus();
};

void TestVirtualBus::cleanup()
{
    VirtualBus &bus = VirtualBus::instance();
    QCOMPARE(bus.openHandles(), 0);
    QCOMPARE(bus.counters().listsAlive, 0u);
    bus.reset();
}

void TestVirtualBus::listsInterfaces()
{
    const DevicePtr device = VirtualBus::instance().plug("wired-500", {.serial = "A1"});
    const List list = enumerate(0x3151, 0x502F);
    QCOMPARE(lengthOf(list), 3);
    const hid_device_info *entry = list.get();
    const std::pair<int, int> usages[] = {{0x0001, 6}, {0xFFFF, 1}, {0xFFFF, 2}};
    const Channel channels[] = {Channel::BootKeyboard, Channel::KeyTest, Channel::Command};
    for (int i = 0; i < 3; ++i, entry = entry->next) {
        QCOMPARE(std::pair(int{entry->usage_page}, int{entry->usage}), usages[i]);
        QCOMPARE(std::string{entry->path}, device->path(channels[i]));
        QCOMPARE(entry->interface_number, i);
        QCOMPARE(std::wstring{entry->serial_number}, std::wstring{L"A1"});
        QCOMPARE(std::wstring{entry->product_string}, std::wstring{L"Orbe Magnetic 68"});
    }
    VirtualBus::instance().unplug(device);
    QCOMPARE(lengthOf(enumerate(0, 0)), 0);
}

void TestVirtualBus::filtersByIds_data()
{
    QTest::addColumn<int>("vendor");
    QTest::addColumn<int>("product");
    QTest::addColumn<int>("entries");
    QTest::newRow("all") << 0 << 0 << 7;
    QTest::newRow("vendor") << 0x3151 << 0 << 6;
    QTest::newRow("product") << 0 << 0x0016 << 1;
    QTest::newRow("both") << 0x3151 << 0x5030 << 3;
    QTest::newRow("product of another vendor") << 0x3151 << 0x0016 << 0;
}

void TestVirtualBus::filtersByIds()
{
    QFETCH(int, vendor);
    QFETCH(int, product);
    for (const char *model : {"wired-500", "wired-300", "by"})
        VirtualBus::instance().plug(model);
    QTEST(lengthOf(enumerate(static_cast<unsigned short>(vendor), static_cast<unsigned short>(product))),
          "entries");
}

void TestVirtualBus::everyModelOpens()
{
    for (const sim::Model &model : sim::Models) {
        const DevicePtr device = VirtualBus::instance().plug(model.name);
        for (const Channel channel : model.channelList()) {
            QVERIFY2(wire::open(device, channel), model.name.data());
            QCOMPARE(sim::channelInfo(channel).channel, channel); // the table stands in the enum's order
        }
        QCOMPARE(device->openHandles(), 0);
    }
    QVERIFY_EXCEPTION_THROWN(VirtualBus::instance().plug("no such model"), std::invalid_argument);
}

void TestVirtualBus::spoilsReplies_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<Bytes>("wired");
    QTest::addColumn<Bytes>("wireless");
    const Bytes whole = wire::prefixed({0x86, 2}, Bytes(62));
    QTest::newRow("none") << Fault{} << whole << wire::prefixed({0x06, 0x55}, whole);
    QTest::newRow("lost") << Fault::lost() << Bytes{} << Bytes{};
    QTest::newRow("write refused") << Fault::writeRefused() << Bytes{} << Bytes{};
    QTest::newRow("one byte") << Fault::shortReply(1) << Bytes{0x86} << Bytes{0x06, 0x55, 0x86};
    QTest::newRow("prefix alone") << Fault::shortReply(0) << Bytes{} << Bytes{0x06, 0x55};
    const Bytes wrong = wire::prefixed({0x42, 2}, Bytes(62));
    QTest::newRow("wrong first byte")
        << Fault::wrongFirstByte(0x42) << wrong << wire::prefixed({0x06, 0x55}, wrong);
    QTest::newRow("any bytes") << Fault::reply({1, 2, 3}) << Bytes{1, 2, 3} << Bytes{0x06, 0x55, 1, 2, 3};
}

void TestVirtualBus::spoilsReplies()
{
    QFETCH(Fault, fault);
    const DevicePtr cable = VirtualBus::instance().plug("wired-500");
    const DevicePtr radio = VirtualBus::instance().plug("bluetooth");
    const wire::Handle wired = wire::open(cable, Channel::Command);
    const wire::Handle wireless = wire::open(radio, Channel::Bluetooth);
    cable->faultOnCommand(0x86, fault);
    radio->faultOnCommand(0x86, fault);
    const Bytes frame = wire::close({0x86});
    QTEST(wire::askWired(wired.get(), frame), "wired");
    wire::sendWireless(wireless.get(), frame);
    QTEST(wire::readWireless(wireless.get(), 100), "wireless");
    QCOMPARE(wire::askWired(wired.get(), frame).size(), std::size_t{64}); // once only
}

void TestVirtualBus::delaysReply()
{
    const DevicePtr cable = VirtualBus::instance().plug("wired-500");
    const wire::Handle wired = wire::open(cable, Channel::Command);
    cable->faultAtFrame(0, Fault::late(80ms));
    wire::askWired(wired.get(), wire::close({0x86}));
    const auto transfers = cable->transfers();
    QCOMPARE(transfers.size(), std::size_t{2});
    QVERIFY(transfers[1].when - transfers[0].when >= 80ms);

    const DevicePtr radio = VirtualBus::instance().plug("bluetooth");
    const wire::Handle wireless = wire::open(radio, Channel::Bluetooth);
    radio->faultAtFrame(0, Fault::late(80ms));
    wire::sendWireless(wireless.get(), wire::close({0x86}));
    QVERIFY(wire::readWireless(wireless.get(), 20).empty());
    QCOMPARE(wire::readWireless(wireless.get(), 1000).size(), std::size_t{66});
}

void TestVirtualBus::faultHitsItsFrame()
{
    const DevicePtr device = VirtualBus::instance().plug("wired-500");
    const wire::Handle handle = wire::open(device, Channel::Command);
    const auto answered = [&handle](Byte command) {
        return !wire::askWired(handle.get(), wire::close({command})).empty();
    };
    QVERIFY(answered(0x86));
    device->faultAtFrame(1, Fault::lost());
    device->faultOnCommand(0x83, Fault::lost(), 2);
    QVERIFY(answered(0x86));
    QVERIFY(!answered(0x86));
    QVERIFY(answered(0x86));
    QVERIFY(!answered(0x83));
    QVERIFY(!answered(0x83));
    QVERIFY(answered(0x83));
    device->addFault({.times = {}, .fault = Fault::lost()});
    for (int i = 0; i < 5; ++i)
        QVERIFY(!answered(0x86));
    device->clearFaults();
    QVERIFY(answered(0x86));
    QCOMPARE(device->frameCount(), std::size_t{13});
}

void TestVirtualBus::opensFail()
{
    const DevicePtr device = VirtualBus::instance().plug("wired-500");
    device->failOpens(1);
    QVERIFY(!wire::open(device, Channel::Command));
    QVERIFY(wire::open(device, Channel::Command));
    device->denyOpens(true);
    QVERIFY(!wire::open(device, Channel::Command));
    QVERIFY(std::wstring{hid_error(nullptr)}.ends_with(L"Permission denied"));
    device->denyOpens(false);
    QVERIFY(!hid_open_path("virtual/nowhere"));
    QVERIFY(std::wstring{hid_error(nullptr)}.ends_with(L"No such file or directory"));
    QCOMPARE(VirtualBus::instance().counters().failedOpens, 3u);
    QCOMPARE(VirtualBus::instance().counters().opens, 1u);
}

void TestVirtualBus::unplugAtFrame()
{
    int hotPlugs = 0;
    const DevicePtr device = VirtualBus::instance().plug("wired-500");
    VirtualBus::instance().setHotPlugObserver([&hotPlugs] { ++hotPlugs; });
    const wire::Handle handle = wire::open(device, Channel::Command);
    device->faultAtFrame(1, Fault::unplugged());
    QVERIFY(!wire::askWired(handle.get(), wire::close({0x86})).empty());
    QVERIFY(wire::askWired(handle.get(), wire::close({0x86})).empty());
    QVERIFY(!device->isPlugged());
    QCOMPARE(hotPlugs, 1);
    Bytes buffer(65);
    QCOMPARE(hid_get_feature_report(handle.get(), buffer.data(), buffer.size()), -1);
    QCOMPARE(hid_read_timeout(handle.get(), buffer.data(), buffer.size(), 1000), -1);
    QCOMPARE(hid_write(handle.get(), buffer.data(), buffer.size()), -1);
    QCOMPARE(device->frameCount(), std::size_t{1});
    QCOMPARE(VirtualBus::instance().counters().misuses, 0u);
}

void TestVirtualBus::unplugWakesReader()
{
    const DevicePtr device = VirtualBus::instance().plug("bluetooth");
    const wire::Handle handle = wire::open(device, Channel::Bluetooth);
    std::atomic<bool> reading = false;
    std::jthread unplugger{[&device, &reading] {
        while (!reading)
            std::this_thread::yield();
        std::this_thread::sleep_for(20ms);
        VirtualBus::instance().unplug(device);
    }};
    Bytes buffer(66);
    reading = true;
    QCOMPARE(hid_read(handle.get(), buffer.data(), buffer.size()), -1); // blocking: only the unplug ends it
}

void TestVirtualBus::replugKeepsStateAndPath()
{
    VirtualBus &bus = VirtualBus::instance();
    const DevicePtr device = bus.plug("wired-500");
    const wire::Handle old = wire::open(device, Channel::Command);
    wire::askWired(old.get(), wire::close({0x06, 9}));
    const std::string path = device->path(Channel::Command);
    bus.unplug(device);
    bus.replug(device);
    QVERIFY(wire::askWired(old.get(), wire::close({0x86})).empty());
    const wire::Handle fresh{hid_open_path(path.c_str())};
    QCOMPARE(wire::askWired(fresh.get(), wire::close({0x86})).at(1), Byte{9});
    QCOMPARE(bus.openHandles(path), 2);
}

void TestVirtualBus::closedHandleIsNoticed()
{
    const DevicePtr device = VirtualBus::instance().plug("wired-500");
    hid_device *handle = hid_open_path(device->path(Channel::Command).c_str());
    hid_close(handle);
    Bytes buffer(65);
    QCOMPARE(hid_get_feature_report(handle, buffer.data(), buffer.size()), -1);
    QCOMPARE(hid_send_feature_report(nullptr, buffer.data(), buffer.size()), -1);
    hid_close(handle);
    hid_close(nullptr); // allowed
    QCOMPARE(VirtualBus::instance().counters().misuses, 3u);
    QVERIFY(wire::open(device, Channel::Command).get() != handle);
}

void TestVirtualBus::everyHandleGetsInput()
{
    const DevicePtr device = VirtualBus::instance().plug("bluetooth");
    const wire::Handle asking = wire::open(device, Channel::Bluetooth);
    const wire::Handle listening = wire::open(device, Channel::Bluetooth);
    const wire::Handle other = wire::open(VirtualBus::instance().plug("bluetooth"), Channel::Bluetooth);
    wire::sendWireless(asking.get(), wire::close({0x86}));
    QCOMPARE(wire::readWireless(asking.get()), wire::readWireless(listening.get()));
    QVERIFY(wire::readWireless(other.get(), 0).empty());
    const wire::Handle late = wire::open(device, Channel::Bluetooth);
    QVERIFY(wire::readWireless(late.get(), 0).empty());
}

void TestVirtualBus::survivesAnyReport()
{
    QRandomGenerator random{20};
    for (const sim::Model &model : sim::Models) {
        const DevicePtr device = VirtualBus::instance().plug(model.name);
        for (const Channel channel : model.channelList()) {
            const wire::Handle handle = wire::open(device, channel);
            for (int i = 0; i < 2000; ++i) {
                // Half of them are well framed, so that they get as far as the commands.
                Bytes header(7);
                Bytes noise(random.bounded(80u));
                std::ranges::generate(header, [&random] { return static_cast<Byte>(random.generate()); });
                std::ranges::generate(noise, [&random] { return static_cast<Byte>(random.generate()); });
                header[0] = i % 4 == 0 ? Byte{0x65} : header[0];
                noise.resize(i % 2 ? noise.size() : std::min<std::size_t>(noise.size(), 56));
                const Bytes prefix = channel == Channel::Bluetooth ? Bytes{0x06, 0x55} : Bytes{0x00};
                const Bytes report = i % 2 ? noise : wire::prefixed(prefix, wire::close(header, noise));
                Bytes reply(80);
                hid_write(handle.get(), report.data(), report.size());
                hid_read_timeout(handle.get(), reply.data(), reply.size(), 0);
                hid_send_feature_report(handle.get(), report.data(), report.size());
                QVERIFY(hid_get_feature_report(handle.get(), reply.data(), reply.size()) <= 65);
            }
        }
    }
}

void TestVirtualBus::threadsShareTheBus()
{
    VirtualBus &bus = VirtualBus::instance();
    const DevicePtr steady = bus.plug("wired-500");
    std::atomic<bool> stop = false;
    std::jthread scanner{[&stop] {
        while (!stop) {
            const List list = enumerate(0, 0);
            for (const hid_device_info *entry = list.get(); entry; entry = entry->next)
                wire::Handle{hid_open_path(entry->path)};
        }
    }};
    std::jthread plugger{[&bus, &stop] {
        while (!stop)
            bus.unplug(bus.plug("bluetooth"));
    }};
    const wire::Handle handle = wire::open(steady, Channel::Command);
    const wire::Handle input = wire::open(steady, Channel::KeyTest);
    wire::askWired(handle.get(), wire::close({0x1B, 1}));
    Bytes report(64);
    for (int i = 0; i < 200; ++i) {
        steady->press(i % 60, 720, 1ms, 1ms);
        QCOMPARE(wire::askWired(handle.get(), wire::close({0x86})).size(), std::size_t{64});
        QVERIFY(hid_read_timeout(input.get(), report.data(), report.size(), 1) >= 0);
    }
    stop = true;
    scanner.join();
    plugger.join();
    QCOMPARE(bus.counters().misuses, 0u);
    QCOMPARE(steady->frameFaults(), sim::FrameFaults{});
}

QTEST_GUILESS_MAIN(TestVirtualBus)

#include "tst_virtualbus.moc"
