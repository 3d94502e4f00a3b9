#include "CommandPump.h"

#include "DeviceLog.h"
#include "Framing.h"
#include "HidHandle.h"

#include <array>
#include <functional>
#include <hidapi/hidapi.h>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto DeferredKickDelay = 5ms;
constexpr auto WiredReplyDelay = 20ms;
constexpr auto WirelessReplyDelay = 100ms;
constexpr auto NextCommandDelay = 10ms;
constexpr auto WirelessReadLimit = 400ms;
constexpr size_t ReplyBufferLength = 1024;
constexpr int MostStrayReports = 128;
/// For how often and how long another thread's question over the air is waited for.
constexpr int MostAirRefusals = 200;
constexpr auto AirRefusalDelay = 5ms;

using Clock = std::chrono::steady_clock;
using ReplyBuffer = std::array<quint8, ReplyBufferLength>;

/// Null if there is no reply.
QByteArray takeWiredReply(hid_device *device)
{
    ReplyBuffer buffer{};
    const int result = hid_get_feature_report(device, buffer.data(), framing::WiredReportLength);
    return framing::unwrapWired(buffer, result);
}

QByteArray takeWirelessReply(hid_device *device)
{
    ReplyBuffer buffer{};
    const auto read = [&buffer, device] {
        buffer.fill(0);
        return hid_read_timeout(device, buffer.data(), framing::WirelessReportLength,
                                int(WirelessReadLimit.count()));
    };
    int result = read();
    if (framing::isWirelessNotice(buffer))
        result = read();
    return framing::unwrapWireless(buffer, result);
}

// A precise timer may fire most of a millisecond early where the system's clock is coarse; no gap may be
// shorter than promised, so what is missing is waited for in turns of the event loop.
void waitUntil(Clock::time_point due, QObject *context, const std::function<void()> &action)
{
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(due - Clock::now());
    QTimer::singleShot(std::max(rest, 0ms), Qt::PreciseTimer, context, [due, context, action] {
        if (Clock::now() < due)
            waitUntil(due, context, action);
        else
            action();
    });
}

} // namespace

CommandPump::CommandPump(QObject *parent)
    : QObject(parent)
    , air(airMutex(), std::defer_lock)
{
    sendTimer.setSingleShot(true);
    sendTimer.setTimerType(Qt::PreciseTimer);
    connect(&sendTimer, &QTimer::timeout, this, &CommandPump::pumpStep);
}

void CommandPump::setLink(const HidHandle *handle, bool wireless)
{
    ++linkNumber;
    beginRun();
    link = handle;
    isWireless = wireless;
    progress.end(WorkProgress::End::Dropped);
}

bool CommandPump::isConnected() const
{
    return link && *link;
}

void CommandPump::enqueue(const QByteArray &command, Kick kick)
{
    if (!isConnected())
        return;
    if (command.isEmpty()) {
        qCDebug(lcDevice) << "An empty command is not sent";
        return;
    }
    sendQueue.append(command);
    progress.queued(quint8(command.at(0)), sendQueue.size());
    if (groupDepth > 0)
        groupQueued = true;
    else if (kick == Kick::Immediate)
        pumpStep();
    else
        sendTimer.start(DeferredKickDelay);
}

void CommandPump::clearQueue()
{
    sendQueue.clear();
    progress.end(WorkProgress::End::Dropped);
}

void CommandPump::restart()
{
    clearQueue();
    beginRun();
}

void CommandPump::beginRun()
{
    sendTimer.stop();
    ++runNumber;
    armedSteps = 0;
}

void CommandPump::endGroup()
{
    if (groupDepth == 0 || --groupDepth > 0)
        return;
    if (std::exchange(groupQueued, false) && !isStepArmed())
        pumpStep();
}

void CommandPump::armRead(std::chrono::milliseconds delay)
{
    ++armedReads;
    ++armedSteps;
    waitUntil(Clock::now() + delay, this, [this, forLink = linkNumber, forRun = runNumber] {
        --armedReads;
        if (forLink != linkNumber) {
            leaveAir();
            return;
        }
        if (forRun == runNumber) {
            --armedSteps;
            readStep();
        } else {
            takeReply();
        }
    });
}

/// The step has been counted for that run.
void CommandPump::armPumpStep(std::chrono::milliseconds delay, quint64 forRun)
{
    waitUntil(Clock::now() + delay, this, [this, forRun] {
        if (forRun != runNumber)
            return;
        --armedSteps;
        pumpStep();
    });
}

void CommandPump::pumpStep()
{
    if (!isConnected())
        return;
    if (sendQueue.isEmpty()) {
        progress.end(WorkProgress::End::Complete);
        Q_EMIT drained();
        return;
    }
    if (isWireless && !mayUseAir()) {
        ++armedSteps;
        armPumpStep(AirRefusalDelay, runNumber);
        return;
    }
    lastCommand = framing::close(sendQueue.takeFirst());
    if (isWireless) {
        dropStrayReports();
        send(framing::wrapWireless(lastCommand));
    } else {
        send(framing::wrapWired(lastCommand));
    }
    // Not before the frame is out: a write that takes its time must not shorten the gap to the next one.
    armRead(isWireless ? WirelessReplyDelay : WiredReplyDelay);
    progress.sent(sendQueue.size());
}

bool CommandPump::mayUseAir()
{
    // A search that a device holds up doesn't silence the others for good.
    const bool mine = air.owns_lock() || air.try_lock() || ++airRefusals > MostAirRefusals;
    if (mine)
        airRefusals = 0;
    return mine;
}

void CommandPump::leaveAir()
{
    if (armedReads == 0 && air.owns_lock())
        air.unlock();
}

// Over the air every answer goes to every program and thread that has the keyboard open, so the answer to a
// search's question lies here as well. Taken for the answer to the next command, it would shift all later
// ones.
void CommandPump::dropStrayReports()
{
    if (armedReads > 0)
        return;
    std::array<quint8, framing::WirelessReportLength> report{};
    for (int i = 0; i < MostStrayReports; ++i) {
        if (hid_read_timeout(link->get(), report.data(), report.size(), 0) < 1)
            return;
    }
}

void CommandPump::send(const QByteArray &report)
{
    // A write that fails changes nothing here: the answer that doesn't come is what stops the pump.
    const auto *data = reinterpret_cast<const unsigned char *>(report.constData());
    const int result = isWireless ? hid_write(link->get(), data, size_t(report.size()))
                                  : hid_send_feature_report(link->get(), data, size_t(report.size()));
    if (result < 0)
        qCDebug(lcDevice) << "Command" << Qt::hex << quint8(lastCommand.at(0)) << "was not taken";
}

QByteArray CommandPump::takeReply()
{
    QByteArray reply;
    if (isConnected())
        reply = isWireless ? takeWirelessReply(link->get()) : takeWiredReply(link->get());
    leaveAir();
    return reply;
}

void CommandPump::readStep()
{
    const QByteArray reply = takeReply();
    if (reply.isNull()) {
        qCDebug(lcDevice) << "No answer;" << sendQueue.size() << "commands wait";
        if (!isStepArmed())
            progress.end(WorkProgress::End::Unanswered);
        return;
    }
    const quint64 forRun = runNumber;
    // Counted from here on, so that a group which a listener writes leaves the pace to the step below.
    ++armedSteps;
    Q_EMIT replied(reply);
    armPumpStep(NextCommandDelay, forRun);
}
