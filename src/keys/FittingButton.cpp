#include "FittingButton.h"

#include "Look.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

namespace {

constexpr qreal Narrowest = 0.72; ///< of a text's own width
constexpr int Margin = 4;         ///< on both sides of the text, in pixels

} // namespace

void FittingButton::setFunction(const QString &function, const QString &placeholder)
{
    const QString &shown = function.isEmpty() ? placeholder : function;
    if (text() != shown)
        setText(shown);
    setShortcut({}); // an "&" in the name of a key isn't one
    setAccessibleDescription(function);
}

QSize FittingButton::minimumSizeHint() const
{
    return {look::SmallestTarget, QPushButton::minimumSizeHint().height()};
}

/// How far the text has to be set narrower.
qreal FittingButton::narrowing() const
{
    const qreal room = width() - 2 * Margin;
    const qreal needed = fontMetrics().horizontalAdvance(text());
    return needed > room ? qMax(Narrowest, room / needed) : 1.0;
}

QString FittingButton::fittingText() const
{
    const int room = qRound((width() - 2 * Margin) / narrowing());
    return fontMetrics().elidedText(text(), Qt::ElideRight, room, 0);
}

bool FittingButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && fittingText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QPushButton::event(event);
}

void FittingButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const qreal scale = narrowing();
    option.rect.setWidth(qRound(width() / scale));
    option.text = fittingText().replace(QLatin1Char('&'), QLatin1String("&&"));
    painter.scale(scale, 1);
    painter.drawControl(QStyle::CE_PushButtonLabel, option);
}
