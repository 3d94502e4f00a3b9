#include "ModuleAdvancedTab.h"

#include "DialogDeviceConnect.h"
#include "DialogVKPicker.h"
#include "KeyLog.h"
#include "KeyMatrix.h"

#include <QPointer>

const QString ModuleAdvancedTab::NoKey = QStringLiteral("--");

DialogDeviceConnect *ModuleAdvancedTab::connectionFor(std::initializer_list<quint8> codes)
{
    for (const quint8 code : codes) {
        if (code == 0)
            return nullptr;
        if (keys::PositionOfCode(code) == keys::NoPosition) {
            qCWarning(lcKeys) << "nothing is saved: no key has code" << code;
            return nullptr;
        }
    }
    return DialogDeviceConnect::instance();
}

KeyEntry ModuleAdvancedTab::entryOf(const ClickedKey &key, quint8 layer)
{
    KeyEntry entry;
    if (const DialogDeviceConnect *connection = DialogDeviceConnect::instance())
        connection->GetKeyEntry(entry, key.position, layer);
    return entry;
}

std::optional<KeyEntry> ModuleAdvancedTab::pickEntry()
{
    const QPointer<ModuleAdvancedTab> self(this);
    DialogVKPicker picker(pickerArea ? pickerArea : window());
    if (picker.exec() != QDialog::Accepted || !self)
        return std::nullopt;
    return picker.entry();
}
