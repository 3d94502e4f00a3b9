#include "CommandRows.h"

#include "CommandCatalogue.h"

#include <QBrush>
#include <QFont>

namespace {

QStandardItem *makeItem(const QString &text, bool editable)
{
    auto *item = new QStandardItem(text);
    item->setEditable(editable);
    return item;
}

/// Marks a row whose checksum stands one byte later than in all others.
void emphasise(const QList<QStandardItem *> &row)
{
    QFont bold;
    bold.setBold(true);
    for (const int column : {CommandRows::DataLength, CommandRows::Command}) {
        row.at(column)->setFont(bold);
        row.at(column)->setForeground(QBrush(Qt::red));
    }
    QFont name = bold;
    name.setItalic(true);
    row.at(CommandRows::Name)->setFont(name);
    row.at(CommandRows::Name)->setBackground(QBrush(Qt::white));
}

} // namespace

CommandRows::CommandRows(QObject *parent)
    : QStandardItemModel(0, Columns, parent)
{
    for (const CatalogueRow &entry : CommandCatalogue) {
        if (!*entry.name)
            continue;
        QList<QStandardItem *> row;
        row << makeItem(QString::fromLatin1(entry.name), false)
            << makeItem(QString::number(entry.dataLength), false)
            << makeItem(QString::asprintf("%02X", entry.command), false);
        for (const quint8 argument : entry.arguments)
            row << makeItem(QString::number(argument), true);
        row.at(Name)->setForeground(QBrush(Qt::blue));
        if (entry.dataLength == 9)
            emphasise(row);
        appendRow(row);
    }
    retranslate();
}

void CommandRows::retranslate()
{
    const QString headers =
        tr("命令,数据长度,Byte0\n命令号(Hex),Byte1\nEffect,Byte2\nSpeed,Byte3\nBrightness,"
           "Byte4\nOption,Byte5\nR,Byte6\nG,Byte7\nB");
    setHorizontalHeaderLabels(headers.split(QLatin1Char(',')));
}

int CommandRows::rowOf(quint8 command) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (commandOf(row) == command)
            return row;
    }
    return -1;
}

quint8 CommandRows::commandOf(int row) const
{
    const QStandardItem *cell = item(row, Command);
    return cell ? quint8(cell->text().toUInt(nullptr, 16)) : 0;
}

quint8 CommandRows::byte(int row, int number) const
{
    const QStandardItem *cell = item(row, Byte1 + number - 1);
    return cell ? quint8(cell->text().toInt()) : 0;
}

QByteArray CommandRows::rowBytes(int row) const
{
    QByteArray bytes(8, '\0');
    bytes[0] = char(commandOf(row));
    for (int number = 1; number <= 7; ++number)
        bytes[number] = char(byte(row, number));
    return bytes;
}

void CommandRows::setByte(int row, int number, quint8 value)
{
    if (number < 1 || number > 7)
        return;
    if (QStandardItem *cell = item(row, Byte1 + number - 1))
        cell->setText(QString::number(value));
}
