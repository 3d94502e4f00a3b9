#pragma once

#include "ConnectedKeyboard.h"
#include "FrameMagic.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "ModuleKeyboard.h"

#include <QAbstractButton>
#include <QTest>

/// The magnetic page on a connected keyboard, and what a user does with it.
struct PageOnKeyboard
{
    ConnectedKeyboard device{"wired-500"};
    FrameMagic page;
    ModuleKeyboard *keyboard = page.findChild<ModuleKeyboard *>();

    /// Reads the keyboard, as at a connect.
    bool read()
    {
        device.connection.DoReadAll();
        return device.readDone.wait(20000);
    }

    /// Forgets what came in so far, once it has come.
    void beginLog() const
    {
        if (device.keyboard->frameCount() > 0)
            device.settle();
        device.keyboard->clearLog();
    }

    template <typename Widget = QAbstractButton>
    Widget *find(const char *name) const
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }

    void click(const char *button) const { find(button)->click(); }

    void clickKeys(const QByteArray &codes) const
    {
        for (const char code : codes)
            QTest::mouseClick(key(quint8(code)), Qt::LeftButton);
    }

    KeyboardButton *key(quint8 code) const { return keyboard->keyButton(code); }

    /// What the keyboard itself holds for a key.
    quint32 held(quint8 table, quint8 code) const
    {
        return device.keyboard->state().active().magnetism.value(table, keys::PositionOfCode(code));
    }

    /// Table, position, commit and value of each magnetism write that came in.
    QStringList writes() const
    {
        QStringList list;
        for (const auto &received : device.keyboard->frames()) {
            const sim::Frame &frame = received.frame;
            if (frame.command() == 0x65)
                list += QStringLiteral("%1:%2:%3:%4")
                            .arg(frame[1], 2, 16, QLatin1Char('0'))
                            .arg(frame[3])
                            .arg(frame[4])
                            .arg(frame[8] | frame[9] << 8);
        }
        return list;
    }
};
