#include "BandLevels.h"
#include "ConnectedKeyboard.h"
#include "SampleBlock.h"

#include <algorithm>
#include <array>
#include <limits>
#include <QTest>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int MusicEffect = 22;
constexpr quint8 SetMusic = 0x0D;
constexpr int Round = 10;

std::vector<virtualhid::ReceivedFrame> musicFrames(const ConnectedKeyboard &connected)
{
    std::vector<virtualhid::ReceivedFrame> frames = connected.keyboard->frames();
    std::erase_if(frames, [](const auto &frame) { return frame.command() != SetMusic; });
    return frames;
}

} // namespace

/// From captured samples to what the keyboard is sent.
class TestAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("PULSE_SERVER", "unix:/nonexistent/sound-server"); }
    void level_data();
    void level();
    void blocksOfAnyLength_data();
    void blocksOfAnyLength();
    void blocksCrossThreads();
    void reportsComeInRounds();
    void commandsKeepTheirAnswers();
    void silentOverTheAir();
    void keyboardGoes();
};

void TestAudio::level_data()
{
    QTest::addColumn<float>("sample");
    QTest::addColumn<int>("level");
    QTest::newRow("silence") << 0.0F << 0;
    QTest::newRow("below a sixth") << 0.166F << 0;
    QTest::newRow("full scale") << -1.0F << 6;
    QTest::newRow("254 is limited") << 42.4F << 6;
    QTest::newRow("255 is 0") << 42.5F << 0;
    QTest::newRow("258 wraps to 2") << 43.0F << 2;
    QTest::newRow("infinite") << -std::numeric_limits<float>::infinity() << 0;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void TestAudio::level()
{
    QFETCH(float, sample);
    QTEST(int(bandlevels::level(sample)), "level");
}

void TestAudio::blocksOfAnyLength_data()
{
    QTest::addColumn<int>("samples");
    for (const int samples : {0, 2, 10, 22, 960, 961, 40000})
        QTest::addRow("%d samples", samples) << samples;
}

void TestAudio::blocksOfAnyLength()
{
    QFETCH(int, samples);
    SampleBlock block;
    block.store(std::vector(SampleBlock::Length, 0.5F));
    block.store(std::vector(size_t(samples), 1.0F));
    const QByteArray levels = bandlevels::report(block).mid(9, bandlevels::Count);
    const int fresh = std::min(samples, bandlevels::Count);
    QCOMPARE(levels, QByteArray(fresh, 6) + QByteArray(bandlevels::Count - fresh, 3));
    QCOMPARE(block.at(SampleBlock::Length - 1), samples < int(SampleBlock::Length) ? 0.5F : 1.0F);
}

void TestAudio::blocksCrossThreads()
{
    SampleBlock block;
    std::atomic<bool> stop = false;
    std::thread audio([&block, &stop] {
        const std::array blocks{std::vector(SampleBlock::Length, 0.5F), std::vector(size_t(30), -1.0F)};
        for (size_t i = 0; !stop; ++i)
            block.store(blocks[i % blocks.size()]);
    });
    bool good = true;
    for (int i = 0; i < 2000; ++i) {
        const QByteArray levels = bandlevels::report(block).mid(9, bandlevels::Count);
        good = good && std::ranges::all_of(levels, [](char l) { return l == 0 || l == 3 || l == 6; });
        block.silence();
    }
    stop = true;
    audio.join();
    QVERIFY(good);
}

void TestAudio::reportsComeInRounds()
{
    ConnectedKeyboard connected("wired-2ff");
    QVERIFY(connected.readAll());
    connected.connection.DoSetLedEffect(MusicEffect, 0);
    QTRY_VERIFY(musicFrames(connected).size() >= 2 * Round);
    QCOMPARE(connected.keyboard->light().keys.effect, sim::MusicEffect);

    const auto frames = musicFrames(connected);
    const unsigned commandHandle = connected.keyboard->frames().front().handle;
    for (size_t i = 0; i < frames.size(); ++i) {
        QCOMPARE(bytesOf(frames[i].report).first(9).toHex(), QByteArray("000d000000000000f2"));
        QVERIFY(std::all_of(frames[i].report.begin() + 9, frames[i].report.begin() + 31,
                            [](sim::Byte level) { return level <= bandlevels::Highest; }));
        QVERIFY(frames[i].handle != commandHandle);
        QCOMPARE(frames[i].report, frames[i - i % Round].report);
        if (i > 0)
            QVERIFY(frames[i].when - frames[i - 1].when >= 20ms);
    }

    connected.connection.DoSetLedEffect(MusicEffect + 1, 0);
    const size_t received = musicFrames(connected).size();
    connected.settle();
    QCOMPARE(musicFrames(connected).size(), received);
    QCOMPARE(connected.keyboard->frameFaults(), sim::FrameFaults{});
}

// The keyboard keeps one answer: that of a command must be taken before the music sends its own.
void TestAudio::commandsKeepTheirAnswers()
{
    ConnectedKeyboard connected("wired-2ff");
    QVERIFY(connected.readAll());
    const QByteArray picture = QByteArray(100, 0x55) + QByteArray(284, 0x22);
    connected.connection.DoWriteUserPic(2, picture);
    connected.settle();
    connected.connection.DoSetLedEffect(MusicEffect, 0);
    QTRY_VERIFY(!musicFrames(connected).empty());

    QSignalSpy pictures(&connected.connection, &DialogDeviceConnect::onGetPictrue);
    connected.connection.DoReadUserPic(2);
    QVERIFY(pictures.wait());
    QCOMPARE(pictures.first().first().toByteArray().left(picture.size()), picture);
    const size_t received = musicFrames(connected).size();
    QTRY_VERIFY(musicFrames(connected).size() > received);
}

void TestAudio::silentOverTheAir()
{
    ConnectedKeyboard connected("bluetooth");
    connected.connectDevice();
    QVERIFY(connected.waitForFrames(1));
    connected.connection.DoSetLedEffect(MusicEffect, 0);
    QVERIFY(connected.connection.isMusicOn());
    QTest::qWait(100);
    QVERIFY(musicFrames(connected).empty());
}

void TestAudio::keyboardGoes()
{
    ConnectedKeyboard connected("wired-2ff");
    QVERIFY(connected.readAll());
    connected.keyboard->addFault({.command = SetMusic, .fault = virtualhid::Fault::unplugged()});
    connected.connection.DoSetLedEffect(MusicEffect, 0);
    QTRY_VERIFY(!connected.keyboard->isPlugged());
    QSignalSpy gone(&connected.connection, &DialogDeviceConnect::onDisconnect);
    connected.connection.deviceChanged();
    QVERIFY(gone.wait());
    QCOMPARE(connected.keyboard->openHandles(), 0);
}

QTEST_MAIN(TestAudio)
#include "tst_audio.moc"
