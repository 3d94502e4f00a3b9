// The firmware model, asked over the wire.

#include "Wire.h"

#include <QtTest>

using namespace std::chrono_literals;
using sim::Channel;
using virtualhid::DevicePtr;
using virtualhid::VirtualBus;
using wire::Byte;
using wire::Bytes;
using wire::part;

Q_DECLARE_METATYPE(Bytes)

class TestSimKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void knowsFinishedFrames_data();
    void knowsFinishedFrames();
    void ignoresBadChecksum();
    void readsBackWhatWasWritten_data();
    void readsBackWhatWasWritten();
    void keepsKeysByProfileAndLayer();
    void startsWithFactoryKeys();
    void keepsMagnetismTables_data();
    void keepsMagnetismTables();
    void keepsMagnetismByProfile();
    void keepsPicture();
    void assemblesMacro();
    void refusesNonsense_data();
    void refusesNonsense();
    void resetsToFactory();
    void showsMusicAndPicture();
    void streamsKeyTest();
    void measuresCalibration();
    void oldFirmwareHasNoMagnetism();
    void answersWireless();
    void receiverFetchesKeyboard_data();
    void receiverFetchesKeyboard();
    void otherFamiliesAnswerProbes();

private:
    Bytes ask(const Bytes &header, const Bytes &payload = {})
    {
        return wire::askWired(command.get(), wire::close(header, payload));
    }

    DevicePtr keyboard;
    wire::Handle command;
};

void TestSimKeyboard::init()
{
    keyboard = VirtualBus::instance().plug("wired-500");
    command = wire::open(keyboard, Channel::Command);
    QVERIFY(command);
}

void TestSimKeyboard::cleanup()
{
    command.reset();
    VirtualBus::instance().reset();
    QCOMPARE(VirtualBus::instance().openHandles(), 0);
}

void TestSimKeyboard::knowsFinishedFrames_data()
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

void TestSimKeyboard::knowsFinishedFrames()
{
    QFETCH(Bytes, frame);
    frame.resize(64);
    QVERIFY(!wire::askWired(command.get(), frame).empty());
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{});
    QCOMPARE(keyboard->frames().front().command(), frame[0]);
    QCOMPARE(keyboard->frames().front().report.size(), std::size_t{65});
}

void TestSimKeyboard::ignoresBadChecksum()
{
    Bytes frame = wire::close({0x06, 9});
    ++frame[7];
    QVERIFY(wire::askWired(command.get(), frame).empty());
    QCOMPARE(keyboard->state().settings.debounce, sim::Settings{}.debounce);
    QCOMPARE(keyboard->frameFaults().badChecksums, 1u);
    QVERIFY(!keyboard->frames().front().frame.checksumOk());
}

void TestSimKeyboard::readsBackWhatWasWritten_data()
{
    QTest::addColumn<Bytes>("write");
    QTest::addColumn<Bytes>("payload");
    QTest::addColumn<Bytes>("read");
    QTest::addColumn<size_t>("from");
    QTest::addColumn<Bytes>("answer");
    const Bytes none;
    QTest::newRow("report rate at 2") << Bytes{0x03, 0, 5} << none << Bytes{0x83} << size_t{2} << Bytes{5};
    QTest::newRow("profile") << Bytes{0x04, 3} << none << Bytes{0x84} << size_t{0} << Bytes{0x84, 3};
    QTest::newRow("light off") << Bytes{0x05, 0, 0} << none << Bytes{0x85} << size_t{0} << Bytes{0x85, 0, 0};
    QTest::newRow("debounce") << Bytes{0x06, 7} << none << Bytes{0x86} << size_t{0} << Bytes{0x86, 7};
    QTest::newRow("light") << Bytes{0x07, 5, 1, 2, 0x27, 9, 8, 7} << none << Bytes{0x87} << size_t{0}
                           << Bytes{0x87, 5, 1, 2, 0x27, 9, 8, 7};
    QTest::newRow("side light") << Bytes{0x08, 4, 1, 2, 8, 9, 8, 7} << none << Bytes{0x88} << size_t{0}
                                << Bytes{0x88, 4, 1, 2, 8, 9, 8, 7};
    QTest::newRow("options with a tail") << Bytes{0x09, 1, 0, 1, 4, 0, 0} << Bytes{0xAA, 0xBB} << Bytes{0x89}
                                         << size_t{0} << Bytes{0x89, 1, 0, 1, 4, 0, 0, 0, 0xAA, 0xBB};
    QTest::newRow("sleep times") << Bytes{0x11} << Bytes{0x2C, 1, 0x58, 2, 8, 7, 0xD0, 1} << Bytes{0x91}
                                 << size_t{8} << Bytes{0x2C, 1, 0x58, 2, 8, 7, 0xD0, 1};
    QTest::newRow("Fn key 14") << Bytes{0x10, 0, 0, 14} << Bytes{3, 0, 0xE9, 0} << Bytes{0x90, 0, 0, 0xFF, 0}
                               << size_t{56} << Bytes{3, 0, 0xE9, 0};
    QTest::newRow("system switch") << Bytes{0x17, 1, 2} << none << Bytes{0x97} << size_t{0}
                                   << Bytes{0x97, 1, 2};
    QTest::newRow("stock number") << Bytes{0x50, 1, 2} << none << Bytes{0xD0} << size_t{0}
                                  << Bytes{0xD0, 1, 2};
}

void TestSimKeyboard::readsBackWhatWasWritten()
{
    QFETCH(Bytes, write);
    QFETCH(Bytes, payload);
    QFETCH(Bytes, read);
    QFETCH(size_t, from);
    QFETCH(Bytes, answer);
    QCOMPARE(ask(write, payload).at(0), write.front());
    const Bytes reply = ask(read);
    QCOMPARE(reply.size(), std::size_t{64});
    QCOMPARE(part(reply, from, answer.size()), answer);
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{});
}

void TestSimKeyboard::keepsKeysByProfileAndLayer()
{
    const sim::KeyEntry entry{9, 2, 3, 0};
    ask({0x0A, 1, 127, 0, 0, 0, 2}, {entry.begin(), entry.end()});
    QVERIFY(keyboard->state().keys.groupOpen());
    ask({0x0A, 1, 0, 0, 0, 1, 3});
    QVERIFY(!keyboard->state().keys.groupOpen());
    const Bytes page = ask({0x8A, 1, 0xFF, 7, 2});
    QCOMPARE(part(page, 60, 4), Bytes({9, 2, 3, 0}));
    QCOMPARE(ask({0x8A, 0, 0xFF, 7, 2}), Bytes(64));
    QCOMPARE(ask({0x8A, 1, 0xFF, 7, 0}), Bytes(64));
    QCOMPARE(keyboard->state().keys.key(1, 2, 127), entry);
}

void TestSimKeyboard::startsWithFactoryKeys()
{
    const Bytes first = ask({0x8A, 3, 0xFF, 0, 0});
    QCOMPARE(part(first, 0, 8), Bytes({0, 0, 0x29, 0, 0, 0, 0x35, 0}));
    const Bytes fifth = ask({0x8A, 3, 0xFF, 4, 0}); // positions 64 to 79
    QCOMPARE(part(fifth, 4, 4), Bytes({0x0A, 1, 0, 0}));
    QCOMPARE(ask({0x8A, 3, 0xFF, 0, 1}), Bytes(64));
    const Bytes fn = ask({0x90, 0, 0, 0xFF, 0});
    QCOMPARE(part(fn, 4, 4), Bytes({0x0A, 2, 0, 0}));
    QCOMPARE(ask({0x90, 0, 0, 0xFF, 9}), Bytes(64));
}

void TestSimKeyboard::keepsMagnetismTables_data()
{
    QTest::addColumn<int>("table");
    QTest::addColumn<size_t>("width");
    for (const auto &[table, width] : {std::pair{0x00, 2},
                                       {0x01, 2},
                                       {0x02, 2},
                                       {0x03, 2},
                                       {0x04, 2},
                                       {0x05, 1},
                                       {0x06, 2},
                                       {0x07, 1},
                                       {0x08, 1},
                                       {0x09, 1},
                                       {0x0A, 4},
                                       {0xFF, 2},
                                       {0xFC, 1},
                                       {0xFB, 1}})
        QTest::addRow("%02X", table) << table << size_t(width);
}

void TestSimKeyboard::keepsMagnetismTables()
{
    QFETCH(int, table);
    QFETCH(size_t, width);
    const Byte number = static_cast<Byte>(table);
    const Bytes value{0x81, 0x42, 0x33, 0x14};
    const Byte lastPage = static_cast<Byte>(width * 2 - 1);
    ask({0x65, number, 0, 0xFF, 0}, {5});
    ask({0x65, number, 0, 127, 1}, value);
    const Bytes first = ask({0xE5, number, 1, 0});
    const Bytes last = ask({0xE5, number, 1, lastPage});
    Bytes five(width);
    five[0] = 5;
    QCOMPARE(part(first, 0, width), five);
    QCOMPARE(part(last, 64 - 2 * width, width), five);
    QCOMPARE(part(last, 64 - width, width), part(value, 0, width));
    QCOMPARE(keyboard->state().active().magnetism.value(number, 127), 0x14334281u);
    QVERIFY(!keyboard->state().active().magnetism.groupOpen());
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{});
    ask({0xE5, number, 1, static_cast<Byte>(lastPage + 1)});
    QCOMPARE(keyboard->frameFaults().malformed, 1u);
}

void TestSimKeyboard::keepsMagnetismByProfile()
{
    ask({0x04, 2});
    ask({0x65, 0x00, 0, 0, 1}, {200});
    ask({0x04, 0});
    QCOMPARE(ask({0xE5, 0x00, 1, 0}).at(0), Byte{400 & 0xFF});
    ask({0x04, 2});
    QCOMPARE(ask({0xE5, 0x00, 1, 0}).at(0), Byte{200});
}

void TestSimKeyboard::keepsPicture()
{
    Bytes map(392);
    std::iota(map.begin(), map.end(), Byte{1});
    for (Byte page = 0; page < 7; ++page) {
        ask({0x0C, 2, 0xFF, page, 56, Byte{page == 6}}, part(map, std::size_t{page} * 56, 56));
    }
    Bytes back;
    for (Byte page = 0; page < 6; ++page)
        back = wire::prefixed(back, ask({0x8C, 2, 0xFF, page}));
    QCOMPARE(back, part(map, 0, 384));
    QCOMPARE(keyboard->state().pictures.completeWrites(), 1u);
    QCOMPARE(keyboard->state().pictures.colour(2, 127), (sim::Colour{map[381], map[382], map[383]}));
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{});
}

void TestSimKeyboard::assemblesMacro()
{
    Bytes blob(112, 0x11);
    blob[0] = 0x2C;
    blob[1] = 0x01;
    ask({0x0B, 3, 0, 56, 0}, part(blob, 0, 56));
    QVERIFY(!keyboard->state().macros.find(3)->complete);
    ask({0x0B, 3, 1, 56, 1}, part(blob, 56, 56));
    const sim::KeyboardState state = keyboard->state();
    QVERIFY(state.macros.find(3)->complete);
    QCOMPARE(state.macros.find(3)->blob, blob);
    QCOMPARE(state.macros.find(3)->repeat(), std::uint16_t{300});
    QCOMPARE(state.macros.find(3)->events().size(), std::size_t{110});
    QCOMPARE(ask({0x8B, 3, 1}), wire::prefixed(Bytes(48, 0x11), Bytes(16)));
    QVERIFY(!state.macros.find(4));
}

void TestSimKeyboard::refusesNonsense_data()
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

void TestSimKeyboard::refusesNonsense()
{
    QFETCH(Bytes, header);
    QCOMPARE(ask(header).at(0), header.front());
    QCOMPARE(keyboard->frameFaults(), sim::FrameFaults{.malformed = 1});
}

void TestSimKeyboard::resetsToFactory()
{
    ask({0x04, 1});
    ask({0x06, 9});
    ask({0x65, 0x00, 0, 0xFF, 1}, {1});
    ask({0x0A, 1, 0, 0, 0, 1, 0});
    ask({0x01});
    const sim::KeyboardState state = keyboard->state();
    QCOMPARE(state.factoryResets, 1u);
    QCOMPARE(state.settings.debounce, sim::Settings{}.debounce);
    QCOMPARE(state.keys.key(1, 0, 0), (sim::KeyEntry{0, 0, 0x29, 0}));
    QCOMPARE(state.profiles[1].magnetism.value(0x00, 0), 400u);
    QCOMPARE(state.profile, Byte{0});
}

void TestSimKeyboard::showsMusicAndPicture()
{
    ask({0x0D}, Bytes(22, 6));
    QCOMPARE(keyboard->light().music.front(), Byte{0}); // another effect is on
    ask({0x07, 22, 2, 4, 7});
    QCOMPARE(keyboard->light().music.back(), Byte{6});
    keyboard->edit([](sim::KeyboardState &state) { state.pictures.setColour(3, 5, {1, 2, 3}); });
    ask({0x07, 13, 2, 4, 0x30});
    QCOMPARE(keyboard->light().picture[5], (sim::Colour{1, 2, 3}));
    ask({0x05, 0, 0});
    QVERIFY(!keyboard->light().on);
    QCOMPARE(keyboard->state().active().lighting.keys.of(22).option, Byte{7}); // each effect keeps its own
}

void TestSimKeyboard::streamsKeyTest()
{
    const wire::Handle input = wire::open(keyboard, Channel::KeyTest);
    hid_set_nonblocking(input.get(), 1);
    Bytes report(64);
    keyboard->press(0, 720, 0ms, 1000ms);
    QCOMPARE(hid_read(input.get(), report.data(), report.size()), 0); // not asked for
    ask({0x1B, 1});
    QVERIFY(keyboard->keyTestRunning());
    QCOMPARE(hid_read_timeout(input.get(), report.data(), report.size(), 1000), 64);
    QCOMPARE(part(report, 0, 4), Bytes({0x05, 0x1B, 0xD0, 0x02}));
    QCOMPARE(hid_read(input.get(), report.data(), report.size()), 0); // the finger rests

    keyboard->moveFinger(0, {{100ms, 0}});
    int last = 720;
    int samples = 0;
    for (; last > 0; ++samples) {
        QCOMPARE(hid_read_timeout(input.get(), report.data(), report.size(), 1000), 64);
        const int depth = report[2] + 256 * report[3];
        QVERIFY(depth < last);
        last = depth;
    }
    QVERIFY(samples > 1); // on its way up
    ask({0x1B, 0});
    keyboard->press(0);
    QCOMPARE(hid_read_timeout(input.get(), report.data(), report.size(), 100), 0);
}

void TestSimKeyboard::measuresCalibration()
{
    const auto reading = [this](int position) {
        const Bytes page = ask({0xE5, 0xFE, 1, static_cast<Byte>(position / 32)});
        const std::size_t place = static_cast<std::size_t>(position % 32) * 2;
        return page[place] + 256 * page[place + 1];
    };
    keyboard->moveFinger(7, {{0ms, 400}});
    QCOMPARE(reading(7), 400); // live
    keyboard->liftFingers();
    QCOMPARE(reading(7), 0);
    ask({0x1E, 1});
    QVERIFY(keyboard->calibrating());
    QCOMPARE(reading(33), 0);
    keyboard->press(33, 720, 5ms, 5ms);
    keyboard->press(92, 720, 5ms, 5ms);
    QTest::qWait(30);
    QCOMPARE(reading(33), 720); // what was reached, though the key is up again
    QCOMPARE(reading(92), 80);  // the knob's sensor has a smaller range
    ask({0x1E, 0});
    QCOMPARE(reading(33), 0);
}

void TestSimKeyboard::oldFirmwareHasNoMagnetism()
{
    const DevicePtr old = VirtualBus::instance().plug("wired-2ff");
    const wire::Handle handle = wire::open(old, Channel::Command);
    const Bytes identity = wire::askWired(handle.get(), wire::close({0x8F}));
    QCOMPARE(part(identity, 0, 9), Bytes({0x8F, 0x09, 0x07, 0, 0, 0, 0, 0xFF, 0x02}));
    wire::askWired(handle.get(), wire::close({0xE5, 0, 1, 0}));
    QCOMPARE(old->frameFaults().unknown, 1u);
}

void TestSimKeyboard::answersWireless()
{
    const DevicePtr radio = VirtualBus::instance().plug("bluetooth");
    const wire::Handle handle = wire::open(radio, Channel::Bluetooth);
    wire::sendWireless(handle.get(), wire::close({0x8F}));
    const Bytes identity = wire::readWireless(handle.get());
    QCOMPARE(identity.size(), std::size_t{66});
    QCOMPARE(part(identity, 0, 7), Bytes({0x06, 0x55, 0x8F, 0xF7, 0x0A, 0, 0}));

    radio->faultAtFrame(0, virtualhid::Fault::notice());
    wire::sendWireless(handle.get(), wire::close({0x86}));
    QCOMPARE(wire::readWireless(handle.get()).at(1), Byte{0x77});
    QCOMPARE(wire::readWireless(handle.get()).at(2), Byte{0x86});
    QVERIFY(wire::readWireless(handle.get(), 10).empty());

    const Bytes battery = wire::askWired(handle.get(), wire::close({0xF7}));
    QCOMPARE(part(battery, 0, 6), Bytes({0, 80, 0, 0, 0, 1}));
}

void TestSimKeyboard::receiverFetchesKeyboard_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<Bytes>("id");
    QTest::newRow("paired") << QStringLiteral("receiver") << Bytes{0xC3, 0x0E, 0, 0};
    QTest::newRow("nothing paired") << QStringLiteral("receiver-unpaired") << Bytes{0, 0, 0, 0};
}

void TestSimKeyboard::receiverFetchesKeyboard()
{
    QFETCH(QString, model);
    QFETCH(Bytes, id);
    const bool paired = id.front() != 0;
    const DevicePtr receiver = VirtualBus::instance().plug(model.toStdString(), {.battery = 55});
    const wire::Handle handle = wire::open(receiver, Channel::Command);
    const auto askReceiver = [&handle](const Bytes &header) {
        return wire::askWired(handle.get(), wire::close(header));
    };
    receiver->setReceiver({.paired = paired, .pollsUntilOnline = 1, .pollsUntilAnswered = 1});

    for (int pass = 0; pass < 2; ++pass) {
        const Bytes own = askReceiver({0x8F});
        QVERIFY(sim::littleEndian(own, 1, 4) > 0x1000);
        QCOMPARE(sim::littleEndian(own, 7, 2), paired ? 0x308u : 0x100u); // the version is the keyboard's
        askReceiver({0xF6, 0x0A});
        QCOMPARE(askReceiver({0xF7}).at(5), Byte{0});
        QCOMPARE(askReceiver({0xF7}).at(5), Byte{paired});
        askReceiver({0x8F});
        QCOMPARE(askReceiver({0xF7}).at(0), Byte{1});
        const Bytes status = askReceiver({0xF7});
        QCOMPARE(status[0], Byte{0});
        QCOMPARE(status[1], paired ? Byte{55} : Byte{0});
        const Bytes fetched = askReceiver({0xFC});
        QCOMPARE(part(fetched, 1, 4), id);
    }
    QCOMPARE(receiver->frameFaults(), sim::FrameFaults{});
}

void TestSimKeyboard::otherFamiliesAnswerProbes()
{
    VirtualBus &bus = VirtualBus::instance();
    const wire::Handle cloud = wire::open(bus.plug("cloud"), Channel::Command);
    QCOMPARE(sim::littleEndian(wire::askWired(cloud.get(), wire::close({0x8F})), 1, 4), 0x222u);
    const wire::Handle screen = wire::open(bus.plug("hitscreen"), Channel::HitScreen);
    QCOMPARE(sim::littleEndian(wire::askWired(screen.get(), wire::close({0x8F})), 1, 4), 0x444u);

    const wire::Handle ws = wire::open(bus.plug("ws", {.battery = 33}), Channel::Ws);
    const auto askWs = [&ws](const Bytes &request) {
        Bytes reply(16);
        hid_write(ws.get(), request.data(), request.size());
        reply.resize(static_cast<std::size_t>(hid_read_timeout(ws.get(), reply.data(), reply.size(), 50)));
        return reply;
    };
    const Bytes identity = askWs({0x04, 0, 0, 0x30, 0x06, 0, 0, 0});
    QCOMPARE(Bytes({identity.at(3), identity.at(4), identity.at(11)}), Bytes({0x30, 0x06, 0x51}));
    QCOMPARE(askWs({0x04, 0, 0, 0x1A, 0x06, 0, 0, 0}).at(8), Byte{33});

    const wire::Handle by = wire::open(bus.plug("by"), Channel::By);
    Bytes report{0x09, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
    report.resize(64);
    report[63] = 0x6C;
    hid_write(by.get(), report.data(), report.size());
    QCOMPARE(hid_read_timeout(by.get(), report.data(), report.size(), 50), 64);
    QCOMPARE(part(report, 7, 6), Bytes({0, 0, 0, 0x12, 0x34, 0x56}));
}

QTEST_GUILESS_MAIN(TestSimKeyboard)

#include "tst_simkeyboard.moc"
