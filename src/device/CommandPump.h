#pragma once

#include "WorkProgress.h"

#include <chrono>
#include <mutex>
#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QTimer>

class HidHandle;

/// Sends queued commands one after the other and takes their answers, at the pace that the keyboard's
/// firmware was promised. GUI thread only; the HID calls block it, a wireless read for up to 400 ms, twice.
///
/// There is no notion of a command in flight: every step arms its own read, and a kick doesn't wait for an
/// earlier one. An answer that doesn't come stops the pump, and the queue waits for the next kick.
class CommandPump : public QObject
{
    Q_OBJECT

public:
    enum class Kick {
        Deferred, ///< 5 ms after the last of a burst
        Immediate ///< one step now
    };

    explicit CommandPump(QObject *parent = nullptr);

    /// Sends over this handle from now on; null disconnects. Steps armed before do nothing any more. The
    /// handle must outlive the link or be unlinked first. The queue keeps its commands.
    void setLink(const HidHandle *handle, bool wireless);
    bool isConnected() const;
    /// Whether it waits to send, or for an answer.
    bool isStepArmed() const { return sendTimer.isActive() || armedSteps > 0; }

    /// Queues a bare command and kicks the pump. Dropped without a word while there is no link; an empty
    /// command is dropped too.
    void enqueue(const QByteArray &command, Kick kick);
    void clearQueue();
    /// Drops what waits, and starts afresh with one step at a time: answers still to come are taken off the
    /// link but not handed on, and nothing follows them. A sequence whose answers are filed by order needs
    /// this.
    void restart();

    /// Between these two, which may be nested, what is queued isn't kicked. The outermost end kicks once, at
    /// once, if anything was queued and no step is armed; the rest follows at the pump's pace.
    void beginGroup() { ++groupDepth; }
    void endGroup();

    qsizetype queueLength() const { return sendQueue.size(); }
    const WorkProgress &workProgress() const { return progress; }

    /// The last frame sent, with its checksum, before the transport's wrapping; empty before the first.
    const QByteArray &lastFrame() const { return lastCommand; }

public Q_SLOTS:
    /// Takes one answer, whatever was sent, and goes on with the queue 10 ms later.
    void readStep();

Q_SIGNALS:
    /// An answer, without its transport header; may be empty or of any other length.
    void replied(const QByteArray &reply);
    /// A step found nothing to send.
    void drained();

private:
    void pumpStep();
    void armRead(std::chrono::milliseconds delay);
    void armPumpStep(std::chrono::milliseconds delay, quint64 forRun);
    bool mayUseAir();
    void leaveAir();
    void beginRun();
    QByteArray takeReply();
    void send(const QByteArray &report);
    void dropStrayReports();

    QList<QByteArray> sendQueue;
    QByteArray lastCommand;
    WorkProgress progress;
    QTimer sendTimer;
    const HidHandle *link = nullptr;
    bool isWireless = false;
    std::unique_lock<QMutex> air;
    int airRefusals = 0;
    int armedReads = 0; ///< of all runs: each of them will take one answer off the link
    int armedSteps = 0; ///< of this run: reads, and pump steps after an answer
    int groupDepth = 0;
    bool groupQueued = false;
    quint64 linkNumber = 0; ///< tells a step which link it was armed for
    quint64 runNumber = 0;  ///< and whether the pump was restarted since
};
