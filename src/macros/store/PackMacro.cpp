#include "Macro.h"

namespace {

constexpr quint8 PressFlag = 0x80;
constexpr quint8 LongestShortDelay = 127; // in milliseconds; what fits beside the flag
constexpr quint8 WideMark = 0xF9;

void appendLittleEndian(QByteArray &stream, quint16 value)
{
    stream.append(char(value & 0xFF));
    stream.append(char(value >> 8));
}

// A delay of 0 takes the short form and so looks like the head of a long one; keyboards know it as this.
void appendPress(QByteArray &stream, const MacroEvent &action, quint16 delay)
{
    const quint8 flag = action.down ? PressFlag : 0;
    stream.append(char(action.value & 0xFF));
    if (delay <= LongestShortDelay) {
        stream.append(char(flag | delay));
        return;
    }
    stream.append(char(flag));
    appendLittleEndian(stream, delay);
}

void appendWide(QByteArray &stream, const MacroEvent &action, quint16 delay)
{
    const bool isShort = delay <= LongestShortDelay;
    stream.append(char(WideMark));
    stream.append(char(isShort ? delay : 0));
    appendLittleEndian(stream, action.value);
    if (!isShort)
        appendLittleEndian(stream, delay);
}

} // namespace

QByteArray PackMacro(const Macro *macro)
{
    QByteArray stream;
    if (!macro)
        return stream;
    stream.reserve(macro->events.size() * 2);
    for (qsizetype i = 0; i + 1 < macro->events.size(); i += 2) {
        const MacroEvent &action = *macro->events.at(i);
        const quint16 delay = macro->events.at(i + 1)->value;
        switch (action.type) {
        case MacroType::Key:
        case MacroType::Button:
            appendPress(stream, action, delay);
            break;
        case MacroType::Delay:
            appendWide(stream, action, delay);
            break;
        default:
            // Deliberate: a mouse position stays in the store, and goes out as two zeros without its delay.
            stream.append(2, '\0');
        }
    }
    return stream;
}
