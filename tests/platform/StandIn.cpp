#include "StandIn.h"

#include "Processes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QThread>

StandIn::StandIn(const QString &folder, const QString &name, QVariantMap orders)
    : programPath(folder + QLatin1Char('/') + name)
{
    const QString base = programPath.chopped(4); // ".exe"
    reportPath = base + QStringLiteral(".report");
    QDir().mkpath(folder);
    QFile::copy(QStringLiteral(STANDIN_PROGRAM), programPath);
    orders.insert(QStringLiteral("report"), reportPath);
    QSettings file(base + QStringLiteral(".ini"), QSettings::IniFormat);
    for (auto order = orders.cbegin(); order != orders.cend(); ++order)
        file.setValue(order.key(), order.value());
}

StandIn::~StandIn()
{
    Processes processes;
    for (int round = 0; round < 100 && processes.isRunning(name()); ++round) {
        processes.end(name());
        QThread::msleep(10);
    }
}

QString StandIn::name() const
{
    return QFileInfo(programPath).fileName();
}

QStringList StandIn::report() const
{
    QFile file(reportPath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
