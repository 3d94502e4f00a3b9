#include "OrbeDeviceEnum.h"

#include "HubFiles.h"
#include "HubLog.h"
#include "ScanPass.h"

using namespace std::chrono_literals;

namespace {

constexpr auto IdleTime = 2ms;
/// How long the end of the program waits for the thread. The longest sleep of a pass is 150 ms; only a HID
/// call that the system doesn't answer takes longer.
constexpr auto FarewellTime = 1000ms;

} // namespace

OrbeDeviceEnum::Pointer OrbeDeviceEnum::launch(bool tarnwickBuild)
{
    hubfiles::configPath({}); // finds the folder while the application object is sure to be there
    return Pointer(new OrbeDeviceEnum(tarnwickBuild));
}

OrbeDeviceEnum::OrbeDeviceEnum(bool tarnwick)
    : tarnwickBuild(tarnwick)
{
    QThread::start();
}

OrbeDeviceEnum::~OrbeDeviceEnum() = default;

void OrbeDeviceEnum::Release::operator()(OrbeDeviceEnum *thread) const
{
    thread->stop();
    if (thread->wait(QDeadlineTimer(FarewellTime)) && thread->left) {
        delete thread;
        return;
    }
    // Ending a thread by force inside a HID call could leave locks taken. So it stays, with all it uses, and
    // the process ends around it.
    thread->stopRequested.giveUp();
    qCWarning(lcHub) << "A device holds the search for keyboards; leaving without it";
}

void OrbeDeviceEnum::stop()
{
    stopRequested.request();
    quit();
}

void OrbeDeviceEnum::run()
{
    {
        KeptHandles handles;
        while (!stopRequested.asked()) {
            if (scanRequested.exchange(false))
                enumerateDevices(handles);
            else
                stopRequested.pause(IdleTime);
        }
    }
    left = true;
}

bool OrbeDeviceEnum::gateOpen() const
{
    return !scanning && !scanSuspended && (windowShown || siblingHosted);
}

void OrbeDeviceEnum::enumerateDevices(KeptHandles &handles)
{
    if (!gateOpen())
        return;
    scanning = true;
    ScanPass pass(stopRequested, handles, tarnwickBuild);
    pass.run();
    if (!stopRequested.asked()) {
        results.put(pass.takeResult());
        Q_EMIT passDone();
    }
    scanning = false;
}
