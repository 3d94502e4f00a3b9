#pragma once

#include <memory>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariant>

class QSettings;

/// What hosting a driver program asks of the operating system: its processes, its window, and the values that
/// hub and drivers hand each other. GUI thread only. Nothing fails loudly: a window that is gone, a program
/// that isn't there, or a desktop that doesn't offer an operation changes nothing and leaves a line in the
/// log.
class SiblingOperations
{
public:
    /// A native window; 0 is none.
    using Window = quintptr;

    /// Where a window goes in the order of its siblings.
    enum class Order { Top, Bottom, Topmost, NotTopmost };

    /// What placing a window leaves alone or adds; the values are the system's own flags.
    enum PlaceFlag : unsigned {
        NoSize = 0x0001,
        NoMove = 0x0002,
        ShowWindow = 0x0040,
        HideWindow = 0x0080,
    };

    virtual ~SiblingOperations() = default;

    /// Starts a program with its window hidden. \a path is one program, blanks and all.
    virtual void startProgram(const QString &path) = 0;
    /// Whether a process of that image name runs; case doesn't count.
    virtual bool isRunning(const QString &process) = 0;
    /// Ends the first process of that image name.
    virtual void endProcess(const QString &process) = 0;

    /// The top-level window of any process with exactly that title.
    virtual Window findWindow(const QString &title) = 0;
    virtual void setStyles(Window window, quint32 style, quint32 extendedStyle) = 0;
    virtual void setParent(Window window, Window parent) = 0;
    /// \a rect is in native pixels.
    virtual void place(Window window, Order order, const QRect &rect, unsigned flags) = 0;
    virtual void show(Window window) = 0;
    virtual void hide(Window window) = 0;
    virtual void bringToTop(Window window) = 0;
    /// Moves, resizes and repaints; native pixels.
    virtual void move(Window window, const QRect &rect) = 0;
    virtual void setForeground(Window window) = 0;
    /// \a flags are the system's own redraw flags.
    virtual void redraw(Window window, unsigned flags) = 0;
    /// Native pixels; null for a window that is gone.
    virtual QRect rect(Window window) = 0;
    /// Shapes the window to its size with round corners at the bottom and square ones in the top \a squareTop
    /// pixels.
    virtual void shapeRoundBottom(Window window, const QSize &size, int cornerSize, int squareTop) = 0;
    /// Asks the window to close, as its close button does; doesn't wait.
    virtual void postClose(Window window) = 0;

    /// A shared value as it is now, whoever wrote it.
    virtual QVariant value(const QString &key, const QVariant &fallback) = 0;
    virtual void setValue(const QString &key, const QVariant &value) = 0;

    /// The operating system's own. \a settings hold the values and must outlive the object.
    static std::unique_ptr<SiblingOperations> create(QSettings &settings);
};
