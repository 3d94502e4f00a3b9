#include "ModuleTGLTab.h"

#include "DialogDeviceConnect.h"
#include "FocusRing.h"
#include "Look.h"
#include "ModuleGenKeymapping.h"
#include "ui_ModuleTGLTab.h"

ModuleTGLTab::ModuleTGLTab(QWidget *parent)
    : ModuleAdvancedTab(parent)
    , ui(std::make_unique<Ui::ModuleTGLTab>())
{
    ui->setupUi(this);
    for (QWidget *control : std::initializer_list<QWidget *>{ui->pushButton_TGL1, ui->pushButton_OKTGL,
                                                             ui->radioButton_TGL1, ui->radioButton_TGL2})
        FocusRing::follow(control, look::PillRadius);
    showFunction();
    connect(ui->pushButton_TGL1, &QPushButton::clicked, this, &ModuleTGLTab::pickFunction);
    connect(ui->pushButton_OKTGL, &QPushButton::clicked, this, &ModuleTGLTab::save);
    // Another kind is saved at once.
    for (const QRadioButton *kind : {ui->radioButton_TGL1, ui->radioButton_TGL2})
        connect(kind, &QRadioButton::clicked, ui->pushButton_OKTGL, &QPushButton::click);
}

ModuleTGLTab::~ModuleTGLTab() = default;

void ModuleTGLTab::loadKey(const ClickedKey &key)
{
    if (key.mode != KeyMode::ToggleFirst && key.mode != KeyMode::ToggleSecond)
        return;
    tglEntry = entryOf(key, 0);
    showFunction();
    ui->pushButton_TGL->setText(key.text);
    (key.mode == KeyMode::ToggleFirst ? ui->radioButton_TGL1 : ui->radioButton_TGL2)->setChecked(true);
}

void ModuleTGLTab::takeKey(const ClickedKey &key)
{
    tglKey = key.code;
    ui->pushButton_TGL->setText(key.text);
}

void ModuleTGLTab::pickFunction()
{
    const std::optional<KeyEntry> entry = pickEntry();
    if (!entry)
        return;
    tglEntry = *entry;
    showFunction();
}

void ModuleTGLTab::showFunction()
{
    ui->pushButton_TGL1->setFunction(ModuleGenKeymapping::KeyEntryText(tglEntry, false), tr("未设置功能"));
}

void ModuleTGLTab::save()
{
    DialogDeviceConnect *connection = connectionFor({tglKey});
    if (!connection)
        return;
    {
        const DialogDeviceConnect::WriteGroup group(*connection);
        connection->DoSetKey(tglKey, tglEntry, 0, 1);
        connection->DoSetMagnetism(
            magnettable::Mode, tglKey,
            ui->radioButton_TGL1->isChecked() ? KeyMode::ToggleFirst : KeyMode::ToggleSecond, 1);
    }
    Q_EMIT onSaved();
}

void ModuleTGLTab::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showFunction();
    }
    ModuleAdvancedTab::changeEvent(event);
}
