#include "ModuleVideoItem.h"

#include "AccessibleControls.h"
#include "Look.h"
#include "ui_ModuleVideoItem.h"

#include <QEvent>

namespace {
const QString CardStyle = look::sheet(
    QStringLiteral("#ModuleVideoItem { background-color: white; border: 1px solid @line;"
                   " border-radius: @cardRadius; }"
                   "QLabel { background: transparent; border: none; }"
                   "#labelMovie { background-color: #F4F4F4; border-radius: 12px;"
                   " color: @disabled; font-size: @pageTitle; font-weight: 600; }"
                   "#labelTitle { color: @text; font-size: @groupTitle; font-weight: 600; }"
                   "#labelDate { color: @secondary; font-size: @small; }"
                   "#labelDuration { background-color: @edit; border-radius: @keyRadius; padding: 0px 8px;"
                   " color: @secondary; font-size: @small; }"));
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
