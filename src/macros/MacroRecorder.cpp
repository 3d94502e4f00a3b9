#include "MacroRecorder.h"

#include "MacroKeys.h"

#include <chrono>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

using namespace std::chrono_literals;

namespace {

constexpr auto DoubleClickRest = 200ms;

} // namespace

MacroRecorder::MacroRecorder(QWidget *recorded)
    : QObject(recorded)
    , page(recorded)
{
    doubleClickRest.setSingleShot(true);
}

MacroRecorder::~MacroRecorder()
{
    stop();
}

void MacroRecorder::start()
{
    if (std::exchange(isRecording, true))
        return;
    sinceLast.invalidate();
    qApp->installEventFilter(this);
}

void MacroRecorder::stop()
{
    if (!std::exchange(isRecording, false))
        return;
    doubleClickRest.stop();
    qApp->removeEventFilter(this);
}

bool MacroRecorder::isOfWindow(QObject *watched) const
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    return widget && widget->window() == page->window();
}

bool MacroRecorder::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // a key sequence of the program is a step like any other
        if (!isOfWindow(watched))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (!isOfWindow(watched))
            return false;
        takeKey(*static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return watched == page && takeMouse(*static_cast<QMouseEvent *>(event));
    case QEvent::WindowDeactivate:
        if (watched == page)
            Q_EMIT interrupted();
        return false;
    default:
        return false;
    }
}

void MacroRecorder::takeKey(const QKeyEvent &event)
{
    const quint8 code = macrokeys::codeOf(event);
    if (event.isAutoRepeat() || code == 0 || doubleClickRest.isActive())
        return;
    measureGap();
    Q_EMIT keyRecorded(code, event.type() == QEvent::KeyPress);
}

bool MacroRecorder::takeMouse(const QMouseEvent &event)
{
    const int button = int(event.button());
    if (button != Qt::LeftButton && button != Qt::RightButton && button != Qt::MiddleButton)
        return false;
    if (doubleClickRest.isActive())
        return true;
    measureGap();
    if (event.type() != QEvent::MouseButtonDblClick) {
        Q_EMIT buttonRecorded(button, event.type() == QEvent::MouseButtonPress);
        return true;
    }
    for (const bool down : {true, false, true, false})
        Q_EMIT buttonRecorded(button, down);
    doubleClickRest.start(DoubleClickRest);
    return true;
}

void MacroRecorder::measureGap()
{
    const qint64 gap = sinceLast.isValid() ? sinceLast.elapsed() : 0;
    sinceLast.start();
    Q_EMIT gapMeasured(quint16(gap));
}
