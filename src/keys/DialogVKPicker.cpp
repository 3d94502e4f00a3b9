#include "DialogVKPicker.h"

#include "AccessibleControls.h"
#include "ui_DialogVKPicker.h"

namespace {

constexpr int KeyWidth = 40;

} // namespace

DialogVKPicker::DialogVKPicker(QWidget *parent)
    : KeyPicker(parent)
    , ui(std::make_unique<Ui::DialogVKPicker>())
{
    ui->setupUi(this);
    setUp(partsOf(*ui), KeyWidth);
    accessible::setDefaultName(this, tr("组合键"));
}

DialogVKPicker::~DialogVKPicker() = default;
