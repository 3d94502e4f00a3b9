#include "HotplugSource.h"

#include "PlatformLog.h"

#include <libudev.h>
#include <QFile>
#include <QSocketNotifier>

namespace platform {

namespace {

struct UdevDeleter
{
    void operator()(udev *context) const { udev_unref(context); }
    void operator()(udev_monitor *monitor) const { udev_monitor_unref(monitor); }
    void operator()(udev_device *device) const { udev_device_unref(device); }
};
template <typename T>
using UdevPointer = std::unique_ptr<T, UdevDeleter>;

} // namespace

struct HotplugSource::Private
{
    UdevPointer<udev> context;
    UdevPointer<udev_monitor> monitor;
};

HotplugSource::HotplugSource(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    // What udev passes on has its access rights already; without udev the kernel's own news has to do.
    const char *origin = QFile::exists(QStringLiteral("/run/udev/control")) ? "udev" : "kernel";
    d->context.reset(udev_new());
    if (d->context)
        d->monitor.reset(udev_monitor_new_from_netlink(d->context.get(), origin));
    udev_monitor *monitor = d->monitor.get();
    if (!monitor || udev_monitor_filter_add_match_subsystem_devtype(monitor, "hidraw", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        qCWarning(lcPlatform)
            << "No news of devices from udev: keyboards are found by the periodic search only";
        return;
    }
    auto *notifier = new QSocketNotifier(udev_monitor_get_fd(monitor), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, monitor] {
        const UdevPointer<udev_device> device(udev_monitor_receive_device(monitor));
        if (device)
            Q_EMIT changed();
    });
}

HotplugSource::~HotplugSource() = default;

bool devicesAreBeingSetUp()
{
    return QFile::exists(QStringLiteral("/run/udev/queue")); // udev keeps it while events wait
}

std::optional<DeviceChangeMessage> deviceChangeMessage(const QByteArray &, void *)
{
    return std::nullopt;
}

} // namespace platform
