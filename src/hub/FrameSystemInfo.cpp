#include "FrameSystemInfo.h"

#include "Autostart.h"
#include "FocusRing.h"
#include "ui_FrameSystemInfo.h"

#include <QCoreApplication>
#include <QDialog>

FrameSystemInfo::FrameSystemInfo(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameSystemInfo>())
{
    ui->setupUi(this);
    for (QPushButton *button : {ui->pushButtonOK, ui->pushButtonCancel, ui->pushButtonClose})
        FocusRing::follow(button, button->height() / 2);
    autostart::removeForAllUsers();
    ui->checkBox->setChecked(autostart::isEnabled());
    connect(ui->pushButtonOK, &QPushButton::clicked, this, &FrameSystemInfo::accept);
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, [this] { leave(QDialog::Rejected); });
    connect(ui->pushButtonClose, &QPushButton::clicked, this, [this] { leave(QDialog::Rejected); });
}

FrameSystemInfo::~FrameSystemInfo() = default;

void FrameSystemInfo::showEvent(QShowEvent *event)
{
    ui->checkBox->setFocus();
    QFrame::showEvent(event);
}

void FrameSystemInfo::accept()
{
    autostart::disable();
    if (ui->checkBox->isChecked())
        autostart::enable(QCoreApplication::applicationFilePath());
    leave(QDialog::Accepted);
}

void FrameSystemInfo::leave(int result)
{
    Q_EMIT finished(result);
    hide();
}
