#include "UserConfig.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace platform {

QString userConfigRoot()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (QStandardPaths::isTestModeEnabled())
        return folder + QLatin1Char('/') + QCoreApplication::applicationName();
    return folder;
}

} // namespace platform
