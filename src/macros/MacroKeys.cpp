#include "MacroKeys.h"

#include "KeyNameTable.h"
#include "KeyScanCode.h"

#include <algorithm>
#include <array>
#include <QKeyEvent>

namespace macrokeys {

namespace {

struct NamedKey
{
    int key;
    QStringView name;
};

/// Keys that aren't called by the letter on them.
constexpr auto NamedKeys = std::to_array<NamedKey>({
    {Qt::Key_Backspace, u"BackSpace"},
    {Qt::Key_Tab, u"Tab"},
    {Qt::Key_Backtab, u"Tab"},
    {Qt::Key_CapsLock, u"Caps-Lock"},
    {Qt::Key_Return, u"Enter"},
    {Qt::Key_Enter, u"Num-Enter"},
    {Qt::Key_Shift, u"L-Shift"},
    {Qt::Key_Control, u"L-Ctrl"},
    {Qt::Key_Alt, u"L-Alt"},
    {Qt::Key_AltGr, u"R-Alt"},
    {Qt::Key_Meta, u"L-Win"},
    {Qt::Key_Menu, u"Menu"},
    {Qt::Key_Space, u"Space"},
    {Qt::Key_Insert, u"Insert"},
    {Qt::Key_Delete, u"Delete"},
    {Qt::Key_Left, u"←"},
    {Qt::Key_Home, u"Home"},
    {Qt::Key_End, u"End"},
    {Qt::Key_Up, u"↑"},
    {Qt::Key_Down, u"↓"},
    {Qt::Key_PageUp, u"Pgup"},
    {Qt::Key_PageDown, u"Pgdn"},
    {Qt::Key_Right, u"→"},
    {Qt::Key_NumLock, u"Num-Lock"},
    {Qt::Key_Escape, u"Esc"},
    {Qt::Key_ScrollLock, u"Scroll-Lock"},
    {Qt::Key_Pause, u"Pause-Break"},
    {Qt::Key_Print, u"Print-Screen"},
});

QString nameOfKey(int key, bool byLetter)
{
    const auto named = std::ranges::find(NamedKeys, key, &NamedKey::key);
    if (named != NamedKeys.end())
        return named->name.toString();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1);
    return byLetter && key > Qt::Key_Space && key <= Qt::Key_AsciiTilde ? QString(QChar(key)) : QString();
}

/// Whether a row is called so, alone or as one of two signs such as "1 !".
bool isCalled(const KeyName &row, const QString &name)
{
    return row.name == name || (row.name.size() == 3 && row.name.at(1) == u' ' && row.name.contains(name));
}

} // namespace

quint8 codeOf(const QKeyEvent &event)
{
    const bool isFromKeyboard = event.nativeScanCode() != 0;
    const quint16 scan = platform::keyScanCode(event.nativeScanCode());
    const quint16 code = scan ? keys::CodeByScan(scan) : 0;
    const QString name = nameOfKey(event.key(), !isFromKeyboard);
    if (code || name.isEmpty())
        return quint8(code);
    const auto row = std::ranges::find_if(keys::KeyNameTable,
                                          [&name](const KeyName &each) { return isCalled(each, name); });
    return row == keys::KeyNameTable.end() ? 0 : quint8(row->usage);
}

QString nameOf(quint8 code)
{
    return keys::KeyNameByCode(code);
}

} // namespace macrokeys
