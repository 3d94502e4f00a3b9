#include "VirtualKeyboard.h"

#include "KeyboardButton.h"
#include "KeyboardLayout.h"
#include "KeyNameTable.h"
#include "ui_VirtualKeyboard.h"

#include <QButtonGroup>

namespace {

constexpr int Columns = 5;
constexpr int WidestKey = 546;

struct UsageRange
{
    quint8 first;
    quint8 last;
};

/// A full-size keyboard without the key of European boards (0x32), the Win keys and the menu key.
constexpr std::array UsageRanges{
    UsageRange{0x04, 0x31}, // letters, digits and signs
    UsageRange{0x33, 0x63}, // functions, navigation and number block
    UsageRange{0xE0, 0xE2}, // modifiers on the left
    UsageRange{0xE4, 0xE6}, // modifiers on the right
};

} // namespace

VirtualKeyboard::VirtualKeyboard(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::VirtualKeyboard>())
    , buttonGroup(new QButtonGroup(this))
{
    ui->setupUi(this);
    buttonGroup->setObjectName(QStringLiteral("buttonGroup"));
    addKeys();
}

VirtualKeyboard::~VirtualKeyboard() = default;

void VirtualKeyboard::addKeys()
{
    int cell = 0;
    for (const UsageRange &range : UsageRanges) {
        for (int usage = range.first; usage <= range.last; ++usage, ++cell) {
            QString legend = keys::KeyNameByCode(quint16(usage));
            legend.replace(QLatin1Char('&'), QLatin1String("&&"));
            auto *button = new KeyboardButton(quint8(usage), legend, ui->scrollAreaWidgetContents);
            button->setMinimumSize(keys::KeyHeight, keys::KeyHeight);
            button->setMaximumSize(WidestKey, keys::KeyHeight);
            button->setFocusPolicy(Qt::StrongFocus);
            ui->gridKeys->addWidget(button, cell / Columns, cell % Columns);
            buttonGroup->addButton(button, usage);
        }
    }
}
