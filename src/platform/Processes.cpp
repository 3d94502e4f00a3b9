#include "Processes.h"

#include "PlatformLog.h"
#include "ProcessList.h"

#include <chrono>
#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

constexpr auto ListLifetime = 1s;

QString plainName(const QString &program)
{
    constexpr QLatin1String Ending(".exe");
    const QString lower = program.toLower();
    return lower.endsWith(Ending) ? lower.chopped(Ending.size()) : lower;
}

} // namespace

void Processes::readList()
{
    running.clear();
    for (const processlist::Entry &entry : processlist::read()) {
        const QString name = plainName(entry.program);
        if (!running.contains(name))
            running.insert(name, entry.id);
    }
    trusted.setRemainingTime(ListLifetime);
}

qint64 Processes::find(const QString &name)
{
    // A process that was seen before is asked for directly, which is cheaper than the list.
    const qint64 known = running.value(name);
    if (known && plainName(processlist::programOf(known)) == name)
        return known;
    if (known || trusted.hasExpired())
        readList();
    return running.value(name);
}

bool Processes::isRunning(const QString &program)
{
    return find(plainName(program)) != 0;
}

void Processes::end(const QString &program)
{
    readList();
    const qint64 process = running.take(plainName(program));
    if (process && !processlist::end(process))
        qCWarning(lcPlatform) << "Can't end" << program;
}

bool Processes::start(const QString &path)
{
    const std::optional<qint64> process = processlist::start(path);
    if (!process)
        return false;
    if (*process) {
        running.insert(plainName(QFileInfo(path).fileName()), *process);
    } else {
        trusted = QDeadlineTimer();
    }
    return true;
}
