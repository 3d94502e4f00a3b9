#include "ModuleLinear.h"

#include "Look.h"
#include "MagneticStyle.h"
#include "Travel.h"
#include "TravelControls.h"
#include "ui_ModuleLinear.h"

#include <array>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace {

constexpr int LongestTravel = 4000; ///< thousandths of a millimetre
constexpr int LeftStep = 100;       ///< of the slider: 0.1 mm
constexpr int RightStep = 5;        ///< 0.005 mm
constexpr int LeftDefault = 3700;
constexpr int RightDefault = 400;
constexpr double Thousandths = 1000;
constexpr int LeftDecimals = 2;

/// The left slider has its longest travel at the lower end.
double leftMillimetres(int slider)
{
    const int thousandths = (LongestTravel / LeftStep - slider / LeftStep) * LeftStep;
    return thousandths / Thousandths;
}

double rightMillimetres(int slider)
{
    const int thousandths = slider / RightStep * RightStep;
    return thousandths / Thousandths;
}

} // namespace

ModuleLinear::ModuleLinear(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleLinear>())
{
    look::setStyleOnce(this, magneticstyle::Controls); // before there are children to restyle
    ui->setupUi(this);
    ui->verticalSlider1->setFillColor(look::PressSide);
    ui->verticalSlider2->setFillColor(look::ReleaseSide);
    showNames();

    ui->verticalSlider1->setValue(LeftDefault);
    ui->lineEditValue1->setText(travel::toText(leftMillimetres(LeftDefault), LeftDecimals));
    ui->verticalSlider2->setValue(RightDefault);
    ui->lineEditValue2->setText(travel::toText(rightMillimetres(RightDefault)));
    connectLeftPane();
    connectRightPane();
}

ModuleLinear::~ModuleLinear() = default;

void ModuleLinear::connectLeftPane()
{
    ui->verticalSlider1->installEventFilter(this);
    connect(ui->verticalSlider1, &QSlider::valueChanged, this, &ModuleLinear::leftMoved);
    connect(ui->lineEditValue1, &QLineEdit::textChanged, this, &ModuleLinear::leftTyped);
    travelcontrols::connectSteps(left(), LeftStep);
}

void ModuleLinear::connectRightPane()
{
    ui->verticalSlider2->installEventFilter(this);
    connect(ui->verticalSlider2, &QSlider::valueChanged, this, &ModuleLinear::rightMoved);
    connect(ui->lineEditValue2, &QLineEdit::textChanged, this, &ModuleLinear::rightTyped);
    travelcontrols::connectSteps(right(), RightStep);
}

void ModuleLinear::setPaneEnabled(bool left, bool enabled)
{
    (left ? ui->leftPan : ui->rightPan)->setEnabled(enabled);
    (left ? ui->verticalSlider1 : ui->verticalSlider2)->setEnabled(enabled);
}

float ModuleLinear::paneValue(bool left) const
{
    return travel::fromText((left ? ui->lineEditValue1 : ui->lineEditValue2)->text());
}

void ModuleLinear::setPaneTitles(const QString &left, const QString &right)
{
    hasOwnTitles = true;
    ui->labelTitleS1->setText(tr("%1(mm)").arg(left));
    ui->labelTitleS2->setText(tr("%1(mm)").arg(right));
    showNames();
}

void ModuleLinear::leftMoved(int value)
{
    const double millimetres = leftMillimetres(value);
    {
        const QSignalBlocker blocker(ui->lineEditValue1);
        ui->lineEditValue1->setText(travel::toText(millimetres, LeftDecimals));
    }
    Q_EMIT onSetValue(float(millimetres), 0);
}

void ModuleLinear::leftTyped(const QString &text)
{
    const QSignalBlocker blocker(ui->verticalSlider1);
    ui->verticalSlider1->setValue(LongestTravel -
                                  travel::toThousandths(travel::fromText(text), 0, LongestTravel));
}

// On the right, whichever of slider and box is used first leads from then on: its partner shows what it says
// and stays silent. Deliberate, and unlike the left pane.

void ModuleLinear::rightMoved(int value)
{
    const double millimetres = rightMillimetres(value);
    ui->lineEditValue2->blockSignals(true);
    ui->lineEditValue2->setText(travel::toText(millimetres));
    Q_EMIT onSetValue(float(millimetres), 1);
}

void ModuleLinear::rightTyped(const QString &text)
{
    ui->verticalSlider2->blockSignals(true);
    ui->verticalSlider2->setValue(travel::toThousandths(travel::fromText(text), 0, LongestTravel));
}

// The handle goes to wherever on the track the button is let go, also if it was pressed elsewhere.
bool ModuleLinear::eventFilter(QObject *watched, QEvent *event)
{
    auto *slider = qobject_cast<QSlider *>(watched);
    if (slider && slider->isEnabled() && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const int height = qMax(1, slider->height());
        const qint64 range = qint64(slider->maximum()) - slider->minimum();
        const qint64 way = qBound(0, height - int(mouse->position().y()), height);
        if (mouse->button() == Qt::LeftButton)
            slider->setValue(int(slider->minimum() + range * way / height));
    }
    return QFrame::eventFilter(watched, event);
}

TravelControls ModuleLinear::left() const
{
    return {ui->labelTitleS1, ui->verticalSlider1, ui->pushButtonM1, ui->lineEditValue1, ui->pushButtonP1};
}

TravelControls ModuleLinear::right() const
{
    return {ui->labelTitleS2, ui->verticalSlider2, ui->pushButtonM2, ui->lineEditValue2, ui->pushButtonP2};
}

void ModuleLinear::setPaneTips(const QString &left, const QString &right)
{
    for (QWidget *widget :
         std::initializer_list<QWidget *>{ui->labelTitleS1, ui->verticalSlider1, ui->lineEditValue1})
        widget->setToolTip(left);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{ui->labelTitleS2, ui->verticalSlider2, ui->lineEditValue2})
        widget->setToolTip(right);
}

void ModuleLinear::showNames()
{
    travelcontrols::showNames(left());
    travelcontrols::showNames(right());
    alignTitles();
}

/// Gives both titles the height of the taller one, so that the sliders stand side by side.
void ModuleLinear::alignTitles()
{
    const int room = (width() - layout()->spacing()) / 2;
    const std::array titles{ui->labelTitleS1, ui->labelTitleS2};
    int height = 0;
    for (QLabel *title : titles) {
        title->setMinimumHeight(0); // it would count as the height that the text takes
        height = qMax(height, title->heightForWidth(room));
    }
    for (QLabel *title : titles)
        title->setMinimumHeight(height);
}

void ModuleLinear::resizeEvent(QResizeEvent *event)
{
    alignTitles();
    QFrame::resizeEvent(event);
}

void ModuleLinear::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && !hasOwnTitles) {
        ui->retranslateUi(this);
        showNames();
    }
    QFrame::changeEvent(event);
}
