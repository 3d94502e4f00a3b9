#pragma once

#include "WorkProgress.h"

#include <QObject>
#include <QTimer>

class ProgressBadge;

/// Shows on a badge how far the keyboard is, once that takes so long that one wonders. The badge is hidden
/// and no timer runs while nothing is under way. GUI thread only.
class WorkMeter : public QObject
{
    Q_OBJECT

public:
    /// A child of its badge. \a progress must outlive the meter.
    WorkMeter(const WorkProgress &progress, ProgressBadge *badge);

private:
    void begin();
    void show();
    void end(WorkProgress::End how);

    const WorkProgress &progress;
    ProgressBadge *badge;
    QTimer delayTimer;
    QTimer hideTimer;
};
