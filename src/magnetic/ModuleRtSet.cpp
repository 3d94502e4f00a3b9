#include "ModuleRtSet.h"

#include "FocusRing.h"
#include "Look.h"
#include "MagneticStyle.h"
#include "Travel.h"
#include "ui_ModuleRtSet.h"

#include <algorithm>
#include <cmath>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>

namespace {

constexpr float Shortest = 0.2F; ///< mm
constexpr float Longest = 2.5F;
constexpr double Step = 0.005;
constexpr int StepThousandths = 5;
/// What a float may lie below the decimal it stands for, in thousandths; without it some steps would be lost.
constexpr double Slack = 0.001;

constexpr QRect Ruler(20, 50, 260, 40);
constexpr int Overreach = 2; ///< how far beside the ruler the pointer still counts
constexpr int Ticks = 20;
constexpr int TickTop = 75;
constexpr int TickBottom = 90;
constexpr int PointerTop = 66;
constexpr int TriangleBase = 12;
const int TriangleHeight = int(6 * std::sqrt(3.0));
constexpr int CaptionTop = 94;
constexpr QSize CaptionSize(60, 18);
constexpr int CaptionPixels = 12;
constexpr QColor OffColor(0xB7, 0xB7, 0xB7);

const QString Style =
    look::sheet(QStringLiteral("ModuleRtSet { background-color: @panel; border-radius: @panelRadius; }"
                               "#labelTitle { color: @text; font-size: @groupTitle; font-weight: 600; }"));

} // namespace

ModuleRtSet::ModuleRtSet(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleRtSet>())
{
    look::setStyleOnce(this, Style + magneticstyle::Controls);
    ui->setupUi(this);
    ui->checkBoxRTMode->setFixedSize(40, 20);
    for (QWidget *button : {ui->pushButtonMinus, ui->pushButtonPlug})
        FocusRing::follow(button, look::PillRadius);
    connectControls();
    showNames();
}

ModuleRtSet::~ModuleRtSet() = default;

void ModuleRtSet::connectControls()
{
    connect(ui->pushButtonMinus, &QAbstractButton::clicked, this, [this] { setValue(readText() - Step); });
    connect(ui->pushButtonPlug, &QAbstractButton::clicked, this, [this] { setValue(readText() + Step); });
    connect(ui->lineEdit, &QLineEdit::textEdited, this, [this] {
        readText();
        update();
    });
    connect(ui->lineEdit, &QLineEdit::returnPressed, this, [this] { setValue(readText()); });
    connect(ui->checkBoxRTMode, &QAbstractButton::clicked, this, &ModuleRtSet::setControlsEnabled);
    for (const auto &[key, button] :
         {std::pair{Qt::Key_Up, ui->pushButtonPlug}, std::pair{Qt::Key_Down, ui->pushButtonMinus}}) {
        auto *shortcut = new QShortcut(key, ui->lineEdit, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
}

void ModuleRtSet::setValue(double millimetres)
{
    const int thousandths = int(std::clamp(millimetres, 0.0, double(Longest)) * 1000.0 + Slack);
    const int stepped = thousandths / StepThousandths * StepThousandths;
    const auto value = float(stepped / 1000.0);
    const float kept = std::clamp(value, Shortest, Longest);
    ui->lineEdit->setText(travel::toText(kept) + QStringLiteral(" mm"));
    Q_EMIT onSetValue(kept, 0);
    update();
}

/// The travel in the box; one out of range is replaced by the limit, as if that had been set.
float ModuleRtSet::readText()
{
    const float typed = travel::fromText(ui->lineEdit->text());
    const float kept = std::clamp(typed, Shortest, Longest);
    if (typed < Shortest || typed > Longest)
        setValue(kept);
    return kept;
}

void ModuleRtSet::setControlsEnabled(bool enabled)
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{ui->pushButtonMinus, ui->lineEdit, ui->pushButtonPlug})
        control->setEnabled(enabled);
    update();
}

bool ModuleRtSet::followPointer(const QPoint &pointer)
{
    if (!Ruler.adjusted(-Overreach, 0, Overreach, 0).contains(pointer))
        return false;
    setValue(double(Shortest) + double(Longest - Shortest) * (pointer.x() - Ruler.left()) / Ruler.width());
    return true;
}

void ModuleRtSet::mousePressEvent(QMouseEvent *event)
{
    const bool wanted = event->button() == Qt::LeftButton && ui->checkBoxRTMode->isChecked();
    dragging = wanted && followPointer(event->position().toPoint());
    event->setAccepted(dragging);
}

void ModuleRtSet::mouseMoveEvent(QMouseEvent *event)
{
    if (dragging)
        followPointer(event->position().toPoint());
}

void ModuleRtSet::mouseReleaseEvent(QMouseEvent *)
{
    dragging = false;
}

void ModuleRtSet::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = ui->checkBoxRTMode->isChecked() ? QColor(Qt::black) : OffColor;
    painter.setPen(QPen(color, 1));
    painter.setBrush(color);
    for (int i = 0; i < Ticks; ++i) {
        const double x = Ruler.left() + int(i * Ruler.width() / (Ticks - 1.0)) + 0.5;
        painter.drawLine(QPointF(x, TickTop), QPointF(x, TickBottom));
    }
    const float value = std::clamp(travel::fromText(ui->lineEdit->text()), Shortest, Longest);
    const double x = Ruler.left() + int((value - Shortest) * Ruler.width() / (Longest - Shortest)) + 0.5;
    painter.drawLine(QPointF(x, PointerTop), QPointF(x, TickBottom));
    const double halfBase = TriangleBase / 2.0;
    const std::array triangle{QPointF(x - halfBase, Ruler.top()), QPointF(x + halfBase, Ruler.top()),
                              QPointF(x, Ruler.top() + TriangleHeight)};
    painter.drawPolygon(triangle.data(), int(triangle.size()));

    painter.setFont(look::sized(font(), CaptionPixels, QFont::Normal));
    painter.setPen(ui->checkBoxRTMode->isChecked() ? look::TextSecondary : look::TextDisabled);
    const QPoint half(CaptionSize.width() / 2, 0);
    for (const auto &[place, limit] : {std::pair(Ruler.left(), Shortest), std::pair(Ruler.right(), Longest)})
        painter.drawText(QRect(QPoint(place, CaptionTop) - half, CaptionSize), Qt::AlignCenter,
                         travel::toText(limit, 1));
}

void ModuleRtSet::showNames()
{
    const QString title = ui->labelTitle->text();
    ui->checkBoxRTMode->setAccessibleName(title);
    ui->lineEdit->setAccessibleName(title);
    ui->pushButtonMinus->setAccessibleName(title + QStringLiteral(" −"));
    ui->pushButtonPlug->setAccessibleName(title + QStringLiteral(" +"));
}

void ModuleRtSet::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        const QString value = ui->lineEdit->text(); // the form's text is only the first one
        ui->retranslateUi(this);
        ui->lineEdit->setText(value);
        showNames();
    }
    QFrame::changeEvent(event);
}
