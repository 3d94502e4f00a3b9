#include "LoopbackCapture.h"

#include "CaptureDevice.h"
#include "DeviceLog.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr auto OutputCheckPeriod = 2s;
constexpr auto LongestClosing = 1s;

} // namespace

/// What the owner shares with the thread that keeps the device; it goes with the last of the two.
struct LoopbackCapture::Session
{
    void keepDevice();
    void close();

    SampleBlock audioSamples;

private:
    bool waitForClosing();

    std::mutex mutex;
    std::condition_variable changed;
    bool isClosing = false;
    bool isClosed = false;
};

void LoopbackCapture::Session::keepDevice()
{
    {
        CaptureDevice device(audioSamples);
        const bool opened = device.open();
        while (!waitForClosing()) {
            if (opened)
                device.followOutput();
        }
    }
    const std::scoped_lock lock(mutex);
    isClosed = true;
    changed.notify_all();
}

bool LoopbackCapture::Session::waitForClosing()
{
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, OutputCheckPeriod, [this] { return isClosing; });
}

void LoopbackCapture::Session::close()
{
    std::unique_lock lock(mutex);
    isClosing = true;
    changed.notify_all();
    if (!changed.wait_for(lock, LongestClosing, [this] { return isClosed; }))
        qCWarning(lcAudio) << "The sound server doesn't answer; its device stays open";
}

LoopbackCapture::LoopbackCapture()
    : session(std::make_shared<Session>())
{
    std::thread([kept = session] { kept->keepDevice(); }).detach();
}

LoopbackCapture::~LoopbackCapture()
{
    session->close();
}

SampleBlock &LoopbackCapture::samples()
{
    return session->audioSamples;
}
