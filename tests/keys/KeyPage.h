#pragma once

#include "ConnectedKeyboard.h"
#include "FrameKeySetting.h"
#include "KeyboardButton.h"
#include "ModuleKeyboard.h"

#include <functional>
#include <QAbstractButton>

/// The key page on a keyboard that has been read, what a user does on it, and what the keyboard then holds.
class KeyPage
{
public:
    enum Mode { Custom = 1, Advanced, Options, FnLayer };
    enum Tab { Dks, ModTap, Toggle, Snap };

    KeyPage();
    /// The keyboard, read once for all tests of a program; null if that failed.
    static ConnectedKeyboard *device(bool forget = false);

    template <typename Widget = QAbstractButton>
    Widget *find(const QByteArray &name) const
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }
    void press(const QByteArray &button) const { find(button)->click(); }
    void openMode(Mode mode) const { press("pushButtonSet" + QByteArray::number(mode)); }
    void openTab(Tab tab) const;
    void clickKey(quint8 code) const { keyboard->keyButton(code)->click(); }
    /// Opens a picker, picks there (names of buttons without "pushButton_", tabs as numbers) and presses OK,
    /// or Cancel for a last step of "cancel". False if no picker came.
    bool pick(const QByteArray &steps, const std::function<void()> &open) const;
    /// Does what a press on the popup of a key does, and waits for the keyboard.
    void useActionOf(quint8 code) const;
    /// Presses a button and gives the command bytes that the keyboard received for it.
    QByteArray commandsOf(const QByteArray &button) const;

    /// What the on-screen keyboard tells of a key: its bubble as "title|body", "disabled", or nothing.
    QString shown(quint8 code) const;
    /// What the keyboard holds in its active profile, as hex.
    static QByteArray heldEntry(quint8 code, int layer = 0);
    static QByteArray heldFnEntry(quint8 code);
    static QList<quint32> heldValues(quint8 code, const QList<quint8> &tables);

    FrameKeySetting page;
    ModuleKeyboard *keyboard;
};
