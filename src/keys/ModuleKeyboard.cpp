#include "ModuleKeyboard.h"

#include "CustomTooltip.h"
#include "DialogDeviceConnect.h"
#include "KeyboardButton.h"
#include "KeyboardLayout.h"
#include "KeyLog.h"
#include "KeyMatrix.h"
#include "RubberBandLayer.h"
#include "ui_ModuleKeyboard.h"

#include <QButtonGroup>
#include <QPointer>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

constexpr auto LockDelay = 10ms;
constexpr auto KnobRuleDelay = 20ms;
constexpr quint8 HitOfNoKey = 129; ///< what the calibration's code 0 stands for
const QString DisabledTitle = QStringLiteral("DISABLED");

QList<ModuleKeyboard *> &allKeyboards()
{
    static QList<ModuleKeyboard *> list;
    return list;
}

struct ArrowPicture
{
    quint8 code;
    const char *path;
};

constexpr std::array ArrowPictures{
    ArrowPicture{keys::UpArrowCode, ":/images/k/key-up.png"},
    ArrowPicture{keys::DownArrowCode, ":/images/k/key-dpwn.png"},
    ArrowPicture{keys::LeftArrowCode, ":/images/k/key-left.png"},
    ArrowPicture{keys::RightArrowCode, ":/images/k/key-right.png"},
};

} // namespace

ModuleKeyboard::ModuleKeyboard(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleKeyboard>())
    , buttonGroup(new QButtonGroup(this))
    , popup(new CustomTooltip(this))
    , bandLayer(new RubberBandLayer(this))
{
    ui->setupUi(this);
    buttonGroup->setObjectName(QStringLiteral("buttonGroup"));
    buttonGroup->setExclusive(false);
    addKeys();
    popup->setTextStyle(QStringLiteral("QLabel { color: red; }"));
    connect(buttonGroup, &QButtonGroup::idClicked, this, &ModuleKeyboard::keyClicked);
    connect(popup, &CustomTooltip::onClicked, this, [this] {
        if (popupTarget)
            setKeyEnabledState(popupTarget, !popupTarget->isEnabledTo(this), true);
    });
    allKeyboards().append(this);
}

ModuleKeyboard::~ModuleKeyboard()
{
    allKeyboards().removeOne(this);
}

void ModuleKeyboard::addKeys()
{
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        auto *button = new KeyboardButton(place.code, place.legend.toString(), this);
        button->setGeometry(place.rect());
        buttonGroup->addButton(button, place.code);
        buttons[place.code] = button;
    }
    for (const ArrowPicture &arrow : ArrowPictures)
        buttons[arrow.code]->setIcon(QIcon(QLatin1String(arrow.path)));
    rove(buttons[keys::KeyboardLayout.front().code]);
}

void ModuleKeyboard::setSelectionLimit(int limit)
{
    SelectionLimit = limit;
    buttonGroup->setExclusive(false);
}

int ModuleKeyboard::selectedCodes(QByteArray &codes) const
{
    codes.clear();
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        if (buttons[place.code]->isChecked())
            codes.append(char(place.code));
    }
    return int(codes.size());
}

void ModuleKeyboard::selectAll(bool on)
{
    for (const keys::KeyPlace &place : keys::KeyboardLayout)
        buttons[place.code]->setChecked(on);
    Q_EMIT onSelect();
}

void ModuleKeyboard::keyClicked(int code)
{
    keepToLimit();
    const QPointer<ModuleKeyboard> self(this);
    Q_EMIT onKeyClicked(buttons[quint8(code)]->text(), uchar(code));
    if (self)
        Q_EMIT onSelect();
}

void ModuleKeyboard::keepToLimit()
{
    if (SelectionLimit <= 1)
        return;
    int kept = 0;
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        KeyboardButton *button = buttons[place.code];
        if (button->isChecked() && ++kept > SelectionLimit)
            button->setChecked(false);
    }
}

void ModuleKeyboard::setKeyColor(quint8 code, const QColor &color)
{
    if (code == AllKeys) {
        for (const keys::KeyPlace &place : keys::KeyboardLayout)
            buttons[place.code]->setFillColor(color);
    } else if (KeyboardButton *button = buttons[code]) {
        button->setFillColor(color);
    }
}

void ModuleKeyboard::setKeyBorder(quint8 code, const QColor &color)
{
    if (KeyboardButton *button = buttons[code])
        button->setBorderColor(color);
}

void ModuleKeyboard::setKeyValues2(quint8 code, float upper, float lower)
{
    if (KeyboardButton *button = buttons[code])
        button->setHalfValues(upper, lower);
}

void ModuleKeyboard::setKeyValues3(quint8 code, float press, float release)
{
    if (KeyboardButton *button = buttons[code])
        button->setCornerValues(press, release);
}

void ModuleKeyboard::setKeyValues4(quint8 code, float upper, float lower, bool shown)
{
    if (KeyboardButton *button = buttons[code])
        button->setExtraValues(upper, lower, shown);
}

void ModuleKeyboard::setKeyTooltip(quint8 code, const QString &title, const QString &body, bool recurse)
{
    if (isApart() || !buttons[code])
        return;
    showFunction(buttons[code], title, body);
    if (!recurse)
        return;
    for (ModuleKeyboard *other : std::as_const(allKeyboards())) {
        if (other != this)
            other->setKeyTooltip(code, title, body, false);
    }
}

void ModuleKeyboard::showFunction(KeyboardButton *button, const QString &title, const QString &body)
{
    if (title == DisabledTitle) {
        // Without its function the key is disabled in truth, and can be enabled again by hand.
        button->setKeyContent({}, {});
        showEnabled(button, false);
    } else {
        showEnabled(button, true);
        button->setKeyContent(title, body);
    }
}

void ModuleKeyboard::setKeyEnabledState(KeyboardButton *button, bool enable, bool notify)
{
    if (!button || buttons[button->code()] != button)
        return;
    if (enable) {
        showEnabled(button, true);
    } else {
        if (!button->hasBinding())
            showEnabled(button, false);
        button->setChecked(false);
        button->setKeyContent({}, {});
    }
    propagate(button, notify);
}

void ModuleKeyboard::showEnabled(KeyboardButton *button, bool enable)
{
    const bool listed = disabledKeys.contains(button);
    if (enable == listed) {
        // A disabled key gets no mouse events of its own.
        if (enable) {
            button->removeEventFilter(this);
            disabledKeys.removeOne(button);
        } else {
            button->installEventFilter(this);
            disabledKeys.append(button);
        }
    }
    if (!enable)
        button->setChecked(false);
    if (button->isEnabledTo(this) == enable)
        return;
    button->setEnabled(enable);
    keepTabStop();
}

void ModuleKeyboard::propagate(KeyboardButton *button, bool notify)
{
    if (isApart())
        return;
    const quint8 code = button->code();
    const bool enabled = button->isEnabledTo(this);
    for (ModuleKeyboard *other : std::as_const(allKeyboards())) {
        if (other == this || other->isApart())
            continue;
        if (notify)
            other->buttons[code]->setKeyContent({}, {});
        other->showEnabled(other->buttons[code], enabled);
    }
    if (notify)
        writeChange(button, enabled);
}

void ModuleKeyboard::writeChange(KeyboardButton *button, bool enabled)
{
    const quint8 code = button->code();
    // What is written for a code without a position would be written to all keys.
    const bool known = keys::PositionOfCode(code) != keys::NoPosition;
    const QPointer<DialogDeviceConnect> connection(known ? DialogDeviceConnect::instance() : nullptr);
    const quint8 mode = connection ? connection->GetKeyMode(code) : quint8(KeyMode::Plain);
    // What listeners write belongs to the change too.
    const auto group = connection ? std::make_unique<DialogDeviceConnect::WriteGroup>(*connection) : nullptr;
    if (connection)
        connection->DoResetKey(code);
    const QPointer<ModuleKeyboard> self(this);
    Q_EMIT onKeyChanged(code, mode, enabled);
    if (!connection)
        return;
    if (self && mode == KeyMode::SnapKey)
        clearPartner(code);
    connection->DoSetKeyCode(code, enabled, 0);
}

void ModuleKeyboard::clearPartner(quint8 code)
{
    DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    const quint8 partner = connection->GetKeyOption(keys::PositionOfCode(code));
    // The option is a position and is used as a code as it stands: SnapKey pairs are stored so.
    if (keys::PositionOfCode(partner) == keys::NoPosition) {
        qCWarning(lcKeys) << "the partner of key" << code << "can't be cleared: no key has code" << partner;
        return;
    }
    connection->DoSetMagnetism(magnettable::Mode, partner, KeyMode::Plain, 1);
    if (KeyboardButton *button = buttons[partner])
        button->setKeyContent({}, {});
}

void ModuleKeyboard::makeCheckable(quint8 displayMode)
{
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        KeyboardButton *button = buttons[place.code];
        button->setCheckable(true);
        button->setKeyContent({}, {});
        button->setDisplayMode(displayMode);
    }
}

void ModuleKeyboard::enterSelectMode()
{
    selectMode = true;
    makeCheckable(KeyboardButton::Plain);
    setFnEnabled(true);
    applyKnobRule();
}

void ModuleKeyboard::enterValueMode(quint8 mode)
{
    valueMode = true;
    makeCheckable(mode);
    setLegendVisible(mode == KeyboardButton::Plain);
    applyKnobRule();
}

void ModuleKeyboard::enterScaledValueMode(bool on)
{
    valueMode = true;
    makeCheckable(on ? KeyboardButton::TwoValues : KeyboardButton::Plain);
    applyKnobRule();
}

void ModuleKeyboard::enterLayerMode(bool on)
{
    makeCheckable(on ? KeyboardButton::CornerValues : KeyboardButton::Plain);
    setLegendVisible(true);
}

void ModuleKeyboard::resetModes()
{
    selectMode = false;
    valueMode = false;
}

void ModuleKeyboard::lockKeyboard()
{
    setLegendVisible(false);
    QTimer::singleShot(LockDelay, Qt::PreciseTimer, this, [this] {
        locked = true;
        endBand();
        for (const keys::KeyPlace &place : keys::KeyboardLayout)
            buttons[place.code]->setEnabled(false);
        applyKnobRule();
    });
}

void ModuleKeyboard::updateLegend()
{
    QTimer::singleShot(KnobRuleDelay, Qt::PreciseTimer, this, &ModuleKeyboard::applyKnobRule);
}

void ModuleKeyboard::applyKnobRule()
{
    for (const quint8 code : {keys::KnobLeftCode, keys::KnobRightCode})
        buttons[code]->setVisible(!isApart());
    keepTabStop();
}

void ModuleKeyboard::setFnEnabled(bool enabled)
{
    buttons[keys::FnKeyCode]->setEnabled(enabled);
    keepTabStop();
}

void ModuleKeyboard::setLegendVisible(bool visible)
{
    ui->frameFlag->setVisible(visible);
}

void ModuleKeyboard::markKeyHit(quint8 code)
{
    if (KeyboardButton *button = buttons[code ? code : HitOfNoKey])
        button->showHit();
}
