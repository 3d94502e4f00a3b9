#include "Autostart.h"

#include "UserConfig.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace autostart {

namespace {

QString runKey(const QString &root)
{
    return root + QStringLiteral("\\Microsoft\\Windows\\CurrentVersion\\Run");
}

QSettings &userEntries()
{
    static QSettings entries(runKey(platform::userConfigRoot()), QSettings::NativeFormat);
    return entries;
}

QString entryName()
{
    return QStringLiteral("OrbeHub");
}

} // namespace

bool isEnabled()
{
    return !userEntries().value(entryName()).toString().isEmpty();
}

void enable(const QString &program)
{
    userEntries().setValue(entryName(), QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(program)));
}

void disable()
{
    userEntries().remove(entryName());
}

void removeForAllUsers()
{
    if (QStandardPaths::isTestModeEnabled())
        return;
    static QSettings entries(runKey(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE")), QSettings::NativeFormat);
    entries.remove(entryName());
}

} // namespace autostart
