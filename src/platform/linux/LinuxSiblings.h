#pragma once

#include "EmbeddedWindows.h"
#include "ForeignWindows.h"
#include "Processes.h"
#include "SiblingOperations.h"

#include <QSet>

/// Hosting with what a Linux desktop gives: /proc and signals for processes, the X server for windows, a file
/// for the values. On a desktop without X11 the windows' part does nothing and says so once.
class LinuxSiblings : public SiblingOperations
{
public:
    explicit LinuxSiblings(QSettings &values)
        : settings(values)
    {
    }

    void startProgram(const QString &path) override;
    bool isRunning(const QString &process) override;
    void endProcess(const QString &process) override;

    Window findWindow(const QString &title) override;
    void setStyles(Window window, quint32 style, quint32 extendedStyle) override;
    void setParent(Window window, Window parent) override;
    void place(Window window, Order order, const QRect &rect, unsigned flags) override;
    void show(Window window) override;
    void hide(Window window) override;
    void bringToTop(Window window) override;
    void move(Window window, const QRect &rect) override;
    void setForeground(Window window) override;
    void redraw(Window window, unsigned flags) override;
    QRect rect(Window window) override;
    void shapeRoundBottom(Window window, const QSize &size, int cornerSize, int squareTop) override;
    void postClose(Window window) override;

    QVariant value(const QString &key, const QVariant &fallback) override;
    void setValue(const QString &key, const QVariant &value) override;

private:
    bool canHost(const char *operation);

    QSettings &settings;
    Processes processes;
    ForeignWindows windows;
    EmbeddedWindows embedded;
    QSet<QString> missingPrograms;
    QSet<QByteArray> reported; ///< operations that were said to be missing
};
