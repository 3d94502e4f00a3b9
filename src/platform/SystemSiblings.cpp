#include "SystemSiblings.h"

#include "HubSettings.h"
#include "PlatformLog.h"

#include <QSettings>

// Processes and values, which are the same work everywhere; the windows' part lies in the system's folder.

std::unique_ptr<SiblingOperations> SiblingOperations::create(QSettings &settings)
{
    return std::make_unique<SystemSiblings>(settings);
}

void SystemSiblings::startProgram(const QString &path)
{
    // A driver that isn't installed is asked for again and again, and its absence told once.
    if (!processes.start(path) && !missingPrograms.contains(path)) {
        missingPrograms.insert(path);
        qCInfo(lcPlatform) << "No program to start at" << path;
    }
}

bool SystemSiblings::isRunning(const QString &process)
{
    return processes.isRunning(process);
}

void SystemSiblings::endProcess(const QString &process)
{
    processes.end(process);
}

QVariant SystemSiblings::value(const QString &key, const QVariant &fallback)
{
    platform::fetchForeignValues(settings);
    return settings.value(key, fallback);
}

// Reaches the drivers with the next turn of the event loop, all values of one turn together.
void SystemSiblings::setValue(const QString &key, const QVariant &value)
{
    settings.setValue(key, value);
}
