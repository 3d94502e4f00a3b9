#include "LightingLog.h"

Q_LOGGING_CATEGORY(lcLighting, "orbe.lighting")
