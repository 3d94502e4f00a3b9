#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QString>
#include <sys/types.h>

/// The user's processes by the file name of their program, as /proc lists them. A program that isn't found is
/// looked for again after a second at the earliest, since the hub asks many times in that time; one that was
/// just started counts at once. Neither case nor an ending ".exe" counts.
class Processes
{
public:
    bool isRunning(const QString &name);
    /// Ends the first process of that name.
    void end(const QString &name);
    /// Starts \a path, or the same without its ending ".exe"; false if it isn't a program.
    bool start(const QString &path);

private:
    pid_t find(const QString &name);
    void readList();

    QHash<QString, pid_t> running; ///< by plain name
    QDeadlineTimer trusted;
};
