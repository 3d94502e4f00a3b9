#include "ModuleVideoItem.h"

#include "AccessibleControls.h"
#include "Look.h"
#include "ui_ModuleVideoItem.h"

#include <QEvent>

namespace {
const QString CardStyle =
    QStringLiteral("#ModuleVideoItem { background-color: white; border: 1px solid #E6E6EA;"
                   " border-radius: 20px; }"
                   "QLabel { background: transparent; border: none; }"
                   "#labelMovie { background-color: #F4F4F4; border-radius: 12px;"
                   " color: #B3B3B3; font-size: 20px; font-weight: 600; }"
                   "#labelTitle { color: #222222; font-size: 15px; font-weight: 600; }"
                   "#labelDate { color: #6B6B75; font-size: 12px; }"
                   "#labelDuration { background-color: #EDEDED; border-radius: 10px; padding: 0px 8px;"
                   " color: #6B6B75; font-size: 12px; }");
} // namespace

ModuleVideoItem::ModuleVideoItem(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleVideoItem>())
{
    ui->setupUi(this);
    look::setStyleOnce(this, CardStyle);
    accessible::setDefaultName(this, ui->labelTitle->text());
}

ModuleVideoItem::~ModuleVideoItem() = default;

void ModuleVideoItem::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        accessible::setDefaultName(this, ui->labelTitle->text());
    }
    QFrame::changeEvent(event);
}
