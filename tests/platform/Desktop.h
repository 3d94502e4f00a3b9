#pragma once

#include <memory>
#include <QPoint>
#include <QtGlobal>

/// The desktop that a test's windows stand on, and what can be seen of them there by asking the system
/// itself. On Linux it is an X server of the test's own, with a window manager unless ORBE_TEST_DESKTOP is
/// "bare"; on Windows the one that is there. Make it before the application object; GUI thread.
class Desktop
{
public:
    Desktop();
    ~Desktop();
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    static bool isShown(quintptr window);
    static quintptr parentOf(quintptr window);
    static bool isTopmost(quintptr window);
    /// Whether a point, in the window's own pixels, belongs to the window's shape.
    static bool covers(quintptr window, QPoint point);

    /// Presses or releases a key of the keyboard: Qt::Key_Escape, Qt::Key_Control or Qt::Key_D.
    static void holdKey(Qt::Key key, bool down);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
