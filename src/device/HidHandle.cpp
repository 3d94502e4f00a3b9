#include "HidHandle.h"

#include "DeviceLog.h"
#include "HotplugSource.h"

#include <chrono>
#include <hidapi/hidapi.h>
#include <mutex>
#include <QHash>
#include <QMutex>
#include <QString>

using namespace std::chrono_literals;

namespace {

constexpr auto LongestWait = 500ms;

/// Remembers which paths were already reported, so that a scan every few seconds doesn't fill the log.
class OpenFailures
{
public:
    void report(const QByteArray &path, const QString &cause)
    {
        const bool refused = cause.contains(QLatin1String("permission denied"), Qt::CaseInsensitive) ||
                             cause.contains(QLatin1String("EACCES"));
        const OpenFailure kind = refused ? OpenFailure::Denied : OpenFailure::Other;
        const QMutexLocker lock(&mutex);
        // Its turn to be given to the user may still come, and the news of it leads to another search.
        if (refused && platform::devicesAreBeingSetUp()) {
            reported.remove(path);
            return;
        }
        if (reported.value(path, OpenFailure::None) == kind)
            return;
        reported.insert(path, kind);
        qCWarning(lcDevice).noquote() << "Can't open" << path << "-" << cause << remedy(refused);
    }

    void forget(const QByteArray &path)
    {
        const QMutexLocker lock(&mutex);
        reported.remove(path);
    }

    OpenFailure last(const QByteArray &path)
    {
        const QMutexLocker lock(&mutex);
        return reported.value(path, OpenFailure::None);
    }

private:
    static QString remedy([[maybe_unused]] bool refused)
    {
#ifdef Q_OS_LINUX
        if (refused) {
            return QStringLiteral("- copy packaging/linux/70-orbehub.rules to /etc/udev/rules.d and plug the "
                                  "keyboard in again");
        }
#endif
        return {};
    }

    QMutex mutex;
    QHash<QByteArray, OpenFailure> reported;
};

OpenFailures &openFailures()
{
    // Never destroyed: a search that a HID call holds may come back while the process ends.
    static auto &failures = *new OpenFailures;
    return failures;
}

} // namespace

QMutex &hidLibraryMutex()
{
    static auto &mutex = *new QMutex;
    return mutex;
}

QMutex &airMutex()
{
    static auto &mutex = *new QMutex; // lives as long as hidLibraryMutex()
    return mutex;
}

HidHandle HidHandle::open(const QByteArray &path)
{
    std::unique_lock lock(hidLibraryMutex(), LongestWait);
    if (!lock) {
        openFailures().report(path, QStringLiteral("another device holds the system's answer"));
        return {};
    }
    HidHandle handle(hid_open_path(path.constData()));
    if (handle)
        openFailures().forget(path);
    else
        openFailures().report(path, QString::fromWCharArray(hid_error(nullptr)));
    return handle;
}

OpenFailure HidHandle::lastFailure(const QByteArray &path)
{
    return openFailures().last(path);
}

void HidHandle::setNonblocking(bool nonblocking)
{
    if (device)
        hid_set_nonblocking(device.get(), nonblocking ? 1 : 0);
}

void HidHandle::Closer::operator()(hid_device *handle) const
{
    hid_close(handle);
}
