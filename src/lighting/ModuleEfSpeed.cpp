#include "ModuleEfSpeed.h"

#include "LevelControl.h"
#include "LightStyle.h"
#include "Look.h"
#include "ui_ModuleEfSpeed.h"

#include <QEvent>

ModuleEfSpeed::ModuleEfSpeed(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleEfSpeed>())
{
    look::setStyleOnce(this, lightstyle::Panel);
    ui->setupUi(this);
    ui->horiCyanSlider->setFillColor(look::ReleaseSide);
    level = new LevelControl(ui->horiCyanSlider, ui->labelTitle2, this);
    connect(level, &LevelControl::chosen, this, [this](int chosen) { Q_EMIT onSpeedChanged(uchar(chosen)); });
    showName();
}

ModuleEfSpeed::~ModuleEfSpeed() = default;

void ModuleEfSpeed::setSpeed(int speed)
{
    level->show(speed);
}

void ModuleEfSpeed::showName()
{
    ui->horiCyanSlider->setAccessibleName(ui->labelTitle1->text());
}

void ModuleEfSpeed::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showName();
    }
    QFrame::changeEvent(event);
}
