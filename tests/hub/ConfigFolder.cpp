#include "ConfigFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

ConfigFolder::ConfigFolder()
    : folder(QCoreApplication::applicationDirPath() + QStringLiteral("/config/"))
{
    const QDir shipped(QStringLiteral(ORBE_SHIPPED_CONFIG));
    QDir(folder).removeRecursively();
    QVERIFY(QDir().mkpath(folder));
    const QStringList files = shipped.entryList(QDir::Files);
    for (const QString &file : files)
        QVERIFY(QFile::copy(shipped.filePath(file), folder + file));
}

ConfigFolder::~ConfigFolder()
{
    QDir(folder).removeRecursively();
}

QString ConfigFolder::path(const char *name) const
{
    return folder + QLatin1String(name);
}

void ConfigFolder::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void ConfigFolder::remove(const char *name) const
{
    QFile::remove(path(name));
}
