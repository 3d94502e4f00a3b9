#pragma once

#include <QAbstractNativeEventFilter>
#include <QDeadlineTimer>
#include <QHash>
#include <xcb/xcb.h>

/// Top-level windows of all programs on the X server by their title, shown or not. The list is read again
/// only after the server told of a change, since the hub asks for it several times a second. Needs an X11
/// connection.
class ForeignWindows : public QAbstractNativeEventFilter
{
public:
    /// The topmost window of that title, whose case doesn't count; 0 if there is none. A new window counts
    /// once it shows, or half a second later: whoever takes hold of it before is at odds with the window
    /// manager, which is about to.
    xcb_window_t find(const QString &title);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    struct Entry
    {
        xcb_window_t window = XCB_WINDOW_NONE;
        QDeadlineTimer settling;
    };

    void listen();
    void readList();

    QHash<QString, Entry> windows; ///< by title in lower case
    QDeadlineTimer trusted;
    bool listening = false;
    bool outdated = true;
};
