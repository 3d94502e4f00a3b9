#pragma once

#include "KeyEntry.h"

#include <optional>
#include <QFrame>

class DialogDeviceConnect;

/// What the tabs of the advanced key functions have in common. A tab edits one function of one key; nothing
/// is written before the user saves. GUI thread only.
class ModuleAdvancedTab : public QFrame
{
    Q_OBJECT

public:
    using QFrame::QFrame;

    /// A key that was clicked on the on-screen keyboard.
    struct ClickedKey
    {
        quint8 code;
        quint8 position;
        quint8 mode;  ///< a KeyMode without its flag
        QString text; ///< what a button shows for it
    };

    /// Fills the tab with what the key does, if that is this tab's function; other keys change nothing. The
    /// key under edit stays.
    virtual void loadKey(const ClickedKey &key) = 0;
    /// Makes the key the one under edit.
    virtual void takeKey(const ClickedKey &key) = 0;

    /// The widget that the picker covers, by default the tab's window. It must outlive the tab.
    void setPickerArea(QWidget *area) { pickerArea = area; }

Q_SIGNALS:
    /// A key was given its function.
    void onSaved();

protected:
    /// What stands on a key button while there is no key.
    static const QString NoKey;

    /// The connection if keys can be written to it, else null: without it, or for a code that no key has,
    /// which would mean all keys.
    static DialogDeviceConnect *connectionFor(std::initializer_list<quint8> codes);
    /// What the connection knows of a key's layer; empty without a connection.
    static KeyEntry entryOf(const ClickedKey &key, quint8 layer);

    /// Lets the user pick a key or a combination; nothing if that was cancelled or the tab is gone since.
    std::optional<KeyEntry> pickEntry();

private:
    QWidget *pickerArea = nullptr;
};
