#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QString>

/// The machine's processes by the file name of their program; neither case nor an ending ".exe" counts. A
/// program that isn't found is looked for again after a second at the earliest, since the hub asks many times
/// in that time; one that was just started counts at once. One thread.
class Processes
{
public:
    bool isRunning(const QString &program);
    /// Ends the first process of that name, without asking it.
    void end(const QString &program);
    /// Starts a program with its window hidden, where the system can do that. \a path may have blanks. False
    /// if it isn't a program.
    bool start(const QString &path);

private:
    qint64 find(const QString &name);
    void readList();

    QHash<QString, qint64> running; ///< ids by plain name
    QDeadlineTimer trusted;
};
