#include "ModuleSnapTab.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "Look.h"
#include "ui_ModuleSnapTab.h"

ModuleSnapTab::ModuleSnapTab(QWidget *parent)
    : ModuleAdvancedTab(parent)
    , ui(std::make_unique<Ui::ModuleSnapTab>())
{
    ui->setupUi(this);
    for (QWidget *control : std::initializer_list<QWidget *>{ui->radioButton_Snap1, ui->radioButton_Snap2,
                                                             ui->pushButton_OKSnap})
        FocusRing::follow(control, look::PillRadius);
    connect(ui->buttonGroupSnap, &QButtonGroup::buttonClicked, this, [this](const QAbstractButton *key) {
        (key == ui->pushButton_Snap1 ? ui->radioButton_Snap1 : ui->radioButton_Snap2)->setChecked(true);
    });
    connect(ui->pushButton_OKSnap, &QPushButton::clicked, this, &ModuleSnapTab::save);
}

ModuleSnapTab::~ModuleSnapTab() = default;

void ModuleSnapTab::loadKey(const ClickedKey &key)
{
    const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    if (key.mode != KeyMode::SnapKey || !connection)
        return;
    snapKeyA = key.code;
    ui->pushButton_Snap1->setText(key.text);
    // The partner is kept as a position, and everywhere taken as though it were a code.
    snapKeyB = connection->GetKeyOption(key.position);
    QString name = keys::KeyNameByCode(snapKeyB);
    ui->pushButton_Snap2->setText(name.isEmpty() ? NoKey
                                                 : name.replace(QLatin1Char('&'), QLatin1String("&&")));
}

void ModuleSnapTab::takeKey(const ClickedKey &key)
{
    const bool first = ui->radioButton_Snap1->isChecked();
    (first ? snapKeyA : snapKeyB) = key.code;
    (first ? ui->pushButton_Snap1 : ui->pushButton_Snap2)->setText(key.text);
}

void ModuleSnapTab::save()
{
    DialogDeviceConnect *connection = connectionFor({snapKeyA, snapKeyB});
    if (!connection)
        return;
    {
        const DialogDeviceConnect::WriteGroup group(*connection);
        for (const quint8 key : {snapKeyA, snapKeyB})
            connection->DoSetMagnetism(magnettable::Mode, key, KeyMode::SnapKey, 0);
        connection->DoSetMagnetism(magnettable::Partner, snapKeyA, keys::PositionOfCode(snapKeyB), 0);
        connection->DoSetMagnetism(magnettable::Partner, snapKeyB, keys::PositionOfCode(snapKeyA), 1);
    }
    Q_EMIT onSaved();
}

void ModuleSnapTab::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    ModuleAdvancedTab::changeEvent(event);
}
