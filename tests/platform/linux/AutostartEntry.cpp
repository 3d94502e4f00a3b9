#include "AutostartEntry.h"

#include "UserConfig.h"

#include <QFile>
#include <QSettings>

namespace {

QString entryFile()
{
    return platform::userConfigRoot() + QStringLiteral("/autostart/OrbeHub.desktop");
}

/// Takes away one level of escaping.
QString unescaped(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('\\'))
            ++i;
        result += text[i];
    }
    return result;
}

} // namespace

// The value is a string with escapes; in it stands an argument in quotes, with escapes of its own, and in
// that a percent sign is doubled.
QString autostartedProgram()
{
    QFile file(entryFile());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    if (lines.first() != QLatin1String("[Desktop Entry]") ||
        !lines.contains(QLatin1String("Type=Application")))
        return QStringLiteral("no desktop entry");
    const QString start = QStringLiteral("Exec=");
    const QString value = unescaped(lines.filter(start).value(0).mid(start.size()));
    if (!value.startsWith(QLatin1Char('"')) || !value.endsWith(QLatin1Char('"')))
        return QStringLiteral("not quoted");
    return unescaped(value.mid(1, value.size() - 2)).replace(QStringLiteral("%%"), QStringLiteral("%"));
}

void switchOffInTheDesktop()
{
    QFile file(entryFile());
    if (file.open(QIODevice::Append))
        file.write("Hidden=true\n");
}
