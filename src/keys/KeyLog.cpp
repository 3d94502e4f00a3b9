#include "KeyLog.h"

Q_LOGGING_CATEGORY(lcKeys, "orbe.keys")
