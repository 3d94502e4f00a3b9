#include "IniFormat.h"

#include "PlatformLog.h"

#include <QFileDevice>

namespace platform {

namespace {

constexpr QLatin1String NoSection("General"); ///< where keys without a section stand

QByteArray quoted(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    text.replace(u'\n', QStringLiteral("\\n")).replace(u'\r', QStringLiteral("\\r"));
    return '"' + text.toUtf8() + '"';
}

/// Without the quotes around it and the escapes in it, if there are any.
QString unquoted(const QByteArray &value)
{
    const bool isQuoted = value.size() > 1 && value.startsWith('"') && value.endsWith('"');
    const QString text = QString::fromUtf8(isQuoted ? value.sliced(1, value.size() - 2) : value);
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != u'\\' || i + 1 == text.size()) {
            plain += text.at(i);
            continue;
        }
        const QChar escape = text.at(++i);
        plain += escape == u'n'   ? QChar(u'\n')
                 : escape == u'r' ? QChar(u'\r')
                 : escape == u't' ? QChar(u'\t')
                                  : escape;
    }
    return plain;
}

bool readIni(QIODevice &device, QSettings::SettingsMap &values)
{
    QString section;
    while (!device.atEnd()) {
        const QByteArray line = device.readLine().trimmed();
        const qsizetype middle = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']')) {
            section = QString::fromUtf8(QByteArray::fromPercentEncoding(line.sliced(1, line.size() - 2)));
            section = section == NoSection ? QString() : section + u'/';
        } else if (middle > 0 && !line.startsWith(';')) {
            const QByteArray key =
                QByteArray::fromPercentEncoding(line.first(middle).trimmed()).replace('\\', '/');
            values.insert(section + QString::fromUtf8(key), unquoted(line.sliced(middle + 1).trimmed()));
        }
    }
    return true;
}

QByteArray iniText(const QSettings::SettingsMap &values)
{
    QMap<QString, QByteArray> sections;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const qsizetype slash = value.key().indexOf(u'/');
        const QString section = slash < 0 ? QString(NoSection) : value.key().first(slash);
        const QByteArray key =
            value.key().sliced(slash + 1).toUtf8().toPercentEncoding("/").replace('/', '\\');
        sections[section] += key + '=' + quoted(value->toString()) + '\n';
    }
    QByteArray text;
    for (auto section = sections.begin(); section != sections.end(); ++section)
        text += '[' + section.key().toUtf8().toPercentEncoding() + "]\n" + *section + '\n';
    return text;
}

bool writeIni(QIODevice &device, const QSettings::SettingsMap &values)
{
    const QByteArray text = iniText(values);
    auto *const file = qobject_cast<QFileDevice *>(&device);
    // On a full disk a write may be cut short without any error being told, unless it is asked for at once.
    const bool isWhole = device.write(text) == text.size() && (!file || file->flush());
    if (!isWhole)
        qCWarning(lcPlatform).noquote() << "Settings keep their old content:" << device.errorString();
    return isWhole;
}

} // namespace

QSettings::Format iniFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("ini"), readIni, writeIni);
    return format;
}

} // namespace platform
