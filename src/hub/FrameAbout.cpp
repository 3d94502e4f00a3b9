#include "FrameAbout.h"

#include "FocusRing.h"
#include "Look.h"
#include "ModuleVideoItem.h"
#include "ShellStyle.h"
#include "ui_FrameAbout.h"

#include <QEvent>

namespace {
constexpr int Tutorials = 20;
constexpr int TutorialColumns = 3;
constexpr QSize TutorialSize(340, 280);
} // namespace

FrameAbout::FrameAbout(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameAbout>())
{
    ui->setupUi(this);
    look::setStyleOnce(this, shellstyle::About);
    ui->label->setPixmap(look::picture(QStringLiteral(":/images/Orbe-Kb3.png"), this));
    for (QPushButton *button : {ui->pushButton, ui->pushButton_2}) {
        look::setStyleOnce(button, shellstyle::ActionButton);
        FocusRing::follow(button, look::PillRadius);
    }
    addTutorials();
}

FrameAbout::~FrameAbout() = default;

void FrameAbout::addTutorials()
{
    ui->gridLayoutVideos->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (int i = 0; i < Tutorials; ++i) {
        auto *card = new ModuleVideoItem(ui->scrollAreaWidgetContents);
        card->setFixedSize(TutorialSize);
        ui->gridLayoutVideos->addWidget(card, i / TutorialColumns, i % TutorialColumns);
    }
}

void FrameAbout::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QFrame::changeEvent(event);
}
