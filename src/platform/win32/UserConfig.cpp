#include "UserConfig.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace platform {

QString userConfigRoot()
{
    const QString key = QStringLiteral("HKEY_CURRENT_USER\\Software");
    if (QStandardPaths::isTestModeEnabled())
        return QStringLiteral("%1\\OrbeHubTests\\%2").arg(key, QCoreApplication::applicationName());
    return key;
}

} // namespace platform
