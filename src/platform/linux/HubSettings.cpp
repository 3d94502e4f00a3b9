#include "HubSettings.h"

#include <QSettings>
#include <QStandardPaths>

namespace platform {

namespace {

QString settingsFile(const char *brand)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/OrbeHub/%1.ini").arg(QLatin1String(brand));
}

} // namespace

QSettings &hubSettings(bool secondBrand)
{
    static QSettings first(settingsFile("Orbe"), QSettings::IniFormat);
    static QSettings second(settingsFile("Tarnwick"), QSettings::IniFormat);
    return secondBrand ? second : first;
}

} // namespace platform
