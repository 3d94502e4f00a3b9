#pragma once

#include <QWidget>

class MacroSquare;

/// The squares of the open macro, twelve in a row, in the order of its steps: actions at even places, each
/// with its delay behind it. Lies in a scroll area. GUI thread only.
class MacroGrid : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Columns = 12;
    static constexpr int Spacing = 4;

    explicit MacroGrid(QWidget *parent = nullptr);

    const QList<MacroSquare *> &squares() const { return list; }

    /// Puts a square for a step at an index of the list; it shows after the next arrange().
    MacroSquare *insert(qsizetype index, quint8 type, quint16 value, bool down, const QString &text);
    /// Takes out an action and the delay behind it. A square that isn't in the list is left alone.
    void removePair(MacroSquare *action);
    void clear();

    /// Places all squares and selects none.
    void arrange();
    /// Does the same for those from an index on, for squares that were appended.
    void arrangeFrom(qsizetype index);

Q_SIGNALS:
    void squareAction(MacroSquare *from, uchar action);
    void squareEdited();
    /// The keyboard moved to a square, which may be out of sight.
    void squareReached(MacroSquare *square);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    MacroSquare *take();
    void putAway(MacroSquare *square);
    void makeStop(MacroSquare *square);
    void touch(MacroSquare *square);
    void showInSight();

    QList<MacroSquare *> list;
    QList<MacroSquare *> spare;     ///< hidden squares, used again before new ones are made
    MacroSquare *touched = nullptr; ///< the last one pressed or reached; where Tab comes in
};
