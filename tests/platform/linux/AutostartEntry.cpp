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

/// The string that stands at a key.
QString valueOf(const QString &key, const QStringList &lines)
{
    for (const QString &line : lines) {
        if (line.startsWith(key + QLatin1Char('=')))
            return unescaped(line.mid(key.size() + 1));
    }
    return {};
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
    const QString value = valueOf(QStringLiteral("Exec"), lines);
    if (!value.startsWith(QLatin1Char('"')) || !value.endsWith(QLatin1Char('"')))
        return QStringLiteral("not quoted");
    const QString program =
        unescaped(value.mid(1, value.size() - 2)).replace(QStringLiteral("%%"), QStringLiteral("%"));
    return valueOf(QStringLiteral("TryExec"), lines) == program ? program : QStringLiteral("not looked for");
}

void switchOffInTheDesktop()
{
    QFile file(entryFile());
    if (file.open(QIODevice::Append))
        file.write("Hidden=true\n");
}
