#include "TravelPage.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "Look.h"
#include "Travel.h"
#include "TravelControls.h"
#include "ui_TravelPage.h"

#include <QEvent>
#include <QSignalBlocker>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr auto TypingPause = 300ms; ///< after the last change of a text, before it is taken
constexpr int SliderStep = 5;       ///< thousandths of a millimetre, as all sliders here
constexpr int LowestTyped = 200;
constexpr int HighestTyped = 2500;
constexpr int RapidPressStart = 2000;
constexpr int RapidReleaseStart = 1950;
constexpr double Thousandths = 1000;
constexpr double ReleaseMirror = 2.7; ///< millimetres that the release slider counts down from

/// How a slider's value reads in its box.
using Reading = double (*)(int slider);

double forward(int slider)
{
    return slider / Thousandths;
}

/// The release slider has its longest travel at the low end. A typed text goes to the slider as it is, so
/// that the box shows its mirror image. Deliberate.
double mirrored(int slider)
{
    return ReleaseMirror - slider / Thousandths;
}

void connectTravel(const TravelControls &controls, Reading reading)
{
    CustumSlider *slider = controls.slider;
    QLineEdit *box = controls.box;
    const auto show = [slider, box, reading] {
        // Only what the user types goes back to the slider, which keeps its values below LowestTyped.
        const QSignalBlocker blocker(box);
        box->setText(travel::toText(reading(slider->value())));
    };
    show();
    QObject::connect(slider, &QSlider::valueChanged, box, show);

    auto *pause = new QTimer(box);
    pause->setSingleShot(true);
    pause->setInterval(TypingPause);
    QObject::connect(box, &QLineEdit::textChanged, pause, qOverload<>(&QTimer::start));
    QObject::connect(slider, &QSlider::valueChanged, pause, &QTimer::stop);
    QObject::connect(pause, &QTimer::timeout, slider, [slider, box, show] {
        slider->setValue(travel::toThousandths(travel::fromText(box->text()), LowestTyped, HighestTyped));
        show(); // also where the slider stood there already
    });
    travelcontrols::connectSteps(controls, SliderStep);
}

} // namespace

TravelPage::TravelPage(QWidget *parent)
    : MagneticPage(parent)
    , ui(std::make_unique<Ui::TravelPage>())
{
    ui->setupUi(this);
    ui->horizontalSlider1->setFillColor(look::PressSide);
    ui->horizontalSlider2->setFillColor(look::ReleaseSide);
    ui->horizontalSlider1->setValue(RapidPressStart);
    ui->horizontalSlider2->setValue(RapidReleaseStart);
    connectTravel(rapidPress(), forward);
    connectTravel(rapidRelease(), mirrored);
    FocusRing::follow(ui->pushButtonSetRT, look::PillRadius);
    connectSwitches();
    connect(ui->pushButtonSetRT, &QPushButton::clicked, this, &TravelPage::apply);
    ui->checkBoxFullRT->click(); // off, and with it all that depends on it
    showNames();
}

TravelPage::~TravelPage() = default;

TravelControls TravelPage::rapidPress() const
{
    return {ui->labelTravel1, ui->horizontalSlider1, ui->pushButtonM1, ui->lineEditValue1, ui->pushButtonP1};
}

TravelControls TravelPage::rapidRelease() const
{
    return {ui->labelTravel2, ui->horizontalSlider2, ui->pushButtonM2, ui->lineEditValue2, ui->pushButtonP2};
}

void TravelPage::connectSwitches()
{
    connect(ui->checkBoxFullRT, &ToggleButton::clicked, this, &TravelPage::showFullRapidTrigger);
    connect(ui->checkBoxRTPress, &ToggleButton::clicked, ui->frame2, &QWidget::setEnabled);
    connect(ui->checkBoxUnpress, &ToggleButton::clicked, ui->frameLinear,
            [this](bool on) { ui->frameLinear->setPaneEnabled(false, on); });
}

/// With rapid trigger over the full travel, press and release can't be set apart.
void TravelPage::showFullRapidTrigger(bool on)
{
    ui->frame0->setEnabled(on);
    ui->frame1->setEnabled(on);
    ui->frame2->setEnabled(false);
    ui->frameLinear->setPaneEnabled(false, false);
    ui->checkBoxRTPress->setChecked(false);
    ui->checkBoxUnpress->setChecked(false);
    ui->checkBoxUnpress->setEnabled(!on);
}

void TravelPage::enterPage()
{
    keyboard->enterValueMode(KeyboardButton::CornerValues);
    for (int i = 0; i < MatrixPositions; ++i) {
        const auto position = quint8(i);
        const float rapid = cachedMillimetres(magnettable::RapidPress, position);
        const bool flag =
            connection && (connection->GetMagnetism(magnettable::Mode, position) & KeyMode::Flag);
        // The press value stands in both places of the pair until the key is written.
        showCaptions(keys::CodeOfPosition(position),
                     {cachedMillimetres(magnettable::Actuation, position),
                      cachedMillimetres(magnettable::Release, position), rapid, rapid, flag});
    }
}

void TravelPage::showCaptions(quint8 code, const Travels &travels)
{
    keyboard->setKeyValues3(code, travels.press, travels.release);
    keyboard->setKeyValues4(code, travels.rapidPress, travels.rapidRelease, travels.fullTravel);
}

void TravelPage::showSelection(const QString &text)
{
    ui->labelSelectRTKey->setText(text);
}

TravelPage::Travels TravelPage::typedTravels() const
{
    Travels typed{};
    typed.press = ui->frameLinear->paneValue(true);
    typed.release = ui->checkBoxUnpress->isChecked() ? ui->frameLinear->paneValue(false) : typed.press;
    typed.rapidPress = travel::fromText(ui->lineEditValue1->text());
    typed.rapidRelease =
        ui->checkBoxRTPress->isChecked() ? travel::fromText(ui->lineEditValue2->text()) : typed.rapidPress;
    typed.fullTravel = ui->checkBoxFullRT->isChecked();
    return typed;
}

void TravelPage::apply()
{
    const QByteArray codes = selectedKeys();
    if (codes.isEmpty())
        return;
    const Travels travels = typedTravels();
    write(codes, travels);
    for (const char code : codes)
        showCaptions(quint8(code), travels);
}

void TravelPage::write(const QByteArray &codes, const Travels &travels)
{
    if (!connection)
        return;
    const DialogDeviceConnect::WriteGroup group(*connection);
    for (const char key : codes) {
        const auto code = quint8(key);
        connection->DoSetMagnetism(magnettable::Actuation, code, travel::toRaw(travels.press), 0);
        connection->DoSetMagnetism(magnettable::Release, code, travel::toRaw(travels.release), 0);
        connection->DoSetMagnetism(magnettable::RapidPress, code, travel::toRaw(travels.rapidPress), 0);
        connection->DoSetMagnetism(magnettable::RapidRelease, code, travel::toRaw(travels.rapidRelease), 0);
        connection->DoSetKeyFlag(code, travels.fullTravel); // closes the key's group
    }
}

void TravelPage::showNames()
{
    travelcontrols::showNames(rapidPress());
    travelcontrols::showNames(rapidRelease());
    ui->frameLinear->setPaneTips(tr("按键按到多深时触发"), tr("按键抬到多高时释放"));
    for (ToggleButton *toggle : {ui->checkBoxUnpress, ui->checkBoxFullRT, ui->checkBoxRTPress})
        toggle->setAccessibleName(toggle->text());
}

void TravelPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showNames();
    }
    MagneticPage::changeEvent(event);
}
