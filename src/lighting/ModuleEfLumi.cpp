#include "ModuleEfLumi.h"

#include "LevelControl.h"
#include "LightStyle.h"
#include "Look.h"
#include "ui_ModuleEfLumi.h"

#include <QEvent>

ModuleEfLumi::ModuleEfLumi(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleEfLumi>())
{
    look::setStyleOnce(this, lightstyle::Panel);
    ui->setupUi(this);
    ui->horizontalSlider->setFillColor(look::PressSide);
    level = new LevelControl(ui->horizontalSlider, ui->labelTitle2, this);
    connect(level, &LevelControl::chosen, this, [this](int chosen) { Q_EMIT onBrightChanged(chosen); });
    showName();
}

ModuleEfLumi::~ModuleEfLumi() = default;

void ModuleEfLumi::setBright(int bright)
{
    level->show(bright);
}

void ModuleEfLumi::showName()
{
    ui->horizontalSlider->setAccessibleName(ui->labelTitle1->text());
}

void ModuleEfLumi::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showName();
    }
    QFrame::changeEvent(event);
}
