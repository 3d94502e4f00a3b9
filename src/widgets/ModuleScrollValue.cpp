#include "ModuleScrollValue.h"

#include "AccessibleControls.h"
#include "FocusRing.h"
#include "Look.h"
#include "ui_ModuleScrollValue.h"

#include <array>
#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

constexpr int Slots = 5;
constexpr int CentreSlot = 2;
constexpr qint64 StartTurns = 1'000'000'000; // far from 0, so that turning back has room

const QString WheelStyle = look::sheet(QStringLiteral(
    "QLabel { background: transparent; border: none; font-weight: 400; }"
    "#labelValue1, #labelValue5 { font-size: @small; }"
    "#labelValue1:enabled, #labelValue5:enabled { color: @secondary; }"
    "#labelTitleL2, #labelTitleL1 { font-size: @body; }"
    "#labelTitleL2:enabled, #labelTitleL1:enabled { color: @secondary; }"
    "#labelTitle1 { font-size: @section; font-weight: 600; }"
    "#labelTitle1:enabled { color: @text; }"
    "#labelValue1:hover, #labelTitleL2:hover, #labelTitleL1:hover, #labelValue5:hover { color: @accent; }"
    "#labelLine1, #labelLine2 { background-color: @line; }"
    "QLabel:disabled { color: @disabled; }"));

std::array<QLabel *, Slots> slotLabels(const Ui::ModuleScrollValue &ui)
{
    return {ui.labelValue1, ui.labelTitleL2, ui.labelTitle1, ui.labelTitleL1, ui.labelValue5};
}

/// The remainder that is never negative; size must be above 0.
qint64 wrapped(qint64 number, qint64 size)
{
    const qint64 rest = number % size;
    return rest < 0 ? rest + size : rest;
}

} // namespace

ModuleScrollValue::ModuleScrollValue(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleScrollValue>())
{
    ui->setupUi(this);
    look::setStyleOnce(this, WheelStyle);
    for (QLabel *label : slotLabels(*ui))
        label->installEventFilter(this);
    FocusRing::follow(this, look::InnerCardRadius);
    accessible::installRoles();
    accessible::setDefaultName(this, tr("数值滚轮"));
}

ModuleScrollValue::~ModuleScrollValue() = default;

void ModuleScrollValue::setValues(const QStringList &values)
{
    texts = values;
    position = StartTurns * texts.size();
    refresh();
    if (!texts.isEmpty())
        Q_EMIT onIndexChanged(currentIndex());
}

void ModuleScrollValue::setIndex(int newIndex)
{
    if (texts.isEmpty())
        return;
    position = newIndex + texts.size() * StartTurns - CentreSlot;
    refresh();
}

void ModuleScrollValue::stepBy(qint64 steps)
{
    if (texts.isEmpty() || steps == 0)
        return;
    position = wrapped(position, texts.size()) + wrapped(steps, texts.size()) + StartTurns * texts.size();
    refresh();
    Q_EMIT onIndexChanged(currentIndex());
}

void ModuleScrollValue::refresh()
{
    const std::array<QLabel *, Slots> labels = slotLabels(*ui);
    for (int slot = 0; slot < Slots; ++slot) {
        labels[size_t(slot)]->setText(texts.isEmpty() ? QString()
                                                      : texts.at(wrapped(position + slot, texts.size())));
    }
    index = texts.isEmpty() ? -1 : wrapped(position + CentreSlot, texts.size());

    QAccessibleValueChangeEvent changed(this, currentText());
    QAccessible::updateAccessibility(&changed);
}

bool ModuleScrollValue::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && isEnabled()) {
        wheelEvent(static_cast<QWheelEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease && isEnabled()) {
        const std::array<QLabel *, Slots> labels = slotLabels(*ui);
        const auto hit = std::find(labels.begin(), labels.end(), watched);
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (hit != labels.end() && mouse->button() == Qt::LeftButton &&
            (*hit)->rect().contains(mouse->position().toPoint())) {
            stepBy(hit - labels.begin() - CentreSlot);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleScrollValue::wheelEvent(QWheelEvent *event)
{
    if (texts.isEmpty()) {
        event->ignore();
        return;
    }
    stepBy(event->angleDelta().y() > 0 ? -1 : 1);
    event->accept();
}

void ModuleScrollValue::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        stepBy(-1);
        break;
    case Qt::Key_Down:
        stepBy(1);
        break;
    case Qt::Key_Home:
        stepBy(-index);
        break;
    case Qt::Key_End:
        stepBy(texts.size() - 1 - index);
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void ModuleScrollValue::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        accessible::setDefaultName(this, tr("数值滚轮"));
    QFrame::changeEvent(event);
}
