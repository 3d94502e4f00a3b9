#pragma once

#include <QByteArray>
#include <QStandardItemModel>

/// The catalogue as a table that can be looked at and edited: the one store of the bytes that row-wise
/// commands go out with. An operation changes the one byte that it is about, and the rest of the row goes out
/// as it is. GUI thread only.
class CommandRows : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { Name, DataLength, Command, Byte1, Byte7 = Byte1 + 6, Columns };

    explicit CommandRows(QObject *parent = nullptr);

    /// First row of a command, -1 if there is none.
    int rowOf(quint8 command) const;
    /// The command byte of a row; 0 for a row that isn't there.
    quint8 commandOf(int row) const;

    /// The eight bytes of a row. A cell that isn't there, or holds no number, gives 0; larger numbers are
    /// cut.
    QByteArray rowBytes(int row) const;
    /// Sets one byte, \a number 1 to 7; a cell that isn't there is skipped.
    void setByte(int row, int number, quint8 value);
    quint8 byte(int row, int number) const;

    /// Sets the header texts in the language of the moment.
    void retranslate();
};
