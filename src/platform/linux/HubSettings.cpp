#include "HubSettings.h"

#include "IniFormat.h"
#include "UserConfig.h"

#include <QSettings>

namespace platform {

namespace {

QString settingsFile(const char *brand)
{
    return QStringLiteral("%1/OrbeHub/%2.ini").arg(userConfigRoot(), QLatin1String(brand));
}

} // namespace

QSettings &hubSettings(bool secondBrand)
{
    static QSettings first(settingsFile("Orbe"), iniFormat());
    static QSettings second(settingsFile("Tarnwick"), iniFormat());
    return secondBrand ? second : first;
}

void fetchForeignValues(QSettings &settings)
{
    settings.sync();
}

} // namespace platform
