#pragma once

#include "WorkProgress.h"

#include <QObject>
#include <QTimer>

class ProgressLine;
class QLabel;

/// Shows how far the keyboard is, once that takes so long that one wonders: on a line, and in words where
/// there is room for them. The line is hidden and no timer runs while nothing is under way. GUI thread only.
class WorkMeter : public QObject
{
    Q_OBJECT

public:
    /// A child of its line. \a caption is left empty while nothing shows; it and \a progress must outlive the
    /// meter.
    WorkMeter(const WorkProgress &progress, ProgressLine *line, QLabel *caption);

private:
    void show();
    void showValue();
    void end(WorkProgress::End how);
    void hide();

    const WorkProgress &progress;
    ProgressLine *line;
    QLabel *caption;
    QTimer delayTimer;
    QTimer hideTimer;
};
