#include "ModuleDKSAdjust.h"

#include "FocusRing.h"
#include "Look.h"
#include "SliderEdit.h"
#include "ui_ModuleDKSAdjust.h"

namespace {

constexpr int Step = 5;            ///< of the slider, in thousandths of a millimetre
constexpr int StepPeriod = 100;    ///< while a step button is held down, in ms
constexpr int InitialTravel = 700; ///< thousandths of a millimetre
constexpr QSize PopupSize(206, 304);
constexpr double Thousandths = 1000.0;

const QString AdjustStyle = look::sheet(QStringLiteral(
    "QFrame#DKSAdjust{background-color:@panel; border-radius:@cardRadius; min-width:200px; "
    "min-height:240px;margin:20px;}"
    "#labelTitleS1 { color: @text; font-size: @groupTitle; font-weight: 600; }"
    "QLineEdit { border-color: @edit; }"
    "QLineEdit:focus { border-color: @focusLine; }"
    "QPushButton { border: none; font-size: @body; }"
    "#pushButtonM1, #pushButtonP1 { background-color: white; border: 1px solid @controlLine; border-radius: "
    "15px;"
    " color: @text; font-size: @sign; }"
    "#pushButtonM1:hover, #pushButtonP1:hover { border-color: @tintLine; background-color: @tint; }"
    "#pushButtonM1:pressed, #pushButtonP1:pressed { background-color: @tintPressed; }"
    "#pushButtonCancel { background-color: transparent; border-radius: 14px; }"
    "#pushButtonCancel:hover { background-color: @line; }"
    "#pushButtonOK { background-color: @accent; color: white; border-radius: 16px; padding: 0px 12px; }"
    "#pushButtonOK:hover { background-color: @accentHover; }"
    "#pushButtonOK:pressed { background-color: @accentPressed; }"));

QString travelText(int thousandths)
{
    return QString::number(thousandths / Thousandths, 'f', 3);
}

double travelOf(const QString &text)
{
    return double(text.toFloat() * float(Thousandths));
}

} // namespace

ModuleDKSAdjust::ModuleDKSAdjust(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleDKSAdjust>())
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("DKSAdjust"));
    look::setStyleOnce(this, AdjustStyle);
    new SliderEdit(ui->verticalSlider1, ui->lineEditValue1, &travelText, &travelOf);
    ui->verticalSlider1->setFillColor(look::PressSide);
    ui->verticalSlider1->setValue(InitialTravel);
    for (const auto &[button, step] :
         {std::pair{ui->pushButtonM1, -Step}, std::pair{ui->pushButtonP1, Step}}) {
        button->setAutoRepeat(true);
        button->setAutoRepeatInterval(StepPeriod);
        FocusRing::follow(button, look::PillRadius);
        connect(button, &QPushButton::clicked, this,
                [slider = ui->verticalSlider1, step = step] { slider->setValue(slider->value() + step); });
    }
    FocusRing::follow(ui->pushButtonOK, look::PillRadius);
    FocusRing::follow(ui->pushButtonCancel, look::PillRadius);
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, &QWidget::hide);
    connect(ui->lineEditValue1, &QLineEdit::returnPressed, ui->pushButtonOK, &QPushButton::click);
    connect(ui->pushButtonOK, &QPushButton::clicked, this, [this] {
        Q_EMIT onValueSave(ui->lineEditValue1->text().trimmed());
        hide();
    });
}

ModuleDKSAdjust::~ModuleDKSAdjust() = default;

void ModuleDKSAdjust::setTravelText(const QString &text)
{
    ui->lineEditValue1->setText(text);
}

QSize ModuleDKSAdjust::sizeHint() const
{
    return PopupSize; // the margins of the style make it wider
}

void ModuleDKSAdjust::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    ui->lineEditValue1->setFocus();
    ui->lineEditValue1->selectAll();
}

void ModuleDKSAdjust::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QFrame::changeEvent(event);
}
