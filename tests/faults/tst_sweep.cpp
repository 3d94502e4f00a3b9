#include "CompressedTime.h"
#include "ConnectedKeyboard.h"

#include <chrono>
#include <QApplication>
#include <QColor>
#include <QEventLoop>
#include <QTest>
#include <random>

using virtualhid::Fault;
using virtualhid::VirtualBus;
using namespace std::chrono_literals;

namespace {

constexpr auto Quiet = 1500ms;         ///< longer than any pause between two frames
constexpr auto TimeOutOfPlug = 1000ms; ///< long enough to be noticed
constexpr auto LongestRead = 60s;
constexpr size_t FewFrames = 3;

/// How far apart the frames are that meet a fault: each one in a whole sweep, which takes minutes.
size_t stride(size_t frames)
{
    return qEnvironmentVariableIsSet("ORBE_WHOLE_SWEEP") ? 1 : frames / FewFrames + 1;
}

void pass(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// A keyboard that can be pulled and plugged as a user does, the hub being told of it by the system.
class Desk : public ConnectedKeyboard
{
public:
    explicit Desk(const QByteArray &model)
        : ConnectedKeyboard(model)
    {
        VirtualBus::instance().setHotPlugObserver([this] { connection.deviceChanged(); });
        keyboard->edit(&Desk::personalise);
    }

    void pull()
    {
        VirtualBus::instance().unplug(keyboard);
        pass(TimeOutOfPlug);
    }
    void plugIn() { VirtualBus::instance().replug(keyboard); }

    /// Waits until a read that began since the last call of expectRead() is through.
    void expectRead()
    {
        isRead = isBegun = false;
        began = QObject::connect(&connection, &DialogDeviceConnect::onReadAll, &connection,
                                 [this] { isBegun = true; });
        done = QObject::connect(&connection, &DialogDeviceConnect::onReadDone, &connection,
                                [this] { isRead = isBegun && !connection.isReadingAll(); });
    }
    bool waitForRead()
    {
        const bool inTime =
            QTest::qWaitFor([this] { return isRead; }, int(std::chrono::milliseconds(LongestRead).count()));
        QObject::disconnect(began);
        QObject::disconnect(done);
        return inTime;
    }
    void waitForQuiet() const
    {
        size_t before = 0;
        do {
            before = keyboard->frameCount();
            pass(Quiet);
        } while (keyboard->frameCount() != before);
    }

    QString difference() const;

private:
    static void personalise(sim::KeyboardState &state);

    QMetaObject::Connection began;
    QMetaObject::Connection done;
    bool isBegun = false;
    bool isRead = false;
};

/// No two values alike, so that a page in the wrong place shows.
void Desk::personalise(sim::KeyboardState &state)
{
    std::mt19937 random(1);
    state.profile = 1;
    for (int position = 0; position < sim::KeyMatrices::FnPositions; ++position) {
        const auto entry = [&random] {
            const auto number = random();
            return sim::KeyEntry{9, sim::Byte(number), sim::Byte(number >> 8), sim::Byte(number >> 16)};
        };
        state.keys.setFn(position, entry());
        for (int layer = 0; layer < sim::KeyMatrices::Layers * sim::KeyMatrices::Profiles; ++layer) {
            if (position < sim::KeyMatrices::Positions)
                state.keys.setKey(layer / sim::KeyMatrices::Layers, layer % sim::KeyMatrices::Layers,
                                  position, entry());
        }
        for (const sim::MagnetTable &table : sim::MagnetTables) {
            if (table.number != sim::SensorTable && position < sim::KeyMatrices::Positions)
                state.active().magnetism.setValue(table.number, position, sim::Byte(random()));
        }
    }
    state.settings.debounce = 7;
    state.settings.sleepTimes = {60, 120, 600, 65535};
    state.active().lighting.keys.show({5, 1, 3, 8, 10, 20, 30});
}

/// What the cache has otherwise than the keyboard; empty if it is whole and equal.
QString Desk::difference() const
{
    const DeviceCache &cache = connection.deviceCache();
    const sim::KeyboardState state = keyboard->state();
    const auto lightOf = [](sim::Byte command, const sim::LedParams &light) {
        return bytesOf(sim::Page{command, light.effect, light.speed, light.brightness, light.option,
                                 light.red, light.green, light.blue});
    };
    QStringList wrong;
    const auto expect = [&wrong](bool isEqual, const QString &what) {
        if (!isEqual)
            wrong.append(what);
    };
    QByteArray fn;
    for (int position = 0; position < sim::KeyMatrices::FnPositions; ++position)
        fn += bytesOf(state.keys.fn(position));
    for (int slot = 0; slot < DeviceCache::Slots; ++slot) {
        QByteArray keys;
        for (int position = 0; slot < sim::KeyMatrices::Layers && position < sim::KeyMatrices::Positions;
             ++position)
            keys += bytesOf(state.keys.key(state.profile, slot, position));
        expect(cache.keyMatrix[size_t(slot)] == keys, QStringLiteral("keys of layer %1").arg(slot));
        expect(cache.fnMatrix[size_t(slot)] == (slot == 0 ? fn : QByteArray()),
               QStringLiteral("Fn %1").arg(slot));
    }
    for (size_t i = 0; i < sim::MagnetTables.size(); ++i) {
        const sim::MagnetTable &table = sim::MagnetTables[i];
        QByteArray values;
        for (int position = 0; position < sim::KeyMatrices::Positions; ++position) {
            for (int byte = 0; byte < table.width; ++byte)
                values += char(state.active().magnetism.value(table.number, position) >> (8 * byte));
        }
        expect(cache.magnetTables[i] == values, QStringLiteral("table %1").arg(table.number, 0, 16));
    }
    const sim::Lighting &lighting = state.active().lighting;
    expect(cache.ledParams[lighting.keys.current().effect] == lightOf(0x87, lighting.keys.current()),
           QStringLiteral("light"));
    expect(cache.sideLedParams[lighting.side.current().effect] == lightOf(0x88, lighting.side.current()),
           QStringLiteral("side light"));
    sim::Page options = state.settings.options;
    options[0] = 0x89;
    expect(cache.kbOptions == bytesOf(options), QStringLiteral("options"));
    expect(cache.deviceInfo ==
               bytesOf(sim::identityPage(keyboard->model().deviceId, keyboard->model().firmware)),
           QStringLiteral("identity"));
    expect(cache.sleepTimes == state.settings.sleepTimes, QStringLiteral("sleep times"));
    expect(cache.reportRate == state.settings.reportRate, QStringLiteral("report rate"));
    expect(cache.debounce == state.settings.debounce, QStringLiteral("debounce"));
    expect(cache.currentProfile == state.profile, QStringLiteral("profile"));
    return wrong.join(QStringLiteral(", "));
}

using Connection = DialogDeviceConnect;
using Action = void (*)(Connection &);
constexpr quint8 SomeKeys[] = {0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x0B, 0x0C, 0x0D};
constexpr quint8 OneKey = SomeKeys[0];

void writeSelection(Connection &connection)
{
    const Connection::WriteGroup group(connection);
    for (const quint8 key : SomeKeys)
        connection.DoSetKey(key, {{9, 0, 0xE9, 0}}, 2, key == std::end(SomeKeys)[-1]);
    connection.DoSetFn(OneKey, {{3, 0, 0xE9, 0}});
}

void writeTravels(Connection &connection)
{
    const Connection::WriteGroup group(connection);
    for (const quint8 key : SomeKeys)
        connection.DoSetMagnetism(magnettable::Actuation, key, 300, 0);
    connection.DoSetMagnetism(magnettable::SwitchType, 0xFF, 4, 0);
    connection.DoSetKeyFlag(OneKey, true);
}

void writeDynamicKeystroke(Connection &connection)
{
    const Connection::WriteGroup group(connection);
    for (quint8 layer = 0; layer < 4; ++layer)
        connection.DoSetKey(OneKey, {{0, 0, quint8(0x10 + layer), 0}}, layer, layer == 3);
    connection.DoSetMagnetism(magnettable::Mode, OneKey, KeyMode::DynamicKeystroke, 0);
    connection.DoSetMagnetism(magnettable::DksTravel, OneKey, 250, 0);
    connection.DoSetMagnetism(magnettable::DksActions, OneKey, 0x12345678, 1);
}

void changeLight(Connection &connection)
{
    connection.DoSetLedEffect(4, 1);
    connection.DoSetLedSpeed(3);
    connection.DoSetLedBrightness(2);
    connection.DoSetLedColor(QColor(1, 2, 3), 8);
    connection.DoSetSideLed(QByteArray::fromHex("00030201080A0B0C0000"));
    connection.DoSetLedOnOff(false);
}

void changeSettings(Connection &connection)
{
    connection.DoSetReportRate(1);
    connection.DoSetDebounce(9);
    connection.DoSetSleepTime(5, 0);
    connection.DoSetKbOption(2, 1);
}

void calibrate(Connection &connection)
{
    connection.DoStartCalibration();
    pass(1000ms);
    connection.DoStopCalibration();
}

void testKeys(Connection &connection)
{
    connection.DoStartKeyTest();
    pass(200ms);
    connection.DoStopKeyTest();
}

} // namespace

/// Everything that the hub sends, with something going wrong at each of the frames: afterwards the keyboard
/// is pulled and plugged in again, as its user would do, and the hub knows all of its state.
class TestSweep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyFaultAtAnyFrame_data();
    void anyFaultAtAnyFrame();
};

void TestSweep::anyFaultAtAnyFrame_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<Action>("action"); // none: connecting, with the whole read
    QTest::addColumn<size_t>("leastFrames");
    struct Sequence
    {
        const char *name;
        Action action;
        size_t leastFrames;
    };
    constexpr Sequence Sequences[] = {
        {"read", nullptr, 99},
        {"keys of a selection", writeSelection, 11},
        {"reset of a key", [](Connection &connection) { connection.DoResetKey(OneKey); }, 10},
        {"travels", writeTravels, 12},
        {"dynamic keystroke", writeDynamicKeystroke, 7},
        {"light", changeLight, 6},
        {"picture upload",
         [](Connection &connection) { connection.DoWriteUserPic(2, QByteArray(392, '\x33')); }, 8},
        {"picture download", [](Connection &connection) { connection.DoReadUserPic(2); }, 6},
        {"macro",
         [](Connection &connection) { connection.DoSetMacro(OneKey, 2, 0, 3, QByteArray(230, '\x04')); }, 6},
        {"profile", [](Connection &connection) { connection.DoSetProfile(2); }, 100},
        {"settings", changeSettings, 4},
        {"calibration", calibrate, 9},
        {"key test", testKeys, 2},
        {"factory reset", [](Connection &connection) { connection.DoFactoryReset(); }, 100},
    };
    for (const char *model : {"wired-500", "bluetooth"}) {
        for (const Sequence &sequence : Sequences)
            QTest::addRow("%s, %s", model, sequence.name)
                << QByteArray(model) << sequence.action << sequence.leastFrames;
    }
}

void TestSweep::anyFaultAtAnyFrame()
{
    QFETCH(QByteArray, model);
    QFETCH(Action, action);
    QFETCH(size_t, leastFrames);
    Desk desk(model);
    QVERIFY(desk.readAll());
    QCOMPARE(desk.difference(), QString());
    const auto act = [&desk, action] {
        desk.keyboard->clearLog();
        if (action) {
            action(desk.connection);
        } else {
            desk.pull();
            desk.plugIn();
        }
        desk.waitForQuiet();
        return desk.keyboard->frameCount();
    };
    const size_t frames = act();
    QVERIFY2(frames >= leastFrames, qPrintable(QString::number(frames)));

    const std::pair<const char *, Fault> faults[] = {
        {"unplug", Fault::unplugged()},
        {"lost reply", Fault::lost()},
        {"short reply", Fault::shortReply(10)},
        {"wrong reply", Fault::reply(sim::Bytes(64, 0x84))},
    };
    size_t cases = 0;
    for (const auto &[name, fault] : faults) {
        for (size_t frame = 0; frame < frames; frame += stride(frames), ++cases) {
            if (!action)
                desk.pull();
            desk.keyboard->faultAtFrame(frame, fault);
            act();
            desk.keyboard->clearFaults();
            desk.pull();
            desk.expectRead();
            desk.plugIn();
            const bool isRead = desk.waitForRead();
            const QString difference = desk.difference();
            QVERIFY2(isRead && difference.isEmpty(),
                     qPrintable(QStringLiteral("%1 at frame %2 of %3: %4")
                                    .arg(QLatin1String(name))
                                    .arg(frame)
                                    .arg(frames)
                                    .arg(isRead ? difference : QStringLiteral("never read again"))));
        }
    }
    // What waited goes out on the next connection; pages of a macro without those before them are malformed.
    sim::FrameFaults frameFaults = desk.keyboard->frameFaults();
    frameFaults.malformed = 0;
    QCOMPARE(frameFaults, sim::FrameFaults());
    QCOMPARE(desk.keyboard->openHandles(), model == "bluetooth" ? 1 : 3);
    QCOMPARE(VirtualBus::instance().counters().misuses, 0u);
    qInfo("%zu faults at %zu frames", cases, frames);
}

int main(int argc, char **argv)
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000"); // hours pass in a minute
    compressedtime::begin();
    QApplication application(argc, argv);
    TestSweep test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sweep.moc"
