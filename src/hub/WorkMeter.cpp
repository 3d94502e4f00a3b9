#include "WorkMeter.h"

#include "ProgressLine.h"

#include <chrono>
#include <QLabel>

using namespace std::chrono_literals;

namespace {

constexpr auto Unnoticed = 300ms;
constexpr auto FullTime = 250ms; ///< for which the full line stays
/// With fewer commands left, the end is nearer than the eye; a slider that is dragged never has more.
constexpr int FewestLeft = 4;

} // namespace

WorkMeter::WorkMeter(const WorkProgress &source, ProgressLine *shownLine, QLabel *shownCaption)
    : QObject(shownLine)
    , progress(source)
    , line(shownLine)
    , caption(shownCaption)
{
    delayTimer.setSingleShot(true);
    delayTimer.setInterval(Unnoticed);
    hideTimer.setSingleShot(true);
    hideTimer.setInterval(FullTime);
    connect(&delayTimer, &QTimer::timeout, this, &WorkMeter::show);
    connect(&hideTimer, &QTimer::timeout, this, &WorkMeter::hide);
    connect(&progress, &WorkProgress::begun, &delayTimer, qOverload<>(&QTimer::start));
    connect(&progress, &WorkProgress::advanced, this, &WorkMeter::show);
    connect(&progress, &WorkProgress::ended, this, &WorkMeter::end);
}

void WorkMeter::show()
{
    if (delayTimer.isActive() || !progress.isRunning())
        return;
    if (line->isHidden() || hideTimer.isActive()) {
        if (progress.left() < FewestLeft)
            return;
        hideTimer.stop();
        line->show();
    }
    showValue();
}

void WorkMeter::showValue()
{
    const QString work =
        progress.work() == WorkProgress::Work::Reading ? tr("正在读取键盘") : tr("正在写入键盘");
    if (line->accessibleName() != work)
        line->setAccessibleName(work);
    line->setRange(0, progress.total());
    line->setValue(progress.done());
    const QString percent = QStringLiteral("%1%").arg(100 * progress.done() / progress.total());
    const QString words = work + QLatin1Char(' ') + percent;
    const auto fits = [this](const QString &text) {
        return caption->fontMetrics().horizontalAdvance(text) <= caption->width();
    };
    caption->setText(fits(words) ? words : fits(percent) ? percent : QString());
}

void WorkMeter::end(WorkProgress::End how)
{
    delayTimer.stop();
    if (line->isHidden())
        return;
    if (how == WorkProgress::End::Complete)
        hideTimer.start();
    else
        hide();
}

void WorkMeter::hide()
{
    line->hide();
    caption->clear();
}
