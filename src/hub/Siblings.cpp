#include "Siblings.h"

#include <QDir>

QString siblingRoot(const QString &applicationFolder)
{
    const bool beside = QDir(applicationFolder + QStringLiteral("/RyExe")).exists();
    return beside ? applicationFolder : applicationFolder + QStringLiteral("/..");
}
