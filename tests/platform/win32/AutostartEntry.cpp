#include "AutostartEntry.h"

#include "UserConfig.h"

#include <QDir>
#include <QSettings>

namespace {

QSettings &entries()
{
    static QSettings settings(platform::userConfigRoot() +
                                  QStringLiteral("\\Microsoft\\Windows\\CurrentVersion\\Run"),
                              QSettings::NativeFormat);
    return settings;
}

} // namespace

QString autostartedProgram()
{
    const QString value = entries().value(QStringLiteral("OrbeHub")).toString();
    if (value.isEmpty())
        return {};
    if (!value.startsWith(QLatin1Char('"')) || !value.endsWith(QLatin1Char('"')) ||
        value.contains(QLatin1Char('/')))
        return QStringLiteral("not as Windows wants it: ") + value;
    return QDir::fromNativeSeparators(value.mid(1, value.size() - 2));
}

// The task manager keeps its own list, which the entry doesn't show; what is left is an empty entry.
void switchOffInTheDesktop()
{
    entries().setValue(QStringLiteral("OrbeHub"), QString());
}
