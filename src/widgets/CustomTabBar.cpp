#include "CustomTabBar.h"

#include "AccessibleControls.h"

#include <QEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPropertyAnimation>

namespace {

constexpr int SlideDuration = 300; // ms
constexpr QColor SlideColor(0x34, 0x98, 0xDB);
constexpr int BarHeight = 3;
constexpr int BarInset = 20;
constexpr int BarAboveBottom = 6;
constexpr int SelectedWeight = 800;
constexpr int NormalWeight = 400;
constexpr int TabHeight = 40;
constexpr int SmallestTab = 80;
constexpr int CornerRadius = 8;

const QByteArray WidthProperty = QByteArrayLiteral("currentWidth");

void drawBar(QPainter &painter, qreal x, qreal y, qreal width, const QColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(x, y, width, BarHeight), BarHeight / 2.0, BarHeight / 2.0);
}

void prepareAnimation(QPropertyAnimation *animation)
{
    animation->setDuration(SlideDuration);
    animation->setEasingCurve(QEasingCurve::OutQuart);
}

/// A card that is round at its two upper corners.
QPainterPath tabCard(const QRectF &rect)
{
    QPainterPath round;
    round.addRoundedRect(rect.adjusted(0, 0, 0, CornerRadius), CornerRadius, CornerRadius);
    QPainterPath upper;
    upper.addRect(rect);
    return round.intersected(upper);
}

} // namespace

CustomTabBar::CustomTabBar(QWidget *parent)
    : QTabBar(parent)
    , slide(new QPropertyAnimation(this, "currentX", this))
{
    prepareAnimation(slide);
    prepareAnimation(new QPropertyAnimation(this, WidthProperty, this));
    setMouseTracking(true);
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(false); // where room is short the texts are cut
    setElideMode(Qt::ElideRight);
    setFocusPolicy(Qt::TabFocus);
    accessible::setDefaultName(this, tr("选项卡"));
    connect(this, &QTabBar::currentChanged, this, &CustomTabBar::onCurrentChanged);
}

void CustomTabBar::setCurrentX(int x)
{
    barX = qBound(-QWIDGETSIZE_MAX, x, QWIDGETSIZE_MAX);
    update();
}

void CustomTabBar::setCurrentWidth(int width)
{
    barWidth = qBound(0, width, QWIDGETSIZE_MAX);
    update();
}

void CustomTabBar::onCurrentChanged(int index)
{
    if (index < 0 || index >= count())
        return;
    const QRect target = tabRect(index);
    const auto glide = [](QPropertyAnimation *animation, int from, int to) {
        animation->stop();
        animation->setStartValue(from);
        animation->setEndValue(to);
        animation->start();
    };
    glide(slide, barX, target.x());
    const auto animations = findChildren<QPropertyAnimation *>(QString(), Qt::FindDirectChildrenOnly);
    for (QPropertyAnimation *animation : animations) {
        if (animation->propertyName() == WidthProperty)
            glide(animation, barWidth, target.width());
    }
}

bool CustomTabBar::event(QEvent *event)
{
    if (event->type() == QEvent::MouseMove) {
        setHoveredTab(tabAt(static_cast<QMouseEvent *>(event)->position().toPoint()));
    } else if (event->type() == QEvent::Leave) {
        setHoveredTab(-1);
    }
    return QTabBar::event(event);
}

void CustomTabBar::setHoveredTab(int index)
{
    if (hoveredTab == index)
        return;
    hoveredTab = index;
    update();
}

void CustomTabBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        accessible::setDefaultName(this, tr("选项卡"));
    QTabBar::changeEvent(event);
}

QSize CustomTabBar::tabSizeHint(int index) const
{
    const QFontMetrics metrics(look::sized(font(), look::BodySize, SelectedWeight));
    const int text = metrics.size(Qt::TextHideMnemonic, tabText(index)).width();
    return {qMax(SmallestTab, text + 2 * look::Space24), TabHeight};
}

void CustomTabBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBar(painter, barX, height() - BarHeight, barWidth, SlideColor);
    for (int index = 0; index < count(); ++index) {
        if (isTabVisible(index))
            paintTab(painter, index);
    }
}

void CustomTabBar::paintTab(QPainter &painter, int index) const
{
    const QRect tab = tabRect(index);
    const bool selected = index == currentIndex();
    const bool enabled = isEnabled() && isTabEnabled(index);
    const bool hovered = enabled && index == hoveredTab;
    painter.fillPath(tabCard(tab), selected ? selectedColor : hovered ? hoverColor : normalColor);

    QColor textColor = selected ? look::Accent : hovered ? QColor(Qt::blue) : QColor(Qt::black);
    if (!enabled)
        textColor = look::TextDisabled;
    const QFont tabFont = look::sized(font(), look::BodySize, selected ? SelectedWeight : NormalWeight);
    painter.setFont(tabFont);
    painter.setPen(textColor);
    const QRect textRect = tab.adjusted(look::Space8, 0, -look::Space8, 0);
    const QString text = QFontMetrics(tabFont).elidedText(tabText(index), Qt::ElideRight, textRect.width(),
                                                          Qt::TextHideMnemonic);
    painter.drawText(textRect, Qt::AlignCenter | Qt::TextHideMnemonic, text);
    if (!selected)
        return;
    drawBar(painter, tab.x() + BarInset, tab.y() + tab.height() - BarAboveBottom, tab.width() - 2 * BarInset,
            enabled ? look::Accent : look::TextDisabled);
    if (hasFocus())
        look::drawFocusRing(painter, tab, CornerRadius);
}
