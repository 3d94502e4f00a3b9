#pragma once

#include "ModuleKeyboard.h"

#include <QByteArray>
#include <QPointer>
#include <QWidget>

class DialogDeviceConnect;

/// A sub-page of FrameMagic. It is told when it comes and goes, and shares the page's keyboard with the
/// others. GUI thread only.
class MagneticPage : public QWidget
{
    Q_OBJECT

public:
    explicit MagneticPage(QWidget *parent = nullptr);

    /// Hands the sub-page what it works on, once, before anything else. \a connection may be null and may go.
    void attach(ModuleKeyboard *keyboard, DialogDeviceConnect *connection);

    /// Whether keys can be clicked while the sub-page shows.
    virtual bool usesKeys() const { return true; }
    /// The sub-page now shows. No key is selected, and the keyboard is in no mode. By default it shows its
    /// legends alone.
    virtual void enterPage();
    /// Another sub-page shows. Not called when the user goes to another page of the keyboard.
    virtual void leavePage() {}
    /// The keyboard was read whole.
    virtual void readDone() {}
    /// A key was clicked while this sub-page shows.
    virtual void keyClicked(quint8 code);
    /// Tells the user how many keys are selected.
    virtual void showSelection(const QString &text);

protected:
    /// Selected keys that can be written to, in the order of the board. A key without a place in the
    /// keyboard's tables is left out: its writes would go to all keys.
    QByteArray selectedKeys() const;
    /// Whether a key has a place in the tables; one line in the log if not.
    static bool canWrite(quint8 code);
    /// The cached value of a table in steps of 0.005 mm, as millimetres.
    float cachedMillimetres(quint8 table, quint8 position) const;

    QPointer<ModuleKeyboard> keyboard;
    QPointer<DialogDeviceConnect> connection;
};
