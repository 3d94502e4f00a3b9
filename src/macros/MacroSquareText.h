#pragma once

#include <QString>
#include <QStringList>

class QColor;
class QPainter;
class QRectF;

/// The words on the squares.
namespace macrotext {

/// Name of a mouse button by its MacroButton value, in the language of the moment; empty for others.
QString buttonName(quint16 value);

/// A text as a square shows it: one with a blank in it is cut to its first two characters.
QString squareText(const QString &text);

/// Draws lines around the middle of an area in the largest size that fits; a single long name is broken at
/// its hyphen. What is too long in the smallest size is cut with an ellipsis.
void drawLines(QPainter &painter, const QRectF &area, const QStringList &lines, const QColor &colour);

} // namespace macrotext
