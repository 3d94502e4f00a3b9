#include "Autostart.h"

#include "PlatformLog.h"
#include "UserConfig.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace autostart {

namespace {

QString entryFolder()
{
    return platform::userConfigRoot() + QStringLiteral("/autostart");
}

QString entryFile()
{
    return entryFolder() + QStringLiteral("/OrbeHub.desktop");
}

/// A text as the value of a key.
QString stringValue(QString text)
{
    return text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
}

/// A path as one argument of a desktop entry's Exec line: quoted, with what the quotes don't protect escaped,
/// once for the quotes and once more for the string value that the line is.
QString execArgument(const QString &path)
{
    QString argument;
    for (const QChar c : path) {
        if (QStringLiteral("\"`$").contains(c))
            argument += QStringLiteral("\\\\");
        if (c == QLatin1Char('\\'))
            argument += QStringLiteral("\\\\\\");
        if (c == QLatin1Char('%'))
            argument += c;
        argument += c;
    }
    return QLatin1Char('"') + argument + QLatin1Char('"');
}

} // namespace

bool isEnabled()
{
    QFile file(entryFile());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    // Desktops switch an entry off in their own settings without removing it.
    const QByteArray lines = '\n' + file.readAll() + '\n';
    return !lines.contains("\nHidden=true\n") && !lines.contains("\nX-GNOME-Autostart-enabled=false\n");
}

void enable(const QString &program)
{
    QDir().mkpath(entryFolder());
    QSaveFile file(entryFile());
    // TryExec: a copy that was deleted is passed over without a word.
    const QString entry = QStringLiteral("[Desktop Entry]\nType=Application\nName=OrbeHub\nTryExec=%1\n"
                                         "Exec=%2\nTerminal=false\n")
                              .arg(stringValue(program), execArgument(program));
    const QByteArray content = entry.toUtf8();
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    if (!written || !file.commit())
        qCWarning(lcPlatform) << "Can't write the autostart entry" << file.fileName() << file.errorString();
}

void disable()
{
    QFile file(entryFile());
    if (file.exists() && !file.remove())
        qCWarning(lcPlatform) << "Can't remove the autostart entry" << file.fileName() << file.errorString();
}

void removeForAllUsers()
{
    const QString entry = QStringLiteral("/etc/xdg/autostart/OrbeHub.desktop");
    if (QFile::exists(entry) && !QFile::remove(entry))
        qCDebug(lcPlatform) << "The autostart entry for all users stays:" << entry;
}

} // namespace autostart
