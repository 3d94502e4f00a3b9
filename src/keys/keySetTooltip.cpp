#include "keySetTooltip.h"

#include "Look.h"

#include <cmath>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr qreal CornerRadius = 12;
constexpr qreal FreeBelow = 10; ///< under the rounded rectangle, for the tip
constexpr qreal TipSide = 14;
constexpr int LeftOfCentre = 5; ///< the bubble stands so much to the left of the key's centre
constexpr int RuleHeight = 2;

QLabel *addLabel(QVBoxLayout *layout, int weight)
{
    auto *label = new QLabel(layout->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    look::setStyleOnce(
        label, look::sheet(QStringLiteral("QLabel { background: transparent; border: none; color: black;"
                                          " font-size: @note; font-weight: %1; }"))
                   .arg(weight));
    layout->addWidget(label);
    return label;
}

} // namespace

keySetTooltip::keySetTooltip(QWidget *parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                          Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 16);
    layout->setSpacing(look::Space4);
    labelTitle = addLabel(layout, look::GroupTitleWeight);
    auto *rule = new QWidget(this);
    rule->setFixedHeight(RuleHeight);
    look::setStyleOnce(rule, QStringLiteral("background-color: black;"));
    rule->setAttribute(Qt::WA_StyledBackground);
    layout->addWidget(rule);
    labelBody = addLabel(layout, QFont::Normal);
}

void keySetTooltip::setTexts(const QString &title, const QString &body)
{
    labelTitle->setText(title);
    labelBody->setText(body);
    adjustSize();
}

QString keySetTooltip::title() const
{
    return labelTitle->text();
}

QString keySetTooltip::body() const
{
    return labelBody->text();
}

void keySetTooltip::showAbove(const QWidget *key)
{
    ensurePolished();
    adjustSize();
    const QPoint centre = key->mapToGlobal(QPoint(key->width() / 2, 0));
    QPoint place = centre - QPoint(width() / 2 + LeftOfCentre, height());
    if (const QScreen *screen = key->screen()) {
        const QRect room = screen->availableGeometry();
        place.setX(qMax(room.left(), qMin(place.x(), room.right() + 1 - width())));
        place.setY(qMax(room.top(), place.y()));
    }
    tip = centre.x() - place.x();
    move(place);
    show();
    update();
}

void keySetTooltip::paintEvent(QPaintEvent *)
{
    const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -FreeBelow);
    QPainterPath bubble;
    bubble.addRoundedRect(box, CornerRadius, CornerRadius);
    // The tip's upper edge lies inside the box and goes with the union, so that the two are one shape.
    const qreal tipHeight = TipSide * std::sqrt(3.0) / 2;
    const qreal reach = CornerRadius + TipSide / 2;
    const qreal x = qBound(reach, qreal(tip), qMax(reach, width() - reach));
    const qreal lowest = height() - 1;
    QPainterPath point;
    point.addPolygon(QPolygonF({QPointF(x - TipSide / 2, lowest - tipHeight),
                                QPointF(x + TipSide / 2, lowest - tipHeight), QPointF(x, lowest)}));
    point.closeSubpath();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::KeyModifiedBorder, 1));
    painter.setBrush(look::KeyModified);
    painter.drawPath(bubble.united(point));
}
