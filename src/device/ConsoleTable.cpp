#include "ConsoleTable.h"

#include "CommandCatalogue.h"
#include "CommandRows.h"

#include <QHeaderView>
#include <QTableView>

namespace {

struct ColumnWidth
{
    int column;
    int pixels;
};
constexpr ColumnWidth FixedColumns[] = {
    {CommandRows::Name, 165}, {CommandRows::Command, 90}, {CommandRows::Byte1 + 2, 90}};
constexpr int RowHeight = 20;

} // namespace

ConsoleTable::ConsoleTable(QTableView *tableView, CommandRows *commandRows, QObject *parent)
    : QObject(parent)
    , view(tableView)
    , rows(commandRows)
{
    view->setModel(rows);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(RowHeight);
    for (const ColumnWidth &fixed : FixedColumns) {
        view->horizontalHeader()->setSectionResizeMode(fixed.column, QHeaderView::Fixed);
        view->setColumnWidth(fixed.column, fixed.pixels);
    }
    view->setContextMenuPolicy(Qt::CustomContextMenu);

    connect(rows, &CommandRows::itemChanged, this,
            [this](const QStandardItem *item) { Q_EMIT rowChosen(item->row(), false); });
    connect(view, &QTableView::clicked, this, &ConsoleTable::cellClicked);
    connect(view, &QTableView::doubleClicked, this, &ConsoleTable::sendRow);
    connect(view, &QTableView::customContextMenuRequested, this,
            [this](const QPoint &at) { sendRow(view->indexAt(at)); });
}

void ConsoleTable::cellClicked(const QModelIndex &index)
{
    const int number = index.column() - CommandRows::Byte1 + 1;
    const bool isSwitch =
        rows->commandOf(index.row()) == command::SetLedOnOff && (number == 1 || number == 2);
    if (isSwitch)
        rows->setByte(index.row(), number, rows->byte(index.row(), number) ? 0 : 1);
    else
        Q_EMIT rowChosen(index.row(), false);
}

void ConsoleTable::sendRow(const QModelIndex &index)
{
    if (index.isValid() && index.column() <= CommandRows::Command)
        Q_EMIT rowChosen(index.row(), true);
}
