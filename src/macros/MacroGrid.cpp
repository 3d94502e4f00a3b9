#include "MacroGrid.h"

#include "MacroSquare.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr int RowPitch = MacroSquare::ActionSide + MacroGrid::Spacing;
constexpr int PairPitch = MacroSquare::ActionSide + MacroSquare::DelaySide + 2 * MacroGrid::Spacing;
constexpr int GridWidth = MacroGrid::Columns / 2 * PairPitch - MacroGrid::Spacing;

QRect placeOf(qsizetype index, int side)
{
    const int row = int(index / MacroGrid::Columns);
    const int column = int(index % MacroGrid::Columns);
    const int x = column / 2 * PairPitch + column % 2 * (MacroSquare::ActionSide + MacroGrid::Spacing);
    return {x, row * RowPitch + (MacroSquare::ActionSide - side) / 2, side, side};
}

} // namespace

MacroGrid::MacroGrid(QWidget *parent)
    : QWidget(parent)
{
    setMinimumWidth(GridWidth);
}

MacroSquare *MacroGrid::take()
{
    if (!spare.isEmpty())
        return spare.takeLast();
    auto *square = new MacroSquare(this);
    connect(square, &MacroSquare::pressed, this, &MacroGrid::touch);
    connect(square, &MacroSquare::onAction, this, &MacroGrid::squareAction);
    connect(square, &MacroSquare::edited, this, &MacroGrid::squareEdited);
    return square;
}

void MacroGrid::putAway(MacroSquare *square)
{
    if (touched == square)
        touched = nullptr;
    square->setFocusPolicy(Qt::ClickFocus);
    square->hide();
    spare.append(square);
}

MacroSquare *MacroGrid::insert(qsizetype index, quint8 type, quint16 value, bool down, const QString &text)
{
    MacroSquare *square = take();
    square->hide(); // until its place is known
    square->setEvent(type, value, down, text);
    list.insert(index, square);
    return square;
}

void MacroGrid::removePair(MacroSquare *action)
{
    const qsizetype index = list.indexOf(action);
    if (index < 0)
        return;
    putAway(list.takeAt(index));
    if (index < list.size())
        putAway(list.takeAt(index));
}

void MacroGrid::clear()
{
    // The last comes first, so that the squares are taken in their order again.
    while (!list.isEmpty())
        putAway(list.takeLast());
}

void MacroGrid::arrange()
{
    arrangeFrom(0);
}

void MacroGrid::arrangeFrom(qsizetype index)
{
    for (qsizetype i = index; i < list.size(); ++i) {
        MacroSquare *square = list.at(i);
        square->setGeometry(placeOf(i, MacroSquare::sideOf(square->type())));
        square->setSelected(false);
        square->hideButtons();
    }
    const qsizetype rows = (list.size() + Columns - 1) / Columns;
    setMinimumHeight(int(qMax<qsizetype>(0, rows * RowPitch - Spacing)));
    if (!touched && !list.isEmpty()) {
        touched = list.first();
        makeStop(touched);
    }
    showInSight();
}

// A shown square has to be styled and a hidden one not, which is what makes long macros open at once.
void MacroGrid::showInSight()
{
    const QWidget *port = parentWidget();
    const int top = -y();
    const int height = port ? port->height() : 0;
    const QWidget *focus = QApplication::focusWidget();
    for (MacroSquare *square : std::as_const(list)) {
        const bool isInSight = square->y() > top - 2 * RowPitch && square->y() < top + height + RowPitch;
        const bool isNeeded = isInSight || square == touched || (focus && square->isAncestorOf(focus));
        if (isNeeded == square->isHidden())
            square->setVisible(isNeeded);
    }
}

/// Makes a square the one that Tab comes by, where the grid stands among the page's controls.
void MacroGrid::makeStop(MacroSquare *square)
{
    square->setFocusPolicy(Qt::StrongFocus);
    QWidget *before = previousInFocusChain();
    while (before != this && (!(before->focusPolicy() & Qt::TabFocus) || isAncestorOf(before)))
        before = before->previousInFocusChain();
    if (before != this)
        setTabOrder(before, square);
}

void MacroGrid::touch(MacroSquare *square)
{
    if (touched && touched != square) {
        touched->hideButtons();
        touched->setFocusPolicy(Qt::ClickFocus);
    }
    touched = square;
    makeStop(touched);
}

void MacroGrid::keyPressEvent(QKeyEvent *event)
{
    const qsizetype index = touched && touched->hasFocus() ? list.indexOf(touched) : -1;
    qsizetype step = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Right:
        step = 1;
        break;
    case Qt::Key_Up:
        step = -Columns;
        break;
    case Qt::Key_Down:
        step = Columns;
        break;
    default:
        break;
    }
    if (index < 0 || step == 0 || index + step < 0 || index + step >= list.size()) {
        QWidget::keyPressEvent(event);
        return;
    }
    touch(list.at(index + step));
    touched->show();
    touched->setFocus();
    Q_EMIT squareReached(touched);
}

void MacroGrid::moveEvent(QMoveEvent *event)
{
    showInSight();
    QWidget::moveEvent(event);
}

void MacroGrid::resizeEvent(QResizeEvent *event)
{
    showInSight();
    QWidget::resizeEvent(event);
}
