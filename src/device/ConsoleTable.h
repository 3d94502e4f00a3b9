#pragma once

#include <QObject>

class CommandRows;
class QModelIndex;
class QTableView;

/// The table view of the engineering console: shows the command rows and turns what is done to them into
/// requests. GUI thread only.
class ConsoleTable : public QObject
{
    Q_OBJECT

public:
    /// Sets the view up on the rows; both must outlive this object.
    ConsoleTable(QTableView *view, CommandRows *rows, QObject *parent = nullptr);

Q_SIGNALS:
    /// The command of a row is to be put together and, with \a write, sent.
    void rowChosen(int row, bool write);

private:
    void cellClicked(const QModelIndex &index);
    void sendRow(const QModelIndex &index);

    QTableView *view;
    CommandRows *rows;
};
