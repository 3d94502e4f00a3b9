#include "InstanceLock.h"

#include "PlatformLog.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace platform {

namespace {

/// What the two bytes of the lock file stand for.
enum LockByte { DoorByte, InstanceByte };

constexpr auto DoorPatience = 3s;
constexpr auto DoorRetry = 2ms;

/// The file is the same however the program is started: from the desktop, or from a shell whose environment
/// lacks the variable.
QString lockFile(const QString &key)
{
    const uint user = ::getuid();
    const QString folders[] = {qEnvironmentVariable("XDG_RUNTIME_DIR"),
                               QStringLiteral("/run/user/%1").arg(user)};
    for (const QString &folder : folders) {
        const QFileInfo info(folder);
        if (!folder.isEmpty() && info.isDir() && info.ownerId() == user && info.isWritable())
            return QStringLiteral("%1/%2.lock").arg(folder, key);
    }
    return QStringLiteral("/tmp/%1-%2.lock").arg(key).arg(user);
}

} // namespace

struct InstanceLock::Private
{
    bool setLock(short type, LockByte byte) const
    {
        struct flock range
        {
        };
        range.l_type = type;
        range.l_whence = SEEK_SET;
        range.l_start = byte;
        range.l_len = 1;
        return ::fcntl(file, F_OFD_SETLK, &range) == 0;
    }

    int file = -1;
};

// The file stays when the locks fall: removing it would let two processes lock two files of one name.
InstanceLock::InstanceLock(const QString &key)
    : d(std::make_unique<Private>())
{
    const QByteArray path = QFile::encodeName(lockFile(key));
    d->file = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (d->file < 0) {
        qCWarning(lcPlatform) << "Can't open" << path
                              << "- other instances aren't seen:" << qt_error_string();
    }
}

InstanceLock::~InstanceLock()
{
    if (d->file >= 0)
        ::close(d->file);
}

void InstanceLock::enter()
{
    const QDeadlineTimer patience(DoorPatience);
    while (d->file >= 0 && !d->setLock(F_WRLCK, DoorByte)) {
        if (patience.hasExpired()) {
            qCWarning(lcPlatform) << "Another start of the program hangs; going on beside it";
            return;
        }
        QThread::msleep(DoorRetry.count());
    }
}

void InstanceLock::leave()
{
    if (d->file >= 0)
        d->setLock(F_UNLCK, DoorByte);
}

bool InstanceLock::claim()
{
    if (d->file < 0 || d->setLock(F_WRLCK, InstanceByte))
        return true;
    return errno != EAGAIN && errno != EACCES;
}

QStringList InstanceLock::segmentKeys(const QString &key)
{
    return {key, QStringLiteral("%1-%2").arg(key).arg(::getuid())};
}

} // namespace platform
