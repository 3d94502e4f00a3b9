#include "DeviceLog.h"

Q_LOGGING_CATEGORY(lcDevice, "orbe.device")
Q_LOGGING_CATEGORY(lcAudio, "orbe.audio")
