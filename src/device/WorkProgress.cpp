#include "WorkProgress.h"

namespace {

/// Commands that ask have this bit, commands that set don't.
constexpr quint8 AskBit = 0x80;

} // namespace

WorkProgress::WorkProgress(QObject *parent)
    : QObject(parent)
{
}

void WorkProgress::queued(quint8 command, qsizetype queueLength)
{
    waiting = int(queueLength);
    const int question = command & AskBit ? 1 : 0;
    if (running && waiting > 1) {
        ++all;
        questions += question;
        return;
    }
    // What an earlier work left in the queue counts as part of this one.
    all = waiting;
    questions = question;
    running = true;
    Q_EMIT begun();
}

void WorkProgress::sent(qsizetype queueLength)
{
    waiting = int(queueLength);
    if (running)
        Q_EMIT advanced();
}

void WorkProgress::end(End how)
{
    if (!running)
        return;
    running = false;
    Q_EMIT ended(how);
}
