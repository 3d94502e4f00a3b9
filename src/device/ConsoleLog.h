#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QPlainTextEdit;

/// The console's log of what goes out and comes back. It shows the last burst only: the first line after half
/// a second of silence wipes what stood there. GUI thread only.
class ConsoleLog : public QObject
{
    Q_OBJECT

public:
    /// \a view is where the lines go; once it is gone, logging does nothing.
    explicit ConsoleLog(QPlainTextEdit *view, QObject *parent = nullptr);

    /// Adds a line of hex bytes, and an empty one behind it for \a lineEnd.
    void add(const QByteArray &bytes, bool lineEnd);

    /// Upper-case hex with a blank between bytes and one more between groups of four.
    static QString format(const QByteArray &bytes);

private:
    QPointer<QPlainTextEdit> view;
    QTimer logClearTimer;
    bool logClearPending = true;
};
