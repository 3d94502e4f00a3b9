#include "NoticeBar.h"

#include "Look.h"

#include <chrono>
#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace std::chrono_literals;

namespace {

constexpr auto FlashTime = 3500ms;
constexpr int BarHeight = 44;
constexpr int FromBottom = look::Space24;

const QString BarStyle = look::sheet(QStringLiteral(
    "NoticeBar { background-color: #2E2A36; border-radius: 22px; }"
    "QLabel { color: white; font-size: @body; }"
    "QPushButton { border: 2px solid transparent; border-radius: 16px; min-width: 64px; min-height: 28px;"
    " padding: 0px 10px; background-color: #4A4356; color: white; font-size: @body; }"
    "QPushButton:hover { background-color: #5B5269; }"
    "QPushButton:pressed { background-color: #3C3647; }"
    "QPushButton:focus { border-color: @focusLine; }"));

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , label(new QLabel(this))
    , button(new QPushButton(this))
{
    label->setTextFormat(Qt::PlainText);
    button->setCursor(Qt::PointingHandCursor);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(look::Space24, 0, 6, 0);
    layout->setSpacing(look::Space16);
    layout->addWidget(label);
    layout->addWidget(button);
    flashTimer.setSingleShot(true);
    flashTimer.setInterval(FlashTime);
    connect(&flashTimer, &QTimer::timeout, this, &QWidget::hide);
    connect(button, &QPushButton::clicked, this, &NoticeBar::actionChosen);
    parent->installEventFilter(this);
    hide();
}

void NoticeBar::showNotice(const QString &text, const QString &action)
{
    flashTimer.stop();
    present(text, action);
}

void NoticeBar::flash(const QString &text)
{
    if (!isHidden() && !flashTimer.isActive())
        return;
    present(text, {});
    flashTimer.start();
}

void NoticeBar::dismiss()
{
    flashTimer.stop();
    hide();
}

void NoticeBar::present(const QString &text, const QString &action)
{
    look::setStyleOnce(this, BarStyle); // not at construction: most never show
    label->setText(text);
    button->setText(action);
    button->setVisible(!action.isEmpty());
    layout()->setContentsMargins(look::Space24, 0, action.isEmpty() ? look::Space24 : 6, 0);
    setAccessibleName(text);
    show();
    place();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::place()
{
    layout()->activate();
    const int width = qMin(sizeHint().width(), parentWidget()->width());
    setGeometry((parentWidget()->width() - width) / 2, parentWidget()->height() - BarHeight - FromBottom,
                width, BarHeight);
    raise();
}

bool NoticeBar::eventFilter(QObject *watched, QEvent *event)
{
    const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::ChildAdded;
    if (watched == parentWidget() && moved && !isHidden())
        place();
    return QFrame::eventFilter(watched, event);
}
