#include "HotplugSource.h"

#include <windows.h>

namespace platform {

struct HotplugSource::Private
{
};

HotplugSource::HotplugSource(QObject *parent)
    : QObject(parent)
{
}

HotplugSource::~HotplugSource() = default;

bool devicesAreBeingSetUp()
{
    return false;
}

std::optional<DeviceChangeMessage> deviceChangeMessage(const QByteArray &eventType, void *message)
{
    if (!eventType.startsWith("windows_"))
        return std::nullopt;
    const auto *native = static_cast<const MSG *>(message);
    if (native->message != WM_DEVICECHANGE)
        return std::nullopt;
    return DeviceChangeMessage{native->wParam, native->lParam};
}

} // namespace platform
