#include "RecordedOperations.h"

QString RecordedOperations::text(const QRect &rect)
{
    return QString::asprintf("%d,%d %dx%d", rect.x(), rect.y(), rect.width(), rect.height());
}

void RecordedOperations::note(const char *operation, const QString &what)
{
    record += QLatin1String(operation) + QLatin1Char(' ') + what;
}

void RecordedOperations::setStyles(Window window, quint32 style, quint32 extended)
{
    note("style", QStringLiteral("%1 %2 %3").arg(window).arg(style, 0, 16).arg(extended, 0, 16));
}

// The parent is whatever native window Qt made; whether there is one is what counts.
void RecordedOperations::setParent(Window window, Window parent)
{
    note(parent ? "embed" : "free", window);
}

void RecordedOperations::place(Window window, Order order, const QRect &rect, unsigned flags)
{
    const QString where = order == Order::Bottom ? QStringLiteral("bottom") : QStringLiteral("elsewhere");
    note("place", QStringLiteral("%1 %2 %3 %4").arg(window).arg(where, text(rect)).arg(flags, 0, 16));
}

void RecordedOperations::move(Window window, const QRect &rect)
{
    note("move", QStringLiteral("%1 %2").arg(window).arg(text(rect)));
}

void RecordedOperations::redraw(Window window, unsigned flags)
{
    note("redraw", QStringLiteral("%1 %2").arg(window).arg(flags, 0, 16));
}

void RecordedOperations::shapeRoundBottom(Window window, const QSize &size, int cornerSize, int squareTop)
{
    note("shape", QString::asprintf("%llu %dx%d %d %d", qulonglong(window), size.width(), size.height(),
                                    cornerSize, squareTop));
}

void RecordedOperations::setValue(const QString &key, const QVariant &value)
{
    values[key] = value;
    note("set", QStringLiteral("%1=%2 %3").arg(key, value.toString(), QLatin1String(value.typeName())));
}
