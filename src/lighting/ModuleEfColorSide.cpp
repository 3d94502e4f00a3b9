// The side light's part of the colour module.

#include "AccessibleControls.h"
#include "DialogColorPicker.h"
#include "FocusRing.h"
#include "LightingLog.h"
#include "Look.h"
#include "ModuleEfColor.h"
#include "ui_ModuleEfColor.h"

namespace {

constexpr int FirstId = -2;      ///< automatic ids of a button group run downward from here
constexpr quint8 ManyColors = 7; ///< how the keyboard names the colour modes
constexpr quint8 OneColor = 8;
constexpr qsizetype SideLedReply = 8; ///< bytes of a reply that are used
constexpr qsizetype LoggedReply = 16;

quint8 placeOf(int id)
{
    return quint8(qAbs(id) + FirstId);
}

/// Clicks the button at a place of a group; a place that it hasn't is left alone.
void clickPlace(QButtonGroup *group, quint8 place)
{
    if (QAbstractButton *button = group->button(FirstId - place)) {
        button->click();
    } else {
        qCWarning(lcLighting) << "Side light:" << group->objectName() << "has no place" << place;
    }
}

} // namespace

void ModuleEfColor::connectSideLight()
{
    struct Setting
    {
        QButtonGroup *group;
        quint8 ModuleEfColor::*value;
    };
    for (const auto &[group, value] : {Setting{ui->buttonGroupS, &ModuleEfColor::sideSpeed},
                                       Setting{ui->buttonGroupL, &ModuleEfColor::sideBrightness},
                                       Setting{ui->buttonGroupC, &ModuleEfColor::sideColorMode},
                                       Setting{ui->buttonGroupE, &ModuleEfColor::sideEffect}}) {
        connect(group, &QButtonGroup::idClicked, this, [this, member = value](int id) {
            this->*member = placeOf(id);
            showPickerControls();
            updateSideLight();
        });
        for (QAbstractButton *button : group->buttons())
            FocusRing::follow(button, look::PillRadius);
    }
    ui->labelPickup->setPixmap(look::picture(QStringLiteral(":/images/pickup2.png"), this));
    ui->labelPickup->installEventFilter(this);
    FocusRing::follow(ui->labelPickup, look::EditRadius);
    accessible::setRole(ui->labelPickup, QAccessible::Button);
    showPickerControls();
}

void ModuleEfColor::showPickerControls()
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{ui->frameSideColor, ui->labelColor, ui->labelPickup})
        control->setVisible(sideColorMode != 0);
}

void ModuleEfColor::updateSideLight()
{
    const int red = sideColor.red();
    const int green = sideColor.green();
    const int blue = sideColor.blue();
    QByteArray block(10, '\0');
    block[1] = char(sideEffect);
    block[2] = char(sideSpeed);
    block[3] = char(sideBrightness);
    block[4] = char(sideColorMode == 0 ? ManyColors : OneColor);
    block[5] = char(red);
    block[6] = char(green);
    block[7] = char(blue);
    look::setStyleOnce(
        ui->labelColor,
        QString::asprintf("background-color: rgb(%d, %d, %d);border: none; border-radius:16px;", red, green,
                          blue));
    if (!fromKeyboard)
        Q_EMIT onSetSideLed(block);
}

void ModuleEfColor::openPicker()
{
    if (!picker) {
        picker = new DialogColorPicker(this);
        connect(picker, &DialogColorPicker::onPickupColor, this, &ModuleEfColor::takePickedColor);
    }
    picker->setColor(sideColor);
    picker->showAt(-1, -1);
}

void ModuleEfColor::takePickedColor(const QColor &color)
{
    sideColor = color;
    pickTimer.start();
}

void ModuleEfColor::setSideLed(const QByteArray &reply)
{
    qCDebug(lcLighting).noquote() << "get_:"
                                  << reply.first(qMin(LoggedReply, reply.size())).toHex().toUpper();
    if (reply.size() < SideLedReply) {
        qCWarning(lcLighting) << "A side light of" << reply.size() << "bytes is not shown";
        return;
    }
    const auto byteAt = [&reply](qsizetype index) { return quint8(reply.at(index)); };
    fromKeyboard = true;
    sideColor.setRgb(byteAt(5), byteAt(6), byteAt(7));
    clickPlace(ui->buttonGroupE, byteAt(1));
    clickPlace(ui->buttonGroupS, byteAt(2));
    clickPlace(ui->buttonGroupL, byteAt(3));
    clickPlace(ui->buttonGroupC, byteAt(4) == OneColor ? 1 : 0);
    fromKeyboard = false;
}
