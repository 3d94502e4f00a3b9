#include "ColorSlider.h"

#include "AccessibleControls.h"

#include <array>
#include <QEvent>
#include <QPainter>

namespace {

constexpr double BarHeight = 16;
constexpr double HandleRadius = 10;
constexpr double HandleReach = HandleRadius + 3; ///< with its shadow

constexpr std::array Hues{
    QColor(0xE9, 0x38, 0x1D), QColor(0xF4, 0xC3, 0x3C), QColor(0x71, 0xFB, 0x55), QColor(0x6F, 0xEA, 0xFC),
    QColor(0x30, 0x00, 0xF6), QColor(0xEB, 0x35, 0xD3), QColor(0xE9, 0x37, 0x38),
};

} // namespace

ColorSlider::ColorSlider(QWidget *parent)
    : CustumSlider(Qt::Horizontal, parent)
{
    accessible::setDefaultName(this, tr("色相"));
}

void ColorSlider::changeEvent(QEvent *event)
{
    CustumSlider::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        accessible::setDefaultName(this, tr("色相"));
}

void ColorSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = height() / 2.0;
    QLinearGradient gradient(0, 0, width(), 0);
    for (size_t i = 0; i < Hues.size(); ++i)
        gradient.setColorAt(double(i) / double(Hues.size() - 1), Hues[i]);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(0, middle - BarHeight / 2, width(), BarHeight), BarHeight / 2,
                            BarHeight / 2);

    const double range = qMax(1.0, double(maximum()) - minimum());
    const double part = (double(sliderPosition()) - minimum()) / range;
    const QPointF centre(qBound(HandleReach, part * width(), qMax(HandleReach, width() - HandleReach)),
                         middle);
    look::drawHandle(painter, centre, HandleRadius, isEnabled());
    if (hasFocus()) {
        const double reach = HandleRadius + look::RingWidth;
        look::drawFocusRing(painter, QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach),
                            reach);
    }
}
