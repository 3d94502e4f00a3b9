#pragma once

#include <optional>
#include <QString>
#include <vector>

/// Processes as the operating system knows them. Any thread.
namespace processlist {

struct Entry
{
    qint64 id;
    QString program; ///< its file name
};

/// All other processes that the user may see, in the system's order.
std::vector<Entry> read();
/// File name of the program that a process runs; empty for one that has ended or may not be seen.
QString programOf(qint64 process);

/// Starts a program, with its window hidden if the system can do that. Gives the id of the process, 0 if the
/// system doesn't tell it, and nothing if no process was started.
std::optional<qint64> start(const QString &path);
/// Ends a process at once, without asking it; false without the right to do so.
bool end(qint64 process);

} // namespace processlist
