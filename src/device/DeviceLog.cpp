#include "DeviceLog.h"

Q_LOGGING_CATEGORY(lcDevice, "orbe.device")
