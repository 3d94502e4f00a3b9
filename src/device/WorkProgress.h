#pragma once

#include <QObject>

/// How far the pump is with the commands that wait for the keyboard. A piece of work begins with the first
/// command of an empty queue and grows with each one queued behind it. Costs nothing while nothing waits.
/// GUI thread only.
class WorkProgress : public QObject
{
    Q_OBJECT

public:
    enum class Work { Reading, Writing };
    enum class End {
        Complete,   ///< all was sent and answered
        Unanswered, ///< an answer is missing; what waits goes out with the next command
        Dropped,    ///< the keyboard or the queue is gone
    };

    explicit WorkProgress(QObject *parent = nullptr);

    /// What most of the present work, or else of the last one, is: a profile is set first, then read.
    Work work() const { return 2 * questions > all ? Work::Reading : Work::Writing; }
    bool isRunning() const { return running; }
    int total() const { return all; }
    /// Commands of this work that went out, 0 to total().
    int done() const { return all - waiting; }
    int left() const { return waiting; }

    // Told by the pump; the lengths are the queue's afterwards.

    void queued(quint8 command, qsizetype queueLength);
    void sent(qsizetype queueLength);
    /// Nothing more happens by itself. Does nothing while no work is running.
    void end(End how);

Q_SIGNALS:
    void begun();
    void advanced();
    void ended(WorkProgress::End how);

private:
    bool running = false;
    int all = 0;
    int questions = 0;
    int waiting = 0;
};
