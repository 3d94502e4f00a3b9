#include "PlatformLog.h"

Q_LOGGING_CATEGORY(lcPlatform, "orbe.platform")
