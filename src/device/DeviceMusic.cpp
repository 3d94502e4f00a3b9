// How the keyboard's music effect gets its levels.

#include "BandLevels.h"
#include "DialogDeviceConnect.h"
#include "Framing.h"

#include <array>
#include <hidapi/hidapi.h>
#include <QThread>

using namespace std::chrono_literals;

namespace {

constexpr auto MusicPeriod = 20ms;
constexpr auto MusicReportGap = 20ms;
constexpr int ReportsPerRound = 10;

} // namespace

void DialogDeviceConnect::startMusicTimer()
{
    musicTimer.setTimerType(Qt::PreciseTimer);
    connect(&musicTimer, &QTimer::timeout, this, &DialogDeviceConnect::musicTick);
    musicTimer.start(MusicPeriod);
}

// A round holds the program for 200 ms, by design: no other command comes between its reports. It waits for
// an answer that is due, as the keyboard keeps only the latest one and the round would take it away.
void DialogDeviceConnect::musicTick()
{
    if (!musicOn || !musicHandle || pump.isStepArmed())
        return;
    const QByteArray report = bandlevels::report(capture.samples());
    // A system that plays nothing sends no blocks: without a new one the next round is silent.
    capture.samples().silence();
    musicTimer.stop();
    for (int i = 0; i < ReportsPerRound; ++i) {
        hid_send_feature_report(musicHandle.get(), reinterpret_cast<const quint8 *>(report.constData()),
                                size_t(report.size()));
        QThread::msleep(MusicReportGap.count());
        std::array<quint8, framing::WiredReportLength> answer{};
        hid_get_feature_report(musicHandle.get(), answer.data(), answer.size());
    }
    musicTimer.start(MusicPeriod);
}
