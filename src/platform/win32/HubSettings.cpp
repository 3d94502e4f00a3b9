#include "HubSettings.h"

#include "UserConfig.h"

#include <QSettings>

namespace platform {

QSettings &hubSettings(bool secondBrand)
{
    static QSettings first(userConfigRoot() + QStringLiteral("\\Orbe"), QSettings::NativeFormat);
    static QSettings second(userConfigRoot() + QStringLiteral("\\Tarnwick"), QSettings::NativeFormat);
    return secondBrand ? second : first;
}

// The registry is read anew with every value, and QSettings' way to synchronise makes it write to the disk.
void fetchForeignValues(QSettings &) {}

} // namespace platform
