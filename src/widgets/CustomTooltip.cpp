#include "CustomTooltip.h"

#include "Look.h"

#include <chrono>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

using namespace std::chrono_literals;

namespace {

constexpr auto HideDelay = 1000ms;
constexpr int LongestLine = 260;
constexpr int CornerRadius = 8;

/// Stands on the label itself, so that no style of the widget that shows the bubble reaches into it.
const QString TextStyle = look::sheet(
    QStringLiteral("QLabel { background: transparent; border: none; border-radius: 0px; padding: 0px;"
                   " color: @text; font-size: @note; font-weight: 400; }"));

} // namespace

CustomTooltip::CustomTooltip(QWidget *parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , label(new QLabel(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setCursor(Qt::PointingHandCursor);
    setTakesFocus(true);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    look::setStyleOnce(label, TextStyle);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(look::Space12, look::Space8, look::Space12, look::Space8);
    layout->addWidget(label);
    hideTimer.setInterval(HideDelay);
    hideTimer.setSingleShot(true);
    connect(&hideTimer, &QTimer::timeout, this, &CustomTooltip::goAway);
}

void CustomTooltip::setText(const QString &text)
{
    label->setText(text);
    setAccessibleName(text);
    fitText();
}

QString CustomTooltip::text() const
{
    return label->text();
}

void CustomTooltip::setTextStyle(const QString &style)
{
    look::setStyleOnce(label, TextStyle + style);
    fitText();
}

void CustomTooltip::setTakesFocus(bool takes)
{
    takesFocus = takes;
    setFocusPolicy(takes ? Qt::StrongFocus : Qt::NoFocus);
    setAttribute(Qt::WA_ShowWithoutActivating, !takes);
}

void CustomTooltip::fitText()
{
    label->ensurePolished();
    const QRect room(0, 0, LongestLine, QWIDGETSIZE_MAX);
    const QRect needed =
        label->fontMetrics().boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, label->text());
    label->setFixedWidth(needed.width() + 2);
    adjustSize();
}

void CustomTooltip::press()
{
    Q_EMIT onClicked();
    goAway();
}

void CustomTooltip::goAway()
{
    hideTimer.stop();
    hide();
}

void CustomTooltip::enterEvent(QEnterEvent *event)
{
    hideTimer.stop();
    QWidget::enterEvent(event);
}

void CustomTooltip::leaveEvent(QEvent *event)
{
    hideTimer.start();
    QWidget::leaveEvent(event);
}

void CustomTooltip::focusOutEvent(QFocusEvent *event)
{
    goAway();
    QWidget::focusOutEvent(event);
}

void CustomTooltip::mousePressEvent(QMouseEvent *)
{
    press();
}

void CustomTooltip::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        press();
        break;
    case Qt::Key_Escape:
        goAway();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CustomTooltip::showEvent(QShowEvent *event)
{
    if (takesFocus) {
        activateWindow();
        setFocus(Qt::PopupFocusReason);
    }
    QWidget::showEvent(event);
}

void CustomTooltip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::KeyModifiedBorder, 1));
    painter.setBrush(look::KeyModified);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
}
