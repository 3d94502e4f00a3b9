#include "ConnectedKeyboard.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
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

// Programs are started by popen: the thread sanitizer takes QProcess's way, which lends them this process's
// memory, for the end of this process's threads.

/// What a shell command says; null if it fails.
QByteArray run(const QByteArray &command)
{
    std::FILE *pipe = popen(command.constData(), "re");
    QFile file;
    file.open(pipe, QIODevice::ReadOnly);
    const QByteArray output = file.readAll().trimmed();
    return pclose(pipe) == 0 ? output : QByteArray();
}

/// An output that nobody hears; the number of its module.
QByteArray addOutput(const QByteArray &name, int rate = 48000)
{
    return run("timeout 5 pactl load-module module-null-sink sink_name=" + name +
               " rate=" + QByteArray::number(rate));
}

/// Chooses the "sink" or "source" that programs use, and waits until that is done.
bool setDefault(const QByteArray &kind, const QByteArray &name)
{
    const auto isDone = [kind, name] {
        run("timeout 5 pactl set-default-" + kind + ' ' + name);
        return run("timeout 5 pactl get-default-" + kind) == name;
    };
    return QTest::qWaitFor(isDone, PatienceMs);
}

/// A sound server that this test alone talks to; it ends with the object.
class SoundServer
{
public:
    SoundServer()
    {
        const QByteArray path = folder.path().toUtf8();
        qputenv("PULSE_SERVER", "unix:" + path + "/pulse/native");
        const QByteArray kind = qgetenv("ORBE_SOUND_SERVER");
        process = popen(("exec " SOUND_SERVER " " + path + ' ' + kind).constData(), "we");
        isReady =
            QTest::qWaitFor([] { return !run("timeout 2 pactl info 2>/dev/null").isNull(); }, PatienceMs);
    }

    ~SoundServer() { pclose(process); }
    Q_DISABLE_COPY_MOVE(SoundServer)

    bool isReady = false;

private:
    QTemporaryDir folder;
    std::FILE *process;
};

/// A square wave of 20 Hz, 3/5 on the left and 19/20 on the right, played until the object goes.
class Tone
{
public:
    explicit Tone(const QByteArray &output, int rate = 48000)
    {
        const int halfWave = rate / 40;
        std::vector<float> samples;
        for (int frame = 0; frame < 8 * rate; ++frame) {
            const float sign = frame / halfWave % 2 ? -1.0F : 1.0F;
            samples.insert(samples.end(), {sign * 0.6F, sign * 0.95F});
        }
        sound.open();
        sound.write(bytesOf(samples));
        sound.flush();
        player = run("pacat --raw --format=float32le --rate=" + QByteArray::number(rate) +
                     " --device=" + output + ' ' + sound.fileName().toUtf8() + " >/dev/null 2>&1 & echo $!");
    }

    ~Tone() { run("kill " + player + " 2>/dev/null"); }
    Q_DISABLE_COPY_MOVE(Tone)

private:
    QTemporaryFile sound;
    QByteArray player;
};

} // namespace

/// What a sound server plays, seen at a keyboard whose music effect is on.
class TestLoopback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lightFollowsTheOutput();
    void followsTheOutputNeverAMicrophone();
    void withoutSound();
    void serverDies();
    void serverHangs();
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

void TestLoopback::lightFollowsTheOutput()
{
    constexpr int rate = 8000; // not what the capture asks for
    const SoundServer server;
    QVERIFY(server.isReady);
    QVERIFY(!addOutput("speakers", rate).isEmpty());
    QVERIFY(setDefault("sink", "speakers"));
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
    QVERIFY(
        !run("timeout 5 pactl load-module module-remap-source master=voice.monitor source_name=microphone")
             .isEmpty());
    QVERIFY(setDefault("sink", "speakers"));
    QVERIFY(setDefault("source", "microphone"));
    ConnectedKeyboard connected("wired-2ff");
    const Tone voice("voice");
    QVERIFY(startMusic(connected));
    QVERIFY(staysDark(connected));

    QVERIFY(setDefault("sink", "headset"));
    run("timeout 5 pactl unload-module " + speakers);
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
    QVERIFY(setDefault("sink", "speakers"));
    auto connected = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(startMusic(*connected));
    server.reset();
    QVERIFY(staysDark(*connected));
    QElapsedTimer closing;
    closing.start();
    connected.reset();
    QVERIFY(closing.elapsed() < 2000);
}

void TestLoopback::serverHangs()
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("socket")).toUtf8();
    sockaddr_un address{AF_UNIX, {}};
    std::copy(path.begin(), path.end(), address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QCOMPARE(bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    QCOMPARE(listen(socket, 1), 0);
    qputenv("PULSE_SERVER", "unix:" + path);

    QElapsedTimer time;
    time.start();
    auto connection = std::make_unique<DialogDeviceConnect>();
    QTest::qWait(100); // the capture is now waiting for the server
    connection.reset();
    QVERIFY(time.elapsed() < 2000);
    close(socket);
}

QTEST_MAIN(TestLoopback)
#include "tst_loopback.moc"
