#include "SuperLabel.h"

#include "AccessibleControls.h"
#include "CustomTooltip.h"
#include "FocusRing.h"
#include "Look.h"

#include <chrono>
#include <QAccessible>
#include <QCoreApplication>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>

using namespace std::chrono_literals;

namespace {

constexpr auto TooltipBuildDelay = 100ms;
constexpr auto TooltipShowDelay = 100ms;
constexpr int ToolTipDuration = 2'000'000; // ms
constexpr int TooltipGap = 5;
constexpr int CornerRadius = 16;

/// The selected label under each parent. A label leaves it before it or its parent goes.
QHash<const QWidget *, SuperLabel *> &selection()
{
    static QHash<const QWidget *, SuperLabel *> map;
    return map;
}

} // namespace

SuperLabel::SuperLabel(QWidget *parent)
    : QLabel(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    FocusRing::follow(this, CornerRadius);
    accessible::installRoles();
    showTimer.setInterval(TooltipShowDelay);
    showTimer.setSingleShot(true);
    connect(&showTimer, &QTimer::timeout, this, &SuperLabel::showTooltip);
    QTimer::singleShot(TooltipBuildDelay, this, [this] {
        ensureTooltip();
        setToolTipDuration(ToolTipDuration);
    });
}

SuperLabel::~SuperLabel()
{
    leaveSelection();
}

void SuperLabel::setPictures(const QString &on, const QString &off)
{
    pictureOn = on;
    pictureOff = off;
    setSelected(false);
}

void SuperLabel::setStyles(const QString &on, const QString &off)
{
    styleOn = on;
    styleOff = off;
    look::setStyleOnce(this, selected ? styleOn : styleOff);
}

void SuperLabel::setSelected(bool newSelected)
{
    selected = newSelected;
    showPicture();
    if (!styleOn.isEmpty() || !styleOff.isEmpty())
        look::setStyleOnce(this, selected ? styleOn : styleOff);
    if (!selected) {
        leaveSelection();
    } else if (const QWidget *parent = parentWidget()) {
        SuperLabel *before = std::exchange(selection()[parent], this);
        if (before && before != this)
            before->setSelected(false);
    }
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent notice(this, changed);
    QAccessible::updateAccessibility(&notice);
}

void SuperLabel::leaveSelection()
{
    selection().removeIf([this](const auto &entry) { return entry.value() == this; });
}

void SuperLabel::showPicture()
{
    if (pictureOn.isEmpty() && pictureOff.isEmpty())
        return;
    pictureScale = devicePixelRatioF();
    setPixmap(look::picture(selected ? pictureOn : pictureOff, this));
}

void SuperLabel::setTip(const QString &tip)
{
    clear();
    showPicture();
    takeTip(tip);
    setToolTip(QString());
}

void SuperLabel::takeTip(const QString &tip)
{
    ensureTooltip()->setText(tip);
    accessible::setDefaultName(this, tip);
}

CustomTooltip *SuperLabel::ensureTooltip()
{
    if (!tooltip) {
        tooltip = new CustomTooltip(this);
        tooltip->setTakesFocus(false);
        takeTip(toolTip());
    }
    return tooltip;
}

void SuperLabel::showTooltip()
{
    if (!tooltip || tooltip->text().isEmpty())
        return;
    const QPoint place(width() + TooltipGap, (height() - tooltip->height()) / 2);
    tooltip->move(mapToGlobal(place));
    tooltip->show();
}

void SuperLabel::hideTooltip()
{
    showTimer.stop();
    if (tooltip)
        tooltip->hide();
}

bool SuperLabel::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
        showTimer.start();
        break;
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
    case QEvent::Hide:
        hideTooltip();
        break;
    case QEvent::Show:
        if (pictureScale > 0 && !qFuzzyCompare(pictureScale, devicePixelRatioF()))
            showPicture();
        break;
    case QEvent::ToolTipChange:
        if (tooltip && !toolTip().isEmpty())
            takeTip(toolTip());
        break;
    case QEvent::ToolTip:
        return true; // the tip at the right has said it
    case QEvent::ParentChange:
        leaveSelection();
        break;
    default:
        break;
    }
    return QLabel::event(event);
}

void SuperLabel::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            press();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void SuperLabel::press()
{
    const QPointF centre = QRectF(rect()).center();
    const QPointF global = mapToGlobal(centre);
    QMouseEvent down(QEvent::MouseButtonPress, centre, global, Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(this, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, centre, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &up);
}
