// What the mouse and the keyboard do on the on-screen keyboard; see ModuleKeyboard.cpp for what pages do.

#include "CustomTooltip.h"
#include "KeyboardButton.h"
#include "KeyboardLayout.h"
#include "ModuleKeyboard.h"
#include "RubberBandLayer.h"
#include "ui_ModuleKeyboard.h"

#include <cstdlib>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

namespace {

constexpr int PopupGap = 5; ///< between a key and the popup on its right, in pixels

bool isReachable(const KeyboardButton *button, const QWidget *board)
{
    return button->isVisibleTo(board) && button->isEnabledTo(board);
}

} // namespace

void ModuleKeyboard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    } else if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        endBand();
    }
    QFrame::changeEvent(event);
}

void ModuleKeyboard::hideEvent(QHideEvent *event)
{
    endBand();
    popup->hide();
    QFrame::hideEvent(event);
}

void ModuleKeyboard::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || locked)
        return;
    dragStart = event->position().toPoint();
    dragEnd = dragStart;
    dragging = true;
}

void ModuleKeyboard::mouseMoveEvent(QMouseEvent *event)
{
    if (!dragging || dragStart.x() <= 0)
        return;
    dragEnd = event->position().toPoint();
    selectBand();
    bandLayer->setBand(QRect(dragStart, dragEnd).normalized());
    Q_EMIT onSelect();
}

void ModuleKeyboard::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (event->button() == Qt::LeftButton) {
        endBand();
        dragStart = position;
    } else if (event->button() == Qt::RightButton) {
        offerAction(keyAt(position));
    }
}

void ModuleKeyboard::selectBand()
{
    const QRect band = QRect(dragStart, dragEnd).normalized();
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        KeyboardButton *button = buttons[place.code];
        if (!isReachable(button, this))
            continue;
        const QRect key = button->geometry();
        button->setChecked(band.contains(key.topLeft()) || band.contains(key.topRight()) ||
                           band.contains(key.bottomLeft()) || band.contains(key.bottomRight()));
    }
}

void ModuleKeyboard::endBand()
{
    dragging = false;
    bandLayer->hide();
}

KeyboardButton *ModuleKeyboard::keyAt(const QPoint &position) const
{
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        KeyboardButton *button = buttons[place.code];
        if (button->isVisibleTo(this) && button->geometry().contains(position))
            return button;
    }
    return nullptr;
}

bool ModuleKeyboard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent *>(event)->button() == Qt::RightButton) {
        auto *button = qobject_cast<KeyboardButton *>(watched);
        if (button && disabledKeys.contains(button)) {
            offerAction(button);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleKeyboard::offerAction(KeyboardButton *button)
{
    // Where values are shown or keys are painted, what the user did here would reach no keyboard.
    if (!button || isApart() || !isEnabled())
        return;
    if (!button->isEnabledTo(this)) {
        if (!disabledKeys.contains(button))
            return;
        popup->setText(tr("取消禁用"));
    } else {
        popup->setText(button->hasBinding() ? tr("清除设置") : tr("禁用按键"));
    }
    popupTarget = button;
    QPoint place =
        button->mapToGlobal(QPoint(button->width() + PopupGap, (button->height() - popup->height()) / 2));
    const QRect room = screen()->availableGeometry();
    place.setX(qMax(room.left(), qMin(place.x(), room.right() + 1 - popup->width())));
    popup->move(place);
    popup->show();
}

void ModuleKeyboard::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        offerAction(qobject_cast<KeyboardButton *>(focusWidget()));
}

void ModuleKeyboard::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        moveFocus(event->key(), event->modifiers() & Qt::ShiftModifier);
        return;
    default:
        break;
    }
    if (event->matches(QKeySequence::SelectAll) && tabStop->isCheckable()) {
        selectAll(true);
    } else {
        QFrame::keyPressEvent(event);
    }
}

/// Moves the focus to the next key in a direction; extending, both keys join those that are checked.
void ModuleKeyboard::moveFocus(int key, bool extending)
{
    const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const int direction = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
    const QPoint from = tabStop->geometry().center();
    KeyboardButton *nearest = nullptr;
    QPoint shortest; // across the rows first: the next row with a key in it wins
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        const QPoint way = place.rect().center() - from;
        const int ahead = (sideways ? way.x() : way.y()) * direction;
        const int aside = std::abs(sideways ? way.y() : way.x());
        if (ahead <= 0 || (sideways && aside > 0) || !isReachable(buttons[place.code], this))
            continue;
        if (!nearest || ahead < shortest.x() || (ahead == shortest.x() && aside < shortest.y())) {
            nearest = buttons[place.code];
            shortest = {ahead, aside};
        }
    }
    if (!nearest)
        return;
    if (extending && nearest->isCheckable() && SelectionLimit > 1) {
        tabStop->setChecked(true);
        nearest->setChecked(true);
        Q_EMIT onSelect();
    }
    rove(nearest);
    nearest->setFocus(Qt::TabFocusReason);
}

void ModuleKeyboard::rove(KeyboardButton *button)
{
    if (tabStop)
        tabStop->setFocusPolicy(Qt::NoFocus);
    tabStop = button;
    tabStop->setFocusPolicy(Qt::TabFocus);
}

void ModuleKeyboard::keepTabStop()
{
    if (isReachable(tabStop, this))
        return;
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        if (isReachable(buttons[place.code], this)) {
            rove(buttons[place.code]);
            return;
        }
    }
}
