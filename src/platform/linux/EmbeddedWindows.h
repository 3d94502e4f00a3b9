#pragma once

#include <QHash>
#include <QObject>
#include <QTimer>
#include <xcb/xcb.h>

/// Windows of other programs that were taken into windows of ours. Needs an X11 connection.
class EmbeddedWindows : public QObject
{
public:
    EmbeddedWindows();

    /// Moves a withdrawn window into \a parent, and stays with it until the window manager has let it go.
    void take(xcb_window_t window, xcb_window_t parent);
    bool contains(xcb_window_t window) const { return parents.contains(window); }

    /// Whether any window was taken since the program began.
    static bool wasAnyTaken() { return anyTaken; }

private:
    void insist();

    QHash<xcb_window_t, xcb_window_t> parents; ///< by window
    QTimer insistTimer;
    int roundsLeft = 0;
    static inline bool anyTaken = false;
};
