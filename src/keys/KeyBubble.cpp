#include "KeyBubble.h"

#include "DialogDeviceConnect.h"
#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"

namespace {

const QString Disabled = QStringLiteral("DISABLED"); // the keyboard knows this title

constexpr KeyEntry FnUnused{{0xFF, 0xFF, 0xFF, 0xFF}};
constexpr KeyEntry FnDisabled{{0x00, 0x00, 0x00, 0x01}};

bool isKnown(const DialogDeviceConnect &connection, quint8 position)
{
    return (position + 1) * KeyEntry::Size <= connection.deviceCache().keyMatrix[0].size();
}

} // namespace

KeyBubble KeyBubble::ofCustomLayer(const DialogDeviceConnect &connection, quint8 position)
{
    if (!isKnown(connection, position))
        return {};
    const quint8 code = keys::CodeOfPosition(position);
    const quint8 mode = connection.GetKeyMode(code) & KeyMode::Bits;
    KeyEntry entry;
    connection.GetKeyEntry(entry, position, 0);
    if (mode == KeyMode::Plain && !keys::IsModifiedEntry(position, entry))
        return {};
    QStringList names;
    connection.GetKeyDisplay(names, code);
    QString body = advancedText(mode, names);
    if (body.isEmpty())
        body = ModuleGenKeymapping::KeyEntryText(entry, true);
    if (entry.kind() == KeyKind::Macro) {
        const QString macro = macroText(entry.bytes[2]);
        if (!macro.isEmpty())
            body = macro;
    }
    const QString title = entry.isEmpty() ? Disabled : keys::KeyNameByCode(code);
    return {title.trimmed(), body.trimmed()};
}

std::optional<KeyBubble> KeyBubble::ofFnLayer(const DialogDeviceConnect &connection, quint8 position)
{
    KeyEntry entry;
    connection.GetKeyEntry(entry, position, DeviceCache::FnLayer);
    // An empty entry leaves the key what it shows on its own layer.
    if (entry.isEmpty() || entry == FnUnused)
        return std::nullopt;
    QString body = ModuleGenKeymapping::KeyEntryText(entry, true);
    if (body.isEmpty())
        body = tr("系统按键");
    const QString title = entry == FnDisabled
                              ? Disabled
                              : QStringLiteral("Fn + ") + keys::KeyNameByCode(keys::CodeOfPosition(position));
    return KeyBubble{title.trimmed(), body.trimmed()};
}

/// The names are those of GetKeyDisplay: as many as the mode has, or fewer before the keyboard is read.
QString KeyBubble::advancedText(quint8 mode, const QStringList &names)
{
    const QString lineEnd = QStringLiteral("\n");
    switch (mode) {
    case KeyMode::DynamicKeystroke:
        return tr("动态键程") + QStringLiteral("(DKS):\n") + names.join(lineEnd);
    case KeyMode::ModTap:
        return tr("按住单击") + QStringLiteral("(MT):\n") + names.value(0) + QStringLiteral(":\n") +
               names.value(1);
    case KeyMode::ToggleFirst:
    case KeyMode::ToggleSecond:
        return tr("切换开关") + QStringLiteral("(TGL):\n") + names.value(0);
    case KeyMode::SnapKey:
        return QStringLiteral("SnapKey:\n") + names.value(0);
    default:
        return {};
    }
}

QString KeyBubble::macroText(quint8 slot)
{
    const ModuleMacroManager *store = ModuleMacroManager::instance();
    const Macro *macro = store ? store->FindMacro(slot) : nullptr;
    return macro ? tr("宏设置") + QStringLiteral(":\n") + macro->name : QString();
}
