#pragma once

#include <QStyledItemDelegate>

class QTableView;

/// Draws the items of a one-row table as dots in their foreground colours, the one in the middle larger and
/// over a picture, and tells which was clicked. GUI thread only.
class ColorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int MiddleColumn = 3;

    /// Becomes the view's delegate and child.
    explicit ColorDelegate(QTableView *view);

Q_SIGNALS:
    void onClicked(int column);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    QTableView *table;
    int clickedColumn = -1;
};
