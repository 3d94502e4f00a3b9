#include "WorkMeter.h"

#include "ProgressBadge.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto Unnoticed = 300ms;
constexpr auto FullTime = 250ms; ///< for which the full line stays
/// With fewer commands left, the end is nearer than the eye; a slider that is dragged never has more.
constexpr int FewestLeft = 4;

} // namespace

WorkMeter::WorkMeter(const WorkProgress &source, ProgressBadge *shown)
    : QObject(shown)
    , progress(source)
    , badge(shown)
{
    badge->hide();
    delayTimer.setSingleShot(true);
    delayTimer.setInterval(Unnoticed);
    hideTimer.setSingleShot(true);
    hideTimer.setInterval(FullTime);
    connect(&delayTimer, &QTimer::timeout, this, &WorkMeter::show);
    connect(&hideTimer, &QTimer::timeout, badge, &QWidget::hide);
    connect(&progress, &WorkProgress::begun, this, &WorkMeter::begin);
    connect(&progress, &WorkProgress::advanced, this, &WorkMeter::show);
    connect(&progress, &WorkProgress::ended, this, &WorkMeter::end);
}

void WorkMeter::begin()
{
    delayTimer.start();
}

void WorkMeter::show()
{
    if (delayTimer.isActive() || !progress.isRunning())
        return;
    if (badge->isHidden() || hideTimer.isActive()) {
        if (progress.left() < FewestLeft)
            return;
        hideTimer.stop();
        badge->setCaption(progress.work() == WorkProgress::Work::Reading ? tr("正在读取键盘")
                                                                         : tr("正在写入键盘"));
        badge->show();
    }
    badge->setRange(0, progress.total());
    badge->setValue(progress.done());
}

void WorkMeter::end(WorkProgress::End how)
{
    delayTimer.stop();
    if (badge->isHidden())
        return;
    if (how == WorkProgress::End::Complete)
        hideTimer.start();
    else
        badge->hide();
}
