#include "Look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QFont>
#include <QIcon>
#include <QLoggingCategory>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QRadialGradient>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

Q_LOGGING_CATEGORY(lcWidgets, "orbe.widgets")

namespace {

/// A name that style sheets use, for a colour or a length in pixels.
struct Term
{
    const char *name;
    QColor color;
    int pixels = 0;
};

constexpr std::array Terms{
    Term{"accent", look::Accent},
    Term{"accentHover", look::AccentHover},
    Term{"accentPressed", look::AccentPressed},
    Term{"panel", look::Panel},
    Term{"edit", look::Edit},
    Term{"line", look::Line},
    Term{"controlLine", look::ControlLine},
    Term{"tickLine", look::TickLine},
    Term{"focusLine", look::FocusLine},
    Term{"tint", look::Tint},
    Term{"tintLine", look::TintLine},
    Term{"tintPressed", look::TintPressed},
    Term{"scroll", look::Scroll},
    Term{"key", look::KeyPlain},
    Term{"text", look::Text},
    Term{"secondary", look::TextSecondary},
    Term{"disabled", look::TextDisabled},
    Term{"pressSide", look::PressSide},
    Term{"panelRadius", {}, look::PanelRadius},
    Term{"cardRadius", {}, look::InnerCardRadius},
    Term{"keyRadius", {}, look::KeyRadius},
    Term{"editRadius", {}, look::EditRadius},
    Term{"pageTitle", {}, look::PageTitleSize},
    Term{"section", {}, look::SectionSize},
    Term{"sign", {}, look::SignSize},
    Term{"groupTitle", {}, look::GroupTitleSize},
    Term{"body", {}, look::BodySize},
    Term{"note", {}, look::NoteSize},
    Term{"small", {}, look::SmallSize},
};

} // namespace

namespace look {

QString sheet(const QString &text)
{
    QString result;
    result.reserve(text.size());
    qsizetype from = 0;
    for (qsizetype at = text.indexOf(u'@'); at >= 0; at = text.indexOf(u'@', from)) {
        qsizetype end = at + 1;
        while (end < text.size() && text.at(end).isLetter())
            ++end;
        const QStringView name = QStringView(text).sliced(at + 1, end - at - 1);
        const auto *term = std::find_if(Terms.begin(), Terms.end(), [name](const Term &known) {
            return name == QLatin1String(known.name);
        });
        result += QStringView(text).sliced(from, at - from);
        if (term == Terms.end()) {
            qCWarning(lcWidgets) << "no such name in the look:" << name;
            result += QStringView(text).sliced(at, end - at);
        } else {
            result += term->color.isValid() ? term->color.name()
                                            : QString::number(term->pixels) + QLatin1String("px");
        }
        from = end;
    }
    return result += QStringView(text).sliced(from);
}

void setStyleOnce(QWidget *widget, const QString &style)
{
    if (widget && widget->styleSheet() != style)
        widget->setStyleSheet(style);
}

void paintStyledBackground(QWidget *widget)
{
    QStyleOption option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}

QPixmap picture(const QString &path, const QWidget *on)
{
    const qreal ratio = on ? on->devicePixelRatioF() : 1.0;
    const QString key = QStringLiteral("look::picture %1 %2").arg(ratio).arg(path);
    QPixmap found;
    // A file may be another one later, so only what is built into the program is remembered.
    const bool isBuiltIn = path.startsWith(u':');
    if (isBuiltIn && QPixmapCache::find(key, &found))
        return found;
    const QPixmap plain(path);
    if (plain.isNull()) {
        qCWarning(lcWidgets) << "no picture at" << path;
        return plain;
    }
    // An icon looks for the @2x file by itself and scales it smoothly to a factor between the two. Every new
    // icon leaves its own copy in Qt's cache.
    found = QIcon(path).pixmap(plain.deviceIndependentSize().toSize(), ratio);
    if (isBuiltIn)
        QPixmapCache::insert(key, found);
    return found;
}

namespace {

qreal luminance(const QColor &color)
{
    const auto linear = [](float channel) {
        return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

qreal contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor laidOver(const QColor &color, const QColor &ground)
{
    const float alpha = color.alphaF();
    const auto mix = [alpha](float over, float under) { return over * alpha + under * (1 - alpha); };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

QFont sized(const QFont &font, int pixelSize, int weight)
{
    QFont result(font);
    result.setPixelSize(qMax(1, pixelSize));
    result.setWeight(QFont::Weight(qBound(1, weight, 1000)));
    return result;
}

qreal fittingRadius(const QRectF &rect, qreal radius)
{
    return qBound(0.0, radius, qMax(0.0, qMin(rect.width(), rect.height()) / 2));
}

void drawFocusRing(QPainter &painter, const QRectF &rect, qreal radius)
{
    const qreal half = RingWidth / 2.0;
    const QRectF line = rect.adjusted(half, half, -half, -half);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(RingColor, RingWidth));
    painter.setBrush(Qt::NoBrush);
    const qreal fitting = fittingRadius(line, radius - half);
    painter.drawRoundedRect(line, fitting, fitting);
    painter.restore();
}

void drawHandle(QPainter &painter, const QPointF &centre, qreal radius, bool enabled)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (enabled) {
        const QPointF below = centre + QPointF(0, 1);
        const qreal reach = radius + 3;
        QRadialGradient shadow(below, reach);
        shadow.setColorAt(0, QColor(0, 0, 0, 90));
        shadow.setColorAt((radius - 1) / reach, QColor(0, 0, 0, 70));
        shadow.setColorAt(1, QColor(0, 0, 0, 0));
        painter.setBrush(shadow);
        painter.drawEllipse(below, reach, reach);
        painter.setBrush(OnAccent);
    } else {
        painter.setPen(QPen(Line, 1));
        painter.setBrush(Panel);
    }
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

} // namespace look
