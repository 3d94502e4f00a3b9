#include "ModuleMTTab.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "Look.h"
#include "ModuleGenKeymapping.h"
#include "SliderEdit.h"
#include "ui_ModuleMTTab.h"

namespace {

constexpr int DefaultHoldTime = 25; ///< ms
constexpr int HoldTimeUnit = 100;   ///< of what the keyboard is sent, in ms; the rest is cut off
constexpr int FirstButtonId = -2;   ///< automatic ids of a button group run downward from here

QString holdTimeText(int milliseconds)
{
    return QStringLiteral("%1 ms").arg(milliseconds);
}

double holdTimeOf(const QString &text)
{
    return double(leadingNumber(text).toFloat());
}

} // namespace

ModuleMTTab::ModuleMTTab(QWidget *parent)
    : ModuleAdvancedTab(parent)
    , ui(std::make_unique<Ui::ModuleMTTab>())
{
    ui->setupUi(this);
    buttons = {ui->pushButton_MT1, ui->pushButton_MT2};
    captions = {ui->labelTap, ui->labelHold};
    for (FittingButton *button : buttons)
        FocusRing::follow(button, look::PillRadius);
    FocusRing::follow(ui->pushButton_OKMT, look::PillRadius);
    new SliderEdit(ui->horizontalSlider, ui->lineEditValue, &holdTimeText, &holdTimeOf);
    ui->horizontalSlider->setValue(DefaultHoldTime);
    showFunctions();
    connect(ui->buttonGroupMT, &QButtonGroup::idClicked, this,
            [this](int id) { pickFunction(size_t(FirstButtonId - id)); });
    connect(ui->pushButton_OKMT, &QPushButton::clicked, this, &ModuleMTTab::save);
}

ModuleMTTab::~ModuleMTTab() = default;

void ModuleMTTab::loadKey(const ClickedKey &key)
{
    if (key.mode != KeyMode::ModTap)
        return;
    for (quint8 layer = 0; layer < Functions; ++layer)
        mtEntries[layer] = entryOf(key, layer);
    showFunctions();
    ui->pushButton_MT->setText(key.text);
}

void ModuleMTTab::takeKey(const ClickedKey &key)
{
    mtKey = key.code;
    ui->pushButton_MT->setText(key.text);
}

void ModuleMTTab::pickFunction(size_t index)
{
    const std::optional<KeyEntry> entry = pickEntry();
    if (!entry)
        return;
    mtEntries.at(index) = *entry;
    showFunctions();
}

void ModuleMTTab::showFunctions()
{
    for (size_t i = 0; i < buttons.size(); ++i) {
        const QString function = ModuleGenKeymapping::KeyEntryText(mtEntries[i], false);
        buttons[i]->setFunction(function, captions[i]->text());
        captions[i]->setHidden(function.isEmpty()); // the button says it itself until it has a function
    }
}

void ModuleMTTab::save()
{
    DialogDeviceConnect *connection = connectionFor({mtKey});
    if (!connection)
        return;
    {
        const DialogDeviceConnect::WriteGroup group(*connection);
        for (quint8 layer = 0; layer < Functions; ++layer)
            connection->DoSetKey(mtKey, mtEntries[layer], layer, layer == Functions - 1);
        connection->DoSetMagnetism(magnettable::Mode, mtKey, KeyMode::ModTap, 0);
        connection->DoSetMagnetism(magnettable::HoldTime, mtKey,
                                   quint32(ui->horizontalSlider->value() / HoldTimeUnit), 1);
    }
    Q_EMIT onSaved();
}

void ModuleMTTab::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showFunctions();
    }
    ModuleAdvancedTab::changeEvent(event);
}
