#include "MacroSquareText.h"

#include "Look.h"
#include "Macro.h"

#include <algorithm>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

namespace macrotext {

namespace {

constexpr int Largest = 14;
constexpr int Smallest = 9;
constexpr int Weight = 600;

bool fits(const QStringList &lines, const QFont &font, const QSizeF &room)
{
    const QFontMetricsF metrics(font);
    return metrics.height() * qreal(lines.size()) <= room.height() + 2 &&
           std::ranges::all_of(lines, [&metrics, &room](const QString &line) {
               return metrics.horizontalAdvance(line) <= room.width();
           });
}

/// A font in which the lines fit; the smallest if none does.
QFont fittingFont(const QFont &font, const QStringList &lines, const QSizeF &room, int smallest)
{
    int size = Largest;
    while (size > smallest && !fits(lines, look::sized(font, size, Weight), room))
        --size;
    return look::sized(font, size, Weight);
}

/// A single name in two lines: broken behind its hyphen, or between its two words, as "BackSpace".
QStringList brokenName(const QStringList &lines)
{
    const QString line = lines.value(0);
    if (lines.size() != 1)
        return lines;
    for (qsizetype i = 1; i + 1 < line.size(); ++i) {
        const bool isBehindHyphen = line.at(i - 1) == QLatin1Char('-') && i > 1;
        if (isBehindHyphen || (line.at(i - 1).isLower() && line.at(i).isUpper()))
            return {line.left(i), line.mid(i)};
    }
    return lines;
}

} // namespace

QString buttonName(quint16 value)
{
    switch (value) {
    case MacroButton::Left:
        return QCoreApplication::translate("MacroSquare", "左键");
    case MacroButton::Right:
        return QCoreApplication::translate("MacroSquare", "右键");
    case MacroButton::Middle:
        return QCoreApplication::translate("MacroSquare", "中键");
    default:
        return {};
    }
}

QString squareText(const QString &text)
{
    return text.contains(QLatin1Char(' ')) ? text.left(2) : text;
}

void drawLines(QPainter &painter, const QRectF &area, const QStringList &words, const QColor &colour)
{
    constexpr int SmallestUnbroken = 12;
    QStringList lines = words;
    if (!fits(lines, look::sized(painter.font(), SmallestUnbroken, Weight), area.size()))
        lines = brokenName(lines);
    painter.setFont(fittingFont(painter.font(), lines, area.size(), Smallest));
    painter.setPen(colour);
    const QFontMetricsF metrics(painter.font());
    QRectF line(area.left(), 0, area.width(), metrics.height());
    line.moveTop(area.center().y() - metrics.height() * qreal(lines.size()) / 2);
    for (const QString &text : std::as_const(lines)) {
        painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine,
                         metrics.elidedText(text, Qt::ElideRight, area.width()));
        line.translate(0, metrics.height());
    }
}

} // namespace macrotext
