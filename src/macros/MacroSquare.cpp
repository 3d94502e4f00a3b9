#include "MacroSquare.h"

#include "AccessibleControls.h"
#include "FocusRing.h"
#include "Look.h"
#include "MacroSquareText.h"
#include "MacroStyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSpinBox>
#include <QToolButton>

namespace {

constexpr int LargestPosition = 127;
constexpr QSize BoxSize(50, 24);
constexpr QSize ButtonSize(24, 24);
constexpr QSize LabelSize(48, 36); ///< of the text that a click turns into a box
constexpr int ButtonsTop = 34;
constexpr int Frame = 4; ///< pixels that the mark of a selected or focused square takes
constexpr qreal Radius = look::KeyRadius;
constexpr QColor SelectedMark = look::Text;

const macrostyle::SquareColours &coloursOf(const MacroEvent &event)
{
    switch (event.type) {
    case MacroType::Delay:
        return macrostyle::Delay;
    case MacroType::Position:
        return macrostyle::Position;
    default:
        return event.down ? macrostyle::Press : macrostyle::Release;
    }
}

} // namespace

MacroSquare::MacroSquare(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("MacroSquare"));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::ClickFocus);
    accessible::setRole(this, QAccessible::ListItem);
}

void MacroSquare::setEvent(quint8 type, quint16 value, bool down, const QString &text)
{
    hideBoxes(false);
    hideButtons();
    event = {type, down, value, text};
    spinX = value & 0xFF;
    spinY = value >> 8;
    setSelected(false);
    setAccessibleName(lines().join(QLatin1Char(' ')));
    resize(sideOf(type), sideOf(type));
    update();
}

void MacroSquare::setValue(quint16 value)
{
    setEvent(event.type, value, event.down, event.text);
}

void MacroSquare::setSelected(bool on)
{
    accessible::setOn(this, on);
    if (std::exchange(selected, on) != on)
        update();
}

/// Where the words stand that a click turns into a box.
QRect MacroSquare::labelRect() const
{
    QRect label({}, LabelSize);
    label.moveCenter(rect().center());
    return label;
}

QStringList MacroSquare::lines() const
{
    switch (event.type) {
    case MacroType::Delay:
        return {QString::number(event.value), QStringLiteral("ms")};
    case MacroType::Position:
        return {QStringLiteral("X: %1").arg(spinX), QStringLiteral("Y: %1").arg(spinY)};
    case MacroType::Button:
        return {macrotext::buttonName(event.value)};
    default:
        return {macrotext::squareText(event.text)};
    }
}

void MacroSquare::mousePressEvent(QMouseEvent *mouse)
{
    labelPressed = isEditable() && labelRect().contains(mouse->pos());
    Q_EMIT pressed(this);
    if (!labelPressed)
        setSelected(!selected);
}

void MacroSquare::mouseReleaseEvent(QMouseEvent *mouse)
{
    const bool isOnLabel = labelRect().contains(mouse->pos());
    if (std::exchange(labelPressed, false)) {
        if (isOnLabel)
            showBoxes();
    } else if (event.type != MacroType::Delay) {
        showButtons();
    }
}

void MacroSquare::keyPressEvent(QKeyEvent *key)
{
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        if (isEditable())
            showBoxes();
        else
            showButtons();
        break;
    case Qt::Key_Space:
        Q_EMIT pressed(this);
        setSelected(!selected);
        if (event.type != MacroType::Delay)
            showButtons();
        break;
    case Qt::Key_Delete:
        if (event.type != MacroType::Delay)
            Q_EMIT onAction(this, DeleteThis);
        break;
    default:
        QFrame::keyPressEvent(key);
    }
}

void MacroSquare::showButtons()
{
    if (!insertButton) {
        insertButton = makeButton(QStringLiteral(":/images/macroedit/insert.png"), tr("插入"), InsertHere);
        deleteButton = makeButton(QStringLiteral(":/images/macroedit/delete.png"), tr("删除"), DeleteThis);
        insertButton->move(width() / 2 - ButtonSize.width() - 1, ButtonsTop);
        deleteButton->move(width() / 2 + 1, ButtonsTop);
        setTabOrder(this, insertButton);
        setTabOrder(insertButton, deleteButton);
    }
    insertButton->show();
    deleteButton->show();
    update();
}

void MacroSquare::hideButtons()
{
    if (!insertButton || insertButton->isHidden())
        return;
    insertButton->hide();
    deleteButton->hide();
    update();
}

QToolButton *MacroSquare::makeButton(const QString &picture, const QString &name, Action action)
{
    auto *button = new QToolButton(this);
    look::setStyleOnce(button, macrostyle::SquareButton);
    button->setIcon(QIcon(picture));
    button->setIconSize({16, 16});
    button->setFixedSize(ButtonSize);
    button->setToolTip(name);
    button->setAccessibleName(name);
    FocusRing::follow(button, look::PillRadius);
    connect(button, &QToolButton::clicked, this, [this, action] { Q_EMIT onAction(this, action); });
    return button;
}

QSpinBox *MacroSquare::makeBox(int index)
{
    auto *box = new QSpinBox(this);
    look::setStyleOnce(box, macrostyle::SquareBox);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setAlignment(Qt::AlignCenter);
    box->setFixedSize(BoxSize);
    box->installEventFilter(this);
    boxes[index] = box;
    return box;
}

void MacroSquare::showBoxes()
{
    hideButtons();
    const bool isPosition = event.type == MacroType::Position;
    const int values[] = {isPosition ? spinX : event.value, spinY};
    const int count = isPosition ? 2 : 1;
    for (int i = 0; i < count; ++i) {
        QSpinBox *box = boxes[i] ? boxes[i] : makeBox(i);
        box->setRange(isPosition ? 0 : ShortestDelay, isPosition ? LargestPosition : LongestDelay);
        box->setValue(values[i]);
        box->setAccessibleName(!isPosition ? tr("延迟") : QString(QLatin1Char(i == 0 ? 'X' : 'Y')));
        QRect place({}, BoxSize);
        place.moveCenter(rect().center());
        if (isPosition)
            place.moveTop(height() / 2 + (i == 0 ? -BoxSize.height() - 1 : 1));
        box->move(place.topLeft());
        box->show();
    }
    boxes[0]->setFocus();
    boxes[0]->selectAll();
}

void MacroSquare::hideBoxes(bool takeValue)
{
    if (!boxes[0] || boxes[0]->isHidden())
        return;
    const bool isPosition = event.type == MacroType::Position;
    const int first = boxes[0]->value();
    const int second = isPosition ? boxes[1]->value() : 0;
    for (QSpinBox *box : boxes) {
        if (box)
            box->hide();
    }
    update();
    if (!takeValue)
        return;
    // What the user didn't change stays, also if it is out of the boxes' range.
    if (isPosition &&
        (first != qMin<int>(spinX, LargestPosition) || second != qMin<int>(spinY, LargestPosition))) {
        spinX = quint8(first);
        spinY = quint8(second);
        // Deliberate: shown as typed now, and with the two numbers in each other's place once reloaded.
        event.value = quint16(256 * first + second);
        Q_EMIT edited();
    } else if (!isPosition && first != qMax<int>(event.value, ShortestDelay)) {
        event.value = quint16(first);
        Q_EMIT edited();
    }
}

bool MacroSquare::eventFilter(QObject *watched, QEvent *filtered)
{
    auto *box = qobject_cast<QSpinBox *>(watched);
    if (filtered->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(filtered)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            box->interpretText();
            hideBoxes(key != Qt::Key_Escape);
            setFocus();
            return true;
        }
    } else if (filtered->type() == QEvent::FocusOut) {
        box->interpretText();
        const QWidget *next = QApplication::focusWidget();
        if (!next || next == box || (next != boxes[0] && next != boxes[1]))
            hideBoxes(true);
    }
    return QFrame::eventFilter(watched, filtered);
}

void MacroSquare::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const macrostyle::SquareColours &colours = coloursOf(event);
    QRectF ground(rect());
    if (selected || hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        if (selected) {
            painter.setPen(QPen(SelectedMark, look::RingWidth));
            painter.drawRoundedRect(ground.adjusted(1, 1, -1, -1), Radius, Radius);
        }
        ground.adjust(Frame, Frame, -Frame, -Frame);
        if (hasFocus())
            look::drawFocusRing(painter, ground.adjusted(-2, -2, 2, 2), Radius);
    }
    painter.setPen(QPen(colours.border, 1));
    painter.setBrush(colours.ground);
    painter.drawRoundedRect(ground.adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);

    if (boxes[0] && boxes[0]->isVisible())
        return;
    QRectF area(rect());
    if (insertButton && insertButton->isVisible())
        area.setBottom(ButtonsTop);
    macrotext::drawLines(painter, area.adjusted(Frame + 1, Frame, -Frame - 1, -Frame), lines(), colours.text);
}
