#include "StabilityPage.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "Look.h"
#include "ui_StabilityPage.h"

#include <QEvent>

namespace {

constexpr quint8 ProtectionOption = 2;
constexpr quint8 LevelOption = 3;
constexpr int FirstId = 2; ///< automatic ids of a button group run downward from -2

int levelOf(int id)
{
    return qAbs(id) - FirstId;
}

} // namespace

StabilityPage::StabilityPage(QWidget *parent)
    : MagneticPage(parent)
    , ui(std::make_unique<Ui::StabilityPage>())
{
    ui->setupUi(this);
    const auto radios = ui->buttonGroupStab->buttons();
    for (QAbstractButton *radio : radios)
        FocusRing::follow(radio, look::EditRadius);
    connect(ui->buttonGroupStab, &QButtonGroup::idClicked, this, [this](int id) {
        if (connection)
            connection->DoSetKbOption(LevelOption, quint8(levelOf(id)));
    });
    connect(ui->checkBoxTouch, &ToggleButton::clicked, this, [this](bool on) {
        if (connection)
            connection->DoSetKbOption(ProtectionOption, on);
        showProtection(on);
    });
}

StabilityPage::~StabilityPage() = default;

void StabilityPage::readDone()
{
    if (!connection)
        return;
    ui->checkBoxTouch->setChecked(connection->GetKbOption(ProtectionOption) != 0);
    showProtection(ui->checkBoxTouch->isChecked());
    const int level = connection->GetKbOption(LevelOption);
    const auto radios = ui->buttonGroupStab->buttons();
    for (QAbstractButton *radio : radios)
        radio->setChecked(levelOf(ui->buttonGroupStab->id(radio)) ==
                          level); // an unknown level changes nothing
}

void StabilityPage::showProtection(bool on)
{
    ui->checkBoxTouch->setAccessibleName(ui->checkBoxTouch->text());
    ui->labelTunch->setText(on ? tr("已开启") : tr("已关闭"));
}

void StabilityPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showProtection(ui->checkBoxTouch->isChecked());
    }
    MagneticPage::changeEvent(event);
}
