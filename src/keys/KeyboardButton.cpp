#include "KeyboardButton.h"

#include "FocusRing.h"
#include "KeyboardLayout.h"
#include "KeyNameTable.h"
#include "keySetTooltip.h"
#include "Look.h"

#include <QKeyEvent>

KeyboardButton::KeyboardButton(quint8 code, const QString &legend, QWidget *parent)
    : QPushButton(legend, parent)
    , keyCode(code)
{
    setObjectName(keys::keyButtonName(code));
    const QString name = keys::KeyNameByCode(code);
    setAccessibleName(name.isEmpty() ? legend : name);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus); // its keyboard lets Tab in and moves the focus on with the arrow keys
    FocusRing::follow(this, look::KeyRadius);
}

void KeyboardButton::setKeyContent(const QString &title, const QString &body)
{
    if (title.isEmpty() || body.isEmpty()) {
        delete bubble;
        bubble = nullptr;
        bindingTitle.clear();
        bindingBody.clear();
        setStyleKind(keystyle::Style::Base);
    } else {
        setStyleKind(keystyle::Style::Modified);
        if (title == bindingTitle && body == bindingBody)
            return;
        bindingTitle = title;
        bindingBody = body;
        if (bubble)
            bubble->setTexts(title, body);
        if (bubble && bubble->isVisible())
            bubble->showAbove(this);
    }
    if (accessibleDescription() != bindingBody)
        setAccessibleDescription(bindingBody);
}

void KeyboardButton::setDisplayMode(quint8 newMode)
{
    if (newMode == ColouredBorder)
        setStyleKind(keystyle::Style::Coloured);
    if (newMode == mode)
        return;
    mode = newMode;
    update();
}

void KeyboardButton::setFillColor(const QColor &color)
{
    if (color == fill)
        return;
    fill = color;
    update();
}

void KeyboardButton::setBorderColor(const QColor &color)
{
    setStyleKind(keystyle::Style::Coloured);
    if (!color.isValid() || color == border)
        return;
    border = color;
    update();
}

void KeyboardButton::setHalfValues(float upper, float lower)
{
    setPair(halves, QString::number(double(upper), 'f', 2), QString::number(double(lower), 'f', 3));
}

void KeyboardButton::setCornerValues(float press, float release)
{
    setPair(corners, QString::number(double(press), 'f', 3), QString::number(double(release), 'f', 3));
}

void KeyboardButton::setExtraValues(float upper, float lower, bool shown)
{
    setPair(extra, QString::number(double(upper), 'f', 3), QString::number(double(lower), 'f', 3));
    if (hasExtra == shown)
        return;
    hasExtra = shown;
    update();
}

QStringList KeyboardButton::captions() const
{
    if (mode == TwoValues)
        return {halves[0], halves[1]};
    if (mode != CornerValues)
        return {};
    if (hasExtra)
        return {extra[0], corners[0], extra[1]};
    return {corners[0], corners[1]};
}

void KeyboardButton::showHit()
{
    setStyleKind(keystyle::Style::Hit);
}

QSize KeyboardButton::sizeHint() const
{
    return {keys::KeyHeight, keys::KeyHeight};
}

void KeyboardButton::enterEvent(QEnterEvent *event)
{
    showBubble();
    QPushButton::enterEvent(event);
}

void KeyboardButton::leaveEvent(QEvent *event)
{
    hideBubble();
    QPushButton::leaveEvent(event);
}

void KeyboardButton::focusInEvent(QFocusEvent *event)
{
    // Not when a window only comes to the front again with the focus where it was.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        showBubble();
    QPushButton::focusInEvent(event);
}

void KeyboardButton::focusOutEvent(QFocusEvent *event)
{
    hideBubble();
    QPushButton::focusOutEvent(event);
}

void KeyboardButton::hideEvent(QHideEvent *event)
{
    hideBubble();
    QPushButton::hideEvent(event);
}

void KeyboardButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->ignore(); // the keyboard moves the focus
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        QPushButton::keyPressEvent(event);
    }
}

void KeyboardButton::setStyleKind(keystyle::Style kind)
{
    if (kind == style)
        return;
    style = kind;
    update();
}

void KeyboardButton::setPair(Pair &pair, const QString &first, const QString &second)
{
    if (pair[0] == first && pair[1] == second)
        return;
    pair = {first, second};
    if (showsValues())
        update();
}

void KeyboardButton::showBubble()
{
    if (!hasBinding())
        return;
    if (!bubble) {
        bubble = new keySetTooltip(this);
        bubble->setTexts(bindingTitle, bindingBody);
    }
    bubble->showAbove(this);
}

void KeyboardButton::hideBubble()
{
    if (bubble)
        bubble->hide();
}
