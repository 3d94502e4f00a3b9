#include "Disk.h"

#include <csignal>
#include <fcntl.h>
#include <QDir>
#include <QFile>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;

bool isIsolated = false;

bool writeFile(const char *path, const QByteArray &content)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(content) == content.size();
}

/// Makes this user root of a namespace of its own; root itself needs none.
bool becomeRoot()
{
    const uid_t user = ::getuid();
    const gid_t group = ::getgid();
    if (user == 0 && ::unshare(CLONE_NEWNS) == 0)
        return true;
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && writeFile("/proc/self/setgroups", "deny") &&
           writeFile("/proc/self/uid_map", "0 " + QByteArray::number(user) + " 1") &&
           writeFile("/proc/self/gid_map", "0 " + QByteArray::number(group) + " 1");
}

void limitFiles(rlim_t bytes)
{
    const rlimit limit{bytes, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

QString fillerIn(const QString &folder)
{
    return folder + QStringLiteral("/.filler");
}

} // namespace

bool Disk::isolate()
{
    std::signal(SIGXFSZ, SIG_IGN);
    isIsolated = becomeRoot() && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return isIsolated;
}

Disk::Disk(const QString &folder)
    : path(folder)
{
    QDir().mkpath(path);
    if (isIsolated)
        ::mount("tmpfs", QFile::encodeName(path).constData(), "tmpfs", 0, "size=4m");
}

Disk::~Disk()
{
    release();
    if (isIsolated)
        ::umount2(QFile::encodeName(path).constData(), MNT_DETACH);
}

void Disk::fill(qint64 freePages)
{
    if (!isIsolated) {
        limitFiles(rlim_t(freePages * PageSize));
        return;
    }
    struct statvfs space
    {
    };
    ::statvfs(QFile::encodeName(path).constData(), &space);
    const int filler =
        ::open(QFile::encodeName(fillerIn(path)).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ::posix_fallocate(filler, 0, (qint64(space.f_bavail) - freePages) * PageSize);
    ::close(filler);
}

void Disk::protect()
{
    const QByteArray name = QFile::encodeName(path);
    if (isIsolated) {
        ::mount("tmpfs", name.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr);
        return;
    }
    ::chmod(name.constData(), 0555);
    if (::getuid() == 0) // whom no rights stop
        ::seteuid(Nobody);
}

void Disk::release()
{
    const QByteArray name = QFile::encodeName(path);
    if (isIsolated) {
        ::mount("tmpfs", name.constData(), nullptr, MS_REMOUNT, nullptr);
        QFile::remove(fillerIn(path));
        return;
    }
    if (::geteuid() == Nobody)
        ::seteuid(0);
    ::chmod(name.constData(), 0755);
    limitFiles(RLIM_INFINITY);
}
