// What the connection does with the functions of keys.

#include "DialogDeviceConnect.h"
#include "KeyFrames.h"
#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "ModuleGenKeymapping.h"

#include <array>

namespace {

constexpr quint8 Layers = 4;
constexpr quint8 LastLayer = Layers - 1;

struct TableDefault
{
    quint8 table;
    quint32 value;
};

/// How the switch of a key leaves the factory, in the order in which a reset writes it.
constexpr std::array SwitchDefaults{
    TableDefault{magnettable::Mode, KeyMode::Plain}, TableDefault{magnettable::Actuation, 400},     // 2.0 mm
    TableDefault{magnettable::Release, 560},                                                        // 2.8 mm
    TableDefault{magnettable::TopDeadZone, 60},      TableDefault{magnettable::BottomDeadZone, 60}, // 0.3 mm
    TableDefault{magnettable::SwitchType, 2},
};

KeyEntry plainKey(quint8 code)
{
    return {{KeyKind::Keys, 0x00, code, 0x00}};
}

} // namespace

void DialogDeviceConnect::DoSetKey(quint8 keyCode, const KeyEntry &entry, quint8 layer, quint8 last)
{
    if (readingAll)
        return;
    const quint8 position = keys::PositionOfCode(keyCode);
    pump.enqueue(keyframes::setKey(cache.currentProfile, position, entry, layer, last),
                 CommandPump::Kick::Immediate);
    if (layer < DeviceCache::Slots)
        cache.setKeyEntry(position, layer, entry);
}

void DialogDeviceConnect::DoSetFn(quint8 keyCode, const KeyEntry &entry)
{
    if (readingAll)
        return;
    const quint8 position = keys::PositionOfCode(keyCode);
    pump.enqueue(keyframes::setFn(position, entry), CommandPump::Kick::Immediate);
    cache.setKeyEntry(position, DeviceCache::FnLayer, entry);
}

void DialogDeviceConnect::DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer)
{
    DoSetKey(keyCode, enabled ? plainKey(keyCode) : KeyEntry{}, layer, 1);
}

void DialogDeviceConnect::DoSetFnCode(quint8 keyCode, bool enabled)
{
    // An empty entry means the factory's function here, so that a disabled key needs one of its own.
    constexpr KeyEntry Disabled{{0x00, 0x00, 0x00, 0x01}};
    DoSetFn(keyCode, enabled ? KeyEntry{} : Disabled);
}

void DialogDeviceConnect::DoResetKey(quint8 keyCode)
{
    if (readingAll)
        return;
    const WriteGroup group(*this);
    for (quint8 layer = 0; layer < Layers; ++layer)
        DoSetKey(keyCode, layer == 0 ? plainKey(keyCode) : KeyEntry{}, layer, layer == LastLayer);
    for (const TableDefault &row : SwitchDefaults)
        DoSetMagnetism(row.table, keyCode, row.value, row.table == SwitchDefaults.back().table);
}

void DialogDeviceConnect::GetKeyEntry(KeyEntry &out, quint8 position, quint8 layer) const
{
    out = cache.keyEntry(position, layer);
}

void DialogDeviceConnect::GetKeyDisplay(QStringList &out, quint8 keyCode) const
{
    out.clear();
    const quint8 position = keys::PositionOfCode(keyCode);
    if (!cache.holdsMagnetism(magnettable::Mode, position))
        return;
    if ((GetMagnetism(magnettable::Mode, position) & KeyMode::Bits) == KeyMode::SnapKey) {
        // The partner is kept as a position, and named as though it were a code.
        out.append(keys::KeyNameByCode(GetKeyOption(position)));
        return;
    }
    for (quint8 layer = 0; layer < Layers; ++layer)
        out.append(ModuleGenKeymapping::KeyEntryText(cache.keyEntry(position, layer), false));
}
