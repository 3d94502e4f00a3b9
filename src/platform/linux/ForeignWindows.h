#pragma once

#include <QAbstractNativeEventFilter>
#include <QDeadlineTimer>
#include <QHash>
#include <xcb/xcb.h>

/// Top-level windows of all programs on the X server by their title, mapped or not. The list is read again
/// only after the server told of a change, since the hub asks for it several times a second. Needs an X11
/// connection.
class ForeignWindows : public QAbstractNativeEventFilter
{
public:
    /// The topmost window of that title, whose case doesn't count; 0 if there is none.
    xcb_window_t find(const QString &title);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void listen();
    void readList();

    QHash<QString, xcb_window_t> windows; ///< by title in lower case
    QDeadlineTimer trusted;
    bool listening = false;
    bool outdated = true;
};
