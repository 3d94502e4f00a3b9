#pragma once

#include "SiblingOperations.h"

#include <QHash>
#include <QMap>
#include <QStringList>

/// A desktop made of values: it writes down what is asked of it, in order, and answers as the test set it up.
class RecordedOperations : public SiblingOperations
{
public:
    QStringList record;            ///< one entry an operation; questions are not recorded
    QStringList processes;         ///< that run
    QMap<QString, Window> windows; ///< by title
    QHash<Window, QRect> rects;
    QMap<QString, QVariant> values;

    /// The record since the last call, as "operation; operation".
    QString taken() { return std::exchange(record, {}).join(QStringLiteral("; ")); }

    void startProgram(const QString &path) override { note("start", path); }
    bool isRunning(const QString &process) override { return processes.contains(process); }
    void endProcess(const QString &process) override { note("end", process); }

    Window findWindow(const QString &title) override { return windows.value(title); }
    void setStyles(Window window, quint32 style, quint32 extended) override;
    void setParent(Window window, Window parent) override;
    void place(Window window, Order order, const QRect &rect, unsigned flags) override;
    void show(Window window) override { note("show", window); }
    void hide(Window window) override { note("hide", window); }
    void bringToTop(Window window) override { note("top", window); }
    void move(Window window, const QRect &rect) override;
    void setForeground(Window window) override { note("foreground", window); }
    void redraw(Window window, unsigned flags) override;
    QRect rect(Window window) override { return rects.value(window); }
    void shapeRoundBottom(Window window, const QSize &size, int cornerSize, int squareTop) override;
    void postClose(Window window) override { note("close", window); }

    QVariant value(const QString &key, const QVariant &fallback) override
    {
        return values.value(key, fallback);
    }
    void setValue(const QString &key, const QVariant &value) override;

    /// How a rectangle is written down.
    static QString text(const QRect &rect);

private:
    void note(const char *operation, const QString &what);
    void note(const char *operation, Window window) { note(operation, QString::number(window)); }
};
