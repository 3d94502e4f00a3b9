#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

/// What a step of a macro is: MacroEvent::type.
namespace MacroType {
enum : quint8 {
    Key = 0,      ///< value: key code
    Button = 1,   ///< value: one of MacroButton
    Position = 2, ///< value: as the editor builds it, 256 times X plus Y
    Delay = 3,    ///< value: milliseconds
};
}

/// Mouse buttons as macros name them.
namespace MacroButton {
enum : quint16 { Left = 0xF0, Right = 0xF1, Middle = 0xF2 };
}

/// One step of a macro. Plain data.
struct MacroEvent
{
    quint8 type = MacroType::Key;
    bool down = false; ///< pressed, or released; of keys and buttons
    quint16 value = 0;
    QString text; ///< what the editor shows
};

/// A macro with its steps, which it owns: pairs of an action and the delay behind it. GUI thread only.
struct Macro
{
    Macro() = default;
    ~Macro() { clearEvents(); }
    Q_DISABLE_COPY_MOVE(Macro)

    void clearEvents()
    {
        qDeleteAll(events);
        events.clear();
    }

    quint8 id = 0;     ///< 0 to 49, unique; also the keyboard's slot
    quint8 repeat = 1; ///< kept with the macro; the count of a key comes from the picker
    quint8 mode = 0;   ///< likewise
    QString name;      ///< one line of plain text
    QList<MacroEvent *> events;
};

/// The steps as the keyboard takes them, without the repeat count: 2 bytes for a key or button with a delay
/// of up to 127 ms, 4 with a longer one. A step at the end that has no delay behind it isn't packed. Empty
/// for a null macro.
QByteArray PackMacro(const Macro *macro);
