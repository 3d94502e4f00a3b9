#include "ConnectedKeyboard.h"

#include <array>
#include <memory>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

namespace {

constexpr int MusicEffect = 22;
constexpr int PatienceMs = 10000;

using Levels = std::array<sim::Byte, sim::MusicLevels>;

Levels alternating(sim::Byte left, sim::Byte right)
{
    Levels levels{};
    for (size_t i = 0; i < levels.size(); ++i)
        levels[i] = i % 2 == 0 ? left : right;
    return levels;
}

/// What pactl says to a command; empty if it fails.
QByteArray pactl(const QStringList &command)
{
    QProcess process;
    process.start(QStringLiteral("pactl"), command);
    process.waitForFinished();
    return process.exitCode() == 0 ? process.readAllStandardOutput().trimmed() : QByteArray();
}

/// Loads a module of the server; its number.
QByteArray load(const QStringList &module)
{
    return pactl(QStringList{QStringLiteral("load-module")} + module);
}

/// An output that nobody hears.
QByteArray addOutput(const char *name, int rate = 48000)
{
    return load({QStringLiteral("module-null-sink"), QStringLiteral("sink_name=") + QLatin1String(name),
                 QStringLiteral("rate=%1").arg(rate)});
}

/// Chooses the output or input that programs use, and waits until that is done.
bool setDefault(const QString &kind, const char *name)
{
    return QTest::qWaitFor(
        [kind, name] {
            pactl({QStringLiteral("set-default-") + kind, QLatin1String(name)});
            return pactl({QStringLiteral("get-default-") + kind}) == name;
        },
        PatienceMs);
}

/// A sound server that this test alone talks to; it ends with the object.
class SoundServer
{
public:
    SoundServer()
    {
        qputenv("PULSE_SERVER", "unix:" + folder.path().toUtf8() + "/pulse/native");
        process.start(QStringLiteral(SOUND_SERVER),
                      {folder.path(), qEnvironmentVariable("ORBE_SOUND_SERVER")});
        isReady = process.waitForReadyRead(PatienceMs) && process.readAll() == "ready\n";
    }

    ~SoundServer()
    {
        process.closeWriteChannel();
        process.waitForFinished();
    }

    bool isReady = false;

private:
    QTemporaryDir folder;
    QProcess process;
};

/// A square wave of 20 Hz, 3/5 on the left and 19/20 on the right, played until the object goes.
class Tone
{
public:
    explicit Tone(const char *output, int rate = 48000)
    {
        const int halfWave = rate / 40;
        std::vector<float> samples;
        for (int frame = 0; frame < 8 * rate; ++frame) {
            const float sign = frame / halfWave % 2 ? -1.0F : 1.0F;
            samples.insert(samples.end(), {sign * 0.6F, sign * 0.95F});
        }
        player.start(QStringLiteral("pacat"), {QStringLiteral("--raw"), QStringLiteral("--format=float32le"),
                                               QStringLiteral("--rate=%1").arg(rate),
                                               QStringLiteral("--device"), QLatin1String(output)});
        player.write(bytesOf(samples));
    }

    ~Tone()
    {
        player.kill();
        player.waitForFinished();
    }

private:
    QProcess player;
};

} // namespace

/// What a sound server plays, seen at a keyboard whose music effect is on.
class TestLoopback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lightFollowsTheOutput_data();
    void lightFollowsTheOutput();
    void followsTheOutputNeverAMicrophone();
    void withoutSound();
    void serverDies();
};

namespace {

bool startMusic(ConnectedKeyboard &connected)
{
    if (!connected.readAll())
        return false;
    connected.connection.DoSetLedEffect(MusicEffect, 0);
    return QTest::qWaitFor([&connected] { return connected.keyboard->state().music.reports > 0; });
}

Levels levels(const ConnectedKeyboard &connected)
{
    return connected.keyboard->state().music.levels;
}

/// Whether the light stays dark for three more rounds.
bool staysDark(const ConnectedKeyboard &connected)
{
    const unsigned until = connected.keyboard->state().music.reports + 30;
    bool dark = true;
    const bool came = QTest::qWaitFor([&connected, &dark, until] {
        dark = dark && levels(connected) == Levels{};
        return connected.keyboard->state().music.reports >= until;
    });
    return came && dark;
}

} // namespace

void TestLoopback::lightFollowsTheOutput_data()
{
    QTest::addColumn<int>("rate");
    for (const int rate : {8000, 48000, 192000})
        QTest::addRow("%d Hz", rate) << rate;
}

void TestLoopback::lightFollowsTheOutput()
{
    QFETCH(int, rate);
    const SoundServer server;
    QVERIFY(server.isReady);
    QVERIFY(!addOutput("speakers", rate).isEmpty());
    QVERIFY(setDefault(QStringLiteral("sink"), "speakers"));
    ConnectedKeyboard connected("wired-2ff");
    QVERIFY(startMusic(connected));
    QVERIFY(staysDark(connected));
    {
        const Tone tone("speakers", rate);
        QTRY_COMPARE_WITH_TIMEOUT(levels(connected), alternating(3, 5), PatienceMs);
    }
    QTRY_COMPARE_WITH_TIMEOUT(levels(connected), Levels{}, PatienceMs);
}

void TestLoopback::followsTheOutputNeverAMicrophone()
{
    const SoundServer server;
    QVERIFY(server.isReady);
    const QByteArray speakers = addOutput("speakers");
    QVERIFY(!speakers.isEmpty());
    QVERIFY(!addOutput("headset").isEmpty());
    QVERIFY(!addOutput("voice").isEmpty());
    QVERIFY(!load({QStringLiteral("module-remap-source"), QStringLiteral("master=voice.monitor"),
                   QStringLiteral("source_name=microphone")})
                 .isEmpty());
    QVERIFY(setDefault(QStringLiteral("sink"), "speakers"));
    QVERIFY(setDefault(QStringLiteral("source"), "microphone"));
    ConnectedKeyboard connected("wired-2ff");
    const Tone voice("voice");
    QVERIFY(startMusic(connected));
    QVERIFY(staysDark(connected));

    QVERIFY(setDefault(QStringLiteral("sink"), "headset"));
    pactl({QStringLiteral("unload-module"), QString::fromLatin1(speakers)});
    QVERIFY(staysDark(connected));
    const Tone music("headset");
    QTRY_COMPARE_WITH_TIMEOUT(levels(connected), alternating(3, 5), PatienceMs);
}

void TestLoopback::withoutSound()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent/sound-server");
    QTest::ignoreMessage(QtCriticalMsg, "ma_device_init ERROR --------");
    ConnectedKeyboard connected("wired-2ff");
    QVERIFY(startMusic(connected));
    QVERIFY(staysDark(connected));
}

void TestLoopback::serverDies()
{
    auto server = std::make_unique<SoundServer>();
    QVERIFY(server->isReady);
    QVERIFY(!addOutput("speakers").isEmpty());
    QVERIFY(setDefault(QStringLiteral("sink"), "speakers"));
    auto connected = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(startMusic(*connected));
    server.reset();
    QVERIFY(staysDark(*connected));
    QElapsedTimer closing;
    closing.start();
    connected.reset();
    QVERIFY(closing.elapsed() < 2000);
}

QTEST_MAIN(TestLoopback)
#include "tst_loopback.moc"
