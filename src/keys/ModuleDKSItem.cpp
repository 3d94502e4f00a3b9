#include "ModuleDKSItem.h"

#include "AccessibleControls.h"
#include "FocusRing.h"
#include "Look.h"
#include "PictureLabel.h"
#include "ui_ModuleDKSItem.h"

#include <algorithm>
#include <chrono>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace std::chrono_literals;

namespace {

constexpr auto DragRest = 500ms;
constexpr int BarTop = 8;
constexpr int BarHeight = 24;
constexpr int BarRadius = 12;
constexpr int BarBefore = 15; ///< that the bar begins before its first switch
constexpr int BarBehind = 50; ///< from the left edge of its last switch to its end
constexpr int BarLeftmost = 130;
constexpr int BarRightmost = 368;
constexpr int BarLeast = 10;
constexpr int SwitchRadius = 10;

const QString SetPicture = QStringLiteral(":/images/k/ic_selected.png");
const QString ClearPicture = QStringLiteral(":/images/k/ic_add.png");

bool isPress(const QKeyEvent *event)
{
    const int key = event->key();
    return !event->isAutoRepeat() && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter);
}

} // namespace

ModuleDKSItem::ModuleDKSItem(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleDKSItem>())
{
    ui->setupUi(this);
    switches = {ui->labelSwitch1, ui->labelSwitch2, ui->labelSwitch3, ui->labelSwitch4};
    for (size_t point = 0; point < switches.size(); ++point) {
        switches[point]->installEventFilter(this);
        accessible::setRole(switches[point], QAccessible::CheckBox);
        FocusRing::follow(switches[point], SwitchRadius);
        showSwitch(point);
    }
    FocusRing::follow(ui->pushButton_FuncKey, look::PillRadius);
    setFunctionText({});
    dragTimer.setSingleShot(true);
    dragTimer.setInterval(DragRest);
    connect(&dragTimer, &QTimer::timeout, this, [this] {
        if (!dragging)
            forgetDrag();
    });
    connect(ui->pushButton_FuncKey, &QPushButton::clicked, this, &ModuleDKSItem::onButtonClicked);
}

ModuleDKSItem::~ModuleDKSItem() = default;

void ModuleDKSItem::setFunctionText(const QString &text)
{
    functionText = text;
    ui->pushButton_FuncKey->setFunction(text, tr("未设置功能"));
}

void ModuleDKSItem::toggle(size_t point)
{
    states[point] = !states[point];
    showSwitch(point);
}

void ModuleDKSItem::showSwitch(size_t point)
{
    switches[point]->setPicture(states[point] ? SetPicture : ClearPicture);
    switches[point]->setAccessibleDescription(states[point] ? tr("已开启") : tr("关闭"));
    accessible::setOn(switches[point], states[point]);
}

bool ModuleDKSItem::eventFilter(QObject *watched, QEvent *event)
{
    const auto found = std::find(switches.begin(), switches.end(), watched);
    if (found == switches.end())
        return QFrame::eventFilter(watched, event);
    const auto point = size_t(found - switches.begin());
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *release = static_cast<QMouseEvent *>(event);
        // A drag that began on the switch and ends elsewhere is the row's affair.
        if (release->button() == Qt::LeftButton && (*found)->rect().contains(release->position().toPoint()))
            toggle(point);
    } else if (event->type() == QEvent::KeyPress && isPress(static_cast<QKeyEvent *>(event))) {
        toggle(point);
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleDKSItem::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (startX == 0)
        startX = event->position().toPoint().x();
    dragging = true;
}

void ModuleDKSItem::mouseMoveEvent(QMouseEvent *event)
{
    if (dragging)
        followDrag(event->position().toPoint().x());
}

void ModuleDKSItem::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    dragging = false;
    if (currentX == 0)
        dragTimer.start(); // a mere click leaves no start behind
}

/// The bar takes the place of the switches that it covers; the last point always keeps its switch.
void ModuleDKSItem::followDrag(int x)
{
    dragTimer.stop();
    currentX = x;
    bool covered = false;
    for (PictureLabel *label : {switches[0], switches[1], switches[2]}) {
        const QRect place = label->geometry();
        const bool hidden = place.right() < x && place.left() > startX;
        label->setHidden(hidden);
        covered = covered || hidden;
    }
    if (!covered) {
        currentX = 0;
        dragTimer.start();
    }
    update();
}

void ModuleDKSItem::forgetDrag()
{
    startX = 0;
    currentX = 0;
    update();
}

QRect ModuleDKSItem::barRect() const
{
    int left = 0;
    int right = 0;
    for (const PictureLabel *label : switches) {
        if (left == 0 && label->x() > startX)
            left = qMax(label->x() - BarBefore, BarLeftmost);
        if (label->geometry().right() < currentX)
            right = qMin(label->x() + BarBehind, BarRightmost);
    }
    return left > 0 && right - left >= BarLeast ? QRect(left, BarTop, right - left, BarHeight) : QRect();
}

void ModuleDKSItem::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    const QRect bar = barRect();
    if (bar.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::Accent);
    painter.drawRoundedRect(bar, BarRadius, BarRadius);
    if (!qFuzzyCompare(barEnd.devicePixelRatio(), devicePixelRatioF()) || barEnd.isNull())
        barEnd = look::picture(SetPicture, this);
    const int side = int(barEnd.deviceIndependentSize().width());
    const int margin = (BarHeight - side) / 2;
    painter.drawPixmap(bar.right() + 1 - margin - side, bar.top() + margin, barEnd);
}

void ModuleDKSItem::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        setFunctionText(functionText);
        for (size_t point = 0; point < switches.size(); ++point)
            showSwitch(point);
    }
    QFrame::changeEvent(event);
}
