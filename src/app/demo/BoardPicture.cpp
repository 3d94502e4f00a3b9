#include "BoardPicture.h"

#include "KeyboardLayout.h"
#include "KeyMatrix.h"

#include <algorithm>
#include <cmath>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace {

// On the board, in the pixels of the keyboard's layout.
constexpr QRectF Case(14, -14, 932, 392);
constexpr QRectF Strip(46, 356, 868, 5);
constexpr qreal CaseRadius = 22;
constexpr qreal KeyRadius = 8;
constexpr qreal Halo = 4; ///< how far light shines round a key
constexpr qreal KeyPitch = 54;
constexpr int LegendSize = 14;
constexpr qreal PressedDepth = 2;

constexpr qreal SmallestScale = 0.5;
constexpr qreal UsualScale = 0.64;

constexpr QColor CaseColour{0x16, 0x16, 0x1B};
constexpr QColor CaseEdge{0x34, 0x34, 0x3D};
constexpr QColor CapColour{0x2B, 0x2B, 0x33};
constexpr QColor DarkLegend{0x9A, 0x9A, 0xA6};
constexpr QColor PressedRing{0xFF, 0xFF, 0xFF, 200};
constexpr qreal RingWidth = 2;
constexpr qreal CapShare = 0.74; ///< of the light in a cap's colour
constexpr qreal HaloShare = 0.5;
constexpr qreal EyeGamma = 1.6;
constexpr int BrightGray = 140; ///< from here on a dark legend is read better

/// A key that is drawn.
struct Cap
{
    QRectF rect;
    QString legend;
};

struct DrawnBoard
{
    std::vector<Cap> caps;
    std::vector<sim::KeySpot> spots;
};

const DrawnBoard &drawnBoard()
{
    static const DrawnBoard result = [] {
        DrawnBoard made;
        const keys::KeyPlace &first = keys::KeyboardLayout.front();
        for (const keys::KeyPlace &key : keys::KeyboardLayout) {
            const quint8 position = keys::PositionOfCode(key.code);
            if (position >= keys::PositionCount)
                continue;
            const QRectF rect = key.rect();
            const QPointF middle = rect.center() - QPointF(first.left, first.top);
            made.caps.push_back(
                {rect, key.legend.toString().replace(QStringLiteral("&&"), QStringLiteral("&"))});
            made.spots.push_back({position, middle.x() / KeyPitch, middle.y() / KeyPitch});
        }
        return made;
    }();
    return result;
}

QColor toColor(const sim::Colour &colour)
{
    return {colour[0], colour[1], colour[2]};
}

QColor mixed(const QColor &base, const QColor &over, qreal share)
{
    const auto channel = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {channel(base.red(), over.red()), channel(base.green(), over.green()),
            channel(base.blue(), over.blue())};
}

/// A lamp's light as the eye takes it.
struct Shine
{
    QColor colour;      ///< at full strength
    qreal strength = 0; ///< 0 to 1; a weak lamp is seen better than its number says
};

Shine shineOf(const sim::Colour &lamp)
{
    const int highest = *std::ranges::max_element(lamp);
    if (highest == 0)
        return {Qt::black, 0};
    return {{lamp[0] * 255 / highest, lamp[1] * 255 / highest, lamp[2] * 255 / highest},
            std::pow(highest / 255.0, 1 / EyeGamma)};
}

} // namespace

BoardPicture::BoardPicture(QWidget *parent)
    : QWidget(parent)
    , keyColours(spots().size())
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setCursor(Qt::PointingHandCursor);
}

const std::vector<sim::KeySpot> &BoardPicture::spots()
{
    return drawnBoard().spots;
}

void BoardPicture::setLight(std::span<const sim::Colour> keys, std::span<const sim::Colour> strip,
                            const sim::KeySet &pressed)
{
    if (down == pressed && std::ranges::equal(keys, keyColours) && std::ranges::equal(strip, stripColours))
        return;
    keyColours.assign(keys.begin(), keys.end());
    stripColours.assign(strip.begin(), strip.end());
    down = pressed;
    update();
}

QSize BoardPicture::sizeHint() const
{
    return (Case.size() * UsualScale).toSize();
}

QSize BoardPicture::minimumSizeHint() const
{
    return (Case.size() * SmallestScale).toSize();
}

int BoardPicture::heightForWidth(int width) const
{
    return qRound(width * Case.height() / Case.width());
}

QTransform BoardPicture::fromBoard() const
{
    const qreal scale = std::min(width() / Case.width(), height() / Case.height());
    QTransform transform;
    transform.translate(width() / 2.0, height() / 2.0);
    transform.scale(scale, scale);
    transform.translate(-Case.center().x(), -Case.center().y());
    return transform;
}

void BoardPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(fromBoard(), true);
    painter.setPen(QPen(CaseEdge, 2));
    painter.setBrush(CaseColour);
    painter.drawRoundedRect(Case.adjusted(1, 1, -1, -1), CaseRadius, CaseRadius);
    QFont legend = font();
    legend.setPixelSize(LegendSize);
    legend.setWeight(QFont::Medium);
    painter.setFont(legend);
    paintStrip(painter);
    for (std::size_t i = 0; i < drawnBoard().caps.size(); ++i)
        paintKey(painter, i);
}

void BoardPicture::paintKey(QPainter &painter, std::size_t index) const
{
    const Shine shine = shineOf(keyColours[index]);
    const Cap &key = drawnBoard().caps[index];
    QRectF cap = key.rect;
    if (shine.strength > 0) {
        QColor halo = shine.colour;
        halo.setAlphaF(float(HaloShare * shine.strength));
        painter.setPen(Qt::NoPen);
        painter.setBrush(halo);
        painter.drawRoundedRect(cap.adjusted(-Halo, -Halo, Halo, Halo), KeyRadius + Halo, KeyRadius + Halo);
    }
    painter.setPen(Qt::NoPen);
    if (down[std::size_t(spots()[index].position)]) {
        cap.adjust(PressedDepth, PressedDepth, -PressedDepth, -PressedDepth);
        painter.setPen(QPen(PressedRing, RingWidth));
    }
    const QColor lit = mixed(CapColour, shine.colour, CapShare * shine.strength);
    painter.setBrush(lit);
    painter.drawRoundedRect(cap, KeyRadius, KeyRadius);
    const bool bright = qGray(lit.rgb()) > BrightGray;
    painter.setPen(bright ? CaseColour : mixed(DarkLegend, Qt::white, shine.strength));
    painter.drawText(cap, Qt::AlignCenter, key.legend);
}

void BoardPicture::paintStrip(QPainter &painter) const
{
    if (stripColours.empty())
        return;
    QLinearGradient lamps(Strip.topLeft(), Strip.topRight());
    for (std::size_t i = 0; i < stripColours.size(); ++i)
        lamps.setColorAt((qreal(i) + 0.5) / qreal(stripColours.size()), toColor(stripColours[i]));
    painter.setPen(Qt::NoPen);
    painter.setBrush(CapColour);
    painter.drawRoundedRect(Strip, Strip.height() / 2, Strip.height() / 2);
    painter.setBrush(lamps);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (const auto &[reach, opacity] : {std::pair{8.0, 0.08}, {5.0, 0.12}, {2.5, 0.2}, {0.0, 1.0}}) {
        painter.setOpacity(opacity);
        const QRectF shine = Strip.adjusted(-reach, -reach, reach, reach);
        painter.drawRoundedRect(shine, shine.height() / 2, shine.height() / 2);
    }
    painter.setOpacity(1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void BoardPicture::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        pressAt(event->position());
}

void BoardPicture::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        pressAt(event->position());
}

void BoardPicture::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && underMouse >= 0)
        Q_EMIT keyReleased(std::exchange(underMouse, -1));
}

/// A mouse that is dragged presses one key after another.
void BoardPicture::pressAt(const QPointF &at)
{
    const QPointF onBoard = fromBoard().inverted().map(at);
    const auto &caps = drawnBoard().caps;
    const auto cap =
        std::ranges::find_if(caps, [&onBoard](const Cap &each) { return each.rect.contains(onBoard); });
    const int position = cap == caps.end() ? -1 : spots()[std::size_t(cap - caps.begin())].position;
    if (position == underMouse)
        return;
    const int before = std::exchange(underMouse, position);
    if (before >= 0)
        Q_EMIT keyReleased(before);
    if (position >= 0)
        Q_EMIT keyPressed(position);
}
