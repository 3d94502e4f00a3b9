#include "KeyPicker.h"

#include "FocusRing.h"
#include "KeyboardLayout.h"
#include "KeyNameTable.h"
#include "Look.h"
#include "PickerButton.h"
#include "PickerLayout.h"
#include "PickerSlot.h"

#include <algorithm>
#include <QButtonGroup>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

namespace {

const QString CoverStyle = look::sheet(QStringLiteral(
    "QDialog { background-color: rgba(230, 230, 230, 0.9);  border: none; border-radius: @panelRadius;}"));

const QString CardStyle = look::sheet(QStringLiteral(
    "#framePicker { background-color: #FFFFFF; border: 1px solid @line; border-radius: @panelRadius; }"
    "QLabel { color: @text; font-size: @body; }"
    "#labelBasic, #labelExtended, #labelSelect, #labelMode { font-size: @groupTitle; font-weight: 600; }"
    "QPushButton { border: none; border-radius: 18px; font-size: @body; padding: 0px 16px; }"
    "QPushButton#pushButtonOK { background-color: @accent; color: white; }"
    "QPushButton#pushButtonOK:hover { background-color: @accentHover; }"
    "QPushButton#pushButtonOK:pressed { background-color: @accentPressed; }"
    "QPushButton#pushButtonCancel { background-color: @edit; color: @text; }"
    "QPushButton#pushButtonCancel:hover { background-color: @controlLine; }"
    "QPushButton#pushButtonCancel:pressed { background-color: #D4D4DA; }"
    "QRadioButton { color: @text; font-size: @body; spacing: 8px; min-height: 24px; }"
    "QRadioButton::indicator { width: 14px; height: 14px; border: 2px solid @tickLine; border-radius: 9px;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: @accent; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid @accent; }"
    "QRadioButton:focus { color: @accent; }"
    "QSpinBox { border: 2px solid transparent; border-radius: @editRadius; background-color: @edit; color: "
    "@text;"
    " font-size: @body; padding: 0px 4px; }"
    "QSpinBox:disabled { color: @disabled; }"
    "QSpinBox::up-button, QSpinBox::down-button { width: 24px; border: none; border-radius: 4px;"
    " background: transparent; }"
    "QSpinBox::up-button:hover, QSpinBox::down-button:hover { background-color: @controlLine; }"
    "QSpinBox::up-arrow { image: url(:/images/k/key-up.png); width: 10px; height: 10px; }"
    "QSpinBox::down-arrow { image: url(:/images/k/key-dpwn.png); width: 10px; height: 10px; }"
    "QSpinBox:focus { border-color: rgba(99, 41, 182, 0.4); }"));

/// Fills a block with its keys and gives it the size that they need.
void fillBlock(QWidget *block, keys::PickerBlock which, int keyWidth, QButtonGroup *group)
{
    QRect bounds;
    const QList<keys::PickerKey> placed = keys::pickerKeys(which, keyWidth);
    for (const keys::PickerKey &key : placed) {
        auto *button = new PickerButton(PickerButton::Face::Key, keys::keyButtonName(key.usage), block);
        button->setText(keys::KeyNameByCode(key.usage));
        button->setFixedSize(key.place.size());
        button->move(key.place.topLeft());
        group->addButton(button, key.usage);
        bounds |= key.place;
    }
    block->setFixedSize(bounds.size());
}

} // namespace

KeyPicker::KeyPicker(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , keyGroup(new QButtonGroup(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    look::setStyleOnce(this, CoverStyle);
    coverParent();
    if (!parent)
        return;
    parent->installEventFilter(this);
    // A parent deletes its children, and this one may stand on the stack of who called exec().
    connect(parent, &QObject::destroyed, this, [this] {
        setParent(nullptr, windowFlags());
        reject();
    });
}

void KeyPicker::coverParent()
{
    QRect place;
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        place = screen->geometry();
    if (const QWidget *covered = parentWidget())
        place = QRect(covered->mapToGlobal(QPoint(0, 0)), covered->frameGeometry().size());
    move(place.topLeft());
    setFixedSize(place.size().expandedTo(QSize(1, 1)));
}

void KeyPicker::setUp(const Parts &parts, int keyWidth)
{
    look::setStyleOnce(parts.card, CardStyle);
    for (QPushButton *button : {parts.ok, parts.cancel})
        FocusRing::follow(button, look::PillRadius);
    connect(parts.ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(parts.cancel, &QPushButton::clicked, this, &QDialog::reject);

    slotLabels = parts.slotLabels;
    for (size_t i = 0; i < SlotCount; ++i)
        connect(slotLabels[i], &PickerSlot::pressed, this, [this, i] { clearSlot(i); });

    keyGroup->setObjectName(QStringLiteral("buttonGroup"));
    keyGroup->setExclusive(false);
    fillBlock(parts.basicBlock, keys::PickerBlock::Basic, keyWidth, keyGroup);
    fillBlock(parts.extendedBlock, keys::PickerBlock::Extended, keyWidth, keyGroup);
    connect(keyGroup, &QButtonGroup::idClicked, this, [this](int usage) { pickKey(quint8(usage)); });
    tabRow = {parts.slotLabels[0], parts.slotLabels[1], parts.slotLabels[2], parts.ok, parts.cancel};
    // The row follows the keys already if one goes round past the dialog; with a stop before them it has to
    // move.
    parts.card->setFocusPolicy(Qt::TabFocus);
    leadTabBehind(keyGroup->buttons().constLast());
    parts.card->setFocusPolicy(Qt::NoFocus);
}

void KeyPicker::leadTabBehind(QWidget *last)
{
    QWidgetList empty;
    for (QWidget *widget : std::as_const(tabRow)) {
        if (widget->focusPolicy() == Qt::NoFocus) {
            widget->setFocusPolicy(Qt::TabFocus); // else an empty place would stay where it is in the order
            empty.append(widget);
        }
        setTabOrder(last, widget);
        last = widget;
    }
    for (QWidget *place : std::as_const(empty))
        place->setFocusPolicy(Qt::NoFocus);
}

void KeyPicker::clearPicked()
{
    picked = {};
    for (PickerSlot *label : slotLabels)
        label->empty();
    markKeys();
}

void KeyPicker::pickKey(quint8 usage)
{
    const auto first = picked.bytes.begin() + 1;
    const auto free = std::find(first, picked.bytes.end(), 0);
    if (free == picked.bytes.end())
        return;
    *free = usage;
    slotLabels.at(size_t(free - first))->fill(keyGroup->button(usage)->text());
    markKeys();
}

void KeyPicker::clearSlot(size_t slot)
{
    picked.bytes.at(slot + 1) = 0;
    slotLabels.at(slot)->empty();
    markKeys();
}

/// Lets the keys show which of them are picked.
void KeyPicker::markKeys()
{
    const auto buttons = keyGroup->buttons();
    for (QAbstractButton *button : buttons) {
        const auto usage = quint8(keyGroup->id(button));
        const bool isPicked =
            std::find(picked.bytes.begin() + 1, picked.bytes.end(), usage) != picked.bytes.end();
        static_cast<PickerButton *>(button)->setMarked(isPicked);
    }
}

bool KeyPicker::eventFilter(QObject *watched, QEvent *event)
{
    // The page goes when its keyboard does; the system hides it when the window is minimised.
    if (watched == parent() && event->type() == QEvent::Hide && !event->spontaneous())
        reject();
    return QDialog::eventFilter(watched, event);
}

void KeyPicker::paintEvent(QPaintEvent *)
{
    look::paintStyledBackground(this);
}
