#pragma once

#include "Processes.h"
#include "SiblingOperations.h"

#include <memory>
#include <QSet>

class QSettings;

/// The operations as this system has them. On Linux those on windows work where the desktop is X11; elsewhere
/// they do nothing, and say so once.
class SystemSiblings : public SiblingOperations
{
public:
    explicit SystemSiblings(QSettings &settings);
    ~SystemSiblings() override;

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
    QSettings &settings;
    Processes processes;
    QSet<QString> missingPrograms;

    struct Desktop; ///< what the system's folder needs for windows
    std::unique_ptr<Desktop> desktop;
};
