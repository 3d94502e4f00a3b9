#include "WorksTable.h"

#include "LightWorksModel.h"
#include "Look.h"

#include <QKeyEvent>
#include <QPainter>

WorksTable::WorksTable(QWidget *parent)
    : QTableView(parent)
{
}

void WorksTable::setHint(const QString &text)
{
    hint = text;
    viewport()->update();
}

void WorksTable::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex current = currentIndex();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (current.isValid())
            Q_EMIT clicked(current);
        return;
    case Qt::Key_Delete:
        if (current.isValid())
            Q_EMIT clicked(current.siblingAtColumn(LightWorksModel::ManageColumn));
        return;
    default:
        QTableView::keyPressEvent(event);
    }
}

void WorksTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(look::TextSecondary);
    painter.setFont(look::sized(font(), look::BodySize, QFont::Normal));
    const QRect room = viewport()->rect().adjusted(look::Space24, 0, -look::Space24, 0);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, hint);
}

// Only the page selects: what is selected is the work that was chosen, not what the pointer or the keys pass.
QItemSelectionModel::SelectionFlags WorksTable::selectionCommand(const QModelIndex &, const QEvent *) const
{
    return QItemSelectionModel::NoUpdate;
}
