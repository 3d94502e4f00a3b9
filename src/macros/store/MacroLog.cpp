#include "MacroLog.h"

Q_LOGGING_CATEGORY(lcMacros, "orbe.macros")
