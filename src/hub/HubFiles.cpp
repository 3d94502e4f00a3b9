#include "HubFiles.h"

#include "HubLog.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMutex>
#include <QSet>

namespace hubfiles {

namespace {

/// A scan looks at each file again and again; its fault is told once.
void warnOnce(const QString &path, qint64 largest)
{
    static QMutex mutex;
    static QSet<QString> told;
    const QMutexLocker lock(&mutex);
    if (told.contains(path))
        return;
    told.insert(path);
    qCWarning(lcHub).noquote() << path << "is no plain file of at most" << largest << "bytes; left unread";
}

} // namespace

QString configPath(QLatin1String name)
{
    static const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/config/");
    return folder + name;
}

bool isReadable(const QString &path, qint64 largest)
{
    const QFileInfo file(path);
    if (!file.exists())
        return false;
    if (file.isFile() && file.size() <= largest)
        return true;
    warnOnce(path, largest);
    return false;
}

quint64 number(const QString &text)
{
    const QString digits = text.trimmed().toUpper();
    const int base = digits.contains(QLatin1String("0X")) ? 16 : 10;
    return digits.toULongLong(nullptr, base);
}

} // namespace hubfiles
