#pragma once

#include <QTableView>

/// The table of the light works. A click, or Return on the current cell, chooses a work, and Delete asks to
/// delete it; the arrow keys only look around. While it is empty it shows a hint.
class WorksTable : public QTableView
{
    Q_OBJECT

public:
    explicit WorksTable(QWidget *parent = nullptr);

    void setHint(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    QString hint;
};
