#include "HidHandle.h"

#include "DeviceLog.h"

#include <chrono>
#include <hidapi/hidapi.h>
#include <mutex>
#include <QMutex>
#include <QSet>
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
        const QMutexLocker lock(&mutex);
        if (reported.contains(path))
            return;
        reported.insert(path);
        qCWarning(lcDevice).noquote() << "Can't open" << path << "-" << cause << remedy(cause);
    }

    void forget(const QByteArray &path)
    {
        const QMutexLocker lock(&mutex);
        reported.remove(path);
    }

private:
    static QString remedy([[maybe_unused]] const QString &cause)
    {
#ifdef Q_OS_LINUX
        if (cause.contains(QLatin1String("permission denied"), Qt::CaseInsensitive) ||
            cause.contains(QLatin1String("EACCES"))) {
            return QStringLiteral("- copy packaging/linux/70-orbehub.rules to /etc/udev/rules.d and plug the "
                                  "keyboard in again");
        }
#endif
        return {};
    }

    QMutex mutex;
    QSet<QByteArray> reported;
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

void HidHandle::setNonblocking(bool nonblocking)
{
    if (device)
        hid_set_nonblocking(device.get(), nonblocking ? 1 : 0);
}

void HidHandle::Closer::operator()(hid_device *handle) const
{
    hid_close(handle);
}
