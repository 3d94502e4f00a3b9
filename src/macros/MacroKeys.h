#pragma once

#include <QString>

class QKeyEvent;

/// Keys as macros name them.
namespace macrokeys {

/// Code of the key that was typed, 0 if it has none. The place of the key on the keyboard decides, whatever
/// the layout; for typing that comes from no keyboard, the letter does.
quint8 codeOf(const QKeyEvent &event);

/// Name of the key with this code; empty if there is none.
QString nameOf(quint8 code);

} // namespace macrokeys
