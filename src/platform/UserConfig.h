#pragma once

#include <QString>

namespace platform {

/// Where the user's settings lie: a folder on Linux, a key of the registry on Windows. In QStandardPaths'
/// test mode it is another one, of the program's name, that nothing else uses.
QString userConfigRoot();

} // namespace platform
