// What the connection does with macros.

#include "DialogDeviceConnect.h"
#include "MacroFrames.h"

void DialogDeviceConnect::DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId,
                                     const QByteArray &stream)
{
    const WriteGroup group(*this);
    const QList<QByteArray> pages = macroframes::setMacro(macroId, repeat, stream);
    for (const QByteArray &page : pages)
        pump.enqueue(page, CommandPump::Kick::Deferred);
    DoSetKey(keyCode, {{KeyKind::Macro, mode, macroId, 0}}, 0, 1);
}
