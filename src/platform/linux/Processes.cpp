#include "Processes.h"

#include "PlatformLog.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto ListLifetime = 1s;
constexpr QLatin1String ProgramEnding(".exe");

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

QString plainName(const QString &name)
{
    const QString lower = name.toLower();
    return lower.endsWith(ProgramEnding) ? lower.chopped(ProgramEnding.size()) : lower;
}

/// The plain name of the program that a process runs; empty for one that is gone or another user's.
QString programOf(int procFolder, const char *process)
{
    std::array<char, PATH_MAX> target{};
    const QByteArray link = QByteArray(process) + "/exe";
    const ssize_t length = ::readlinkat(procFolder, link.constData(), target.data(), target.size());
    if (length <= 0)
        return {};
    QByteArray path(target.data(), length);
    if (path.endsWith(" (deleted)")) // the kernel's note that an update replaced the file
        path.chop(qsizetype(qstrlen(" (deleted)")));
    return plainName(QFile::decodeName(path.mid(path.lastIndexOf('/') + 1)));
}

QString programOf(pid_t process)
{
    return programOf(AT_FDCWD, QByteArray("/proc/" + QByteArray::number(process)).constData());
}

} // namespace

void Processes::readList()
{
    running.clear();
    trusted.setRemainingTime(ListLifetime);
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir("/proc"));
    if (!folder)
        return;
    while (const dirent *entry = ::readdir(folder.get())) {
        const pid_t process =
            QByteArray::fromRawData(entry->d_name, qsizetype(qstrlen(entry->d_name))).toInt();
        if (process <= 0 || process == ::getpid())
            continue;
        const QString name = programOf(::dirfd(folder.get()), entry->d_name);
        if (!name.isEmpty() && !running.contains(name))
            running.insert(name, process);
    }
}

pid_t Processes::find(const QString &name)
{
    const QString wanted = plainName(name);
    // A process that was seen before is asked for directly, which is cheaper than the list.
    const pid_t known = running.value(wanted);
    if (known && programOf(known) == wanted)
        return known;
    if (known || trusted.hasExpired())
        readList();
    return running.value(wanted);
}

bool Processes::isRunning(const QString &name)
{
    return find(name) != 0;
}

void Processes::end(const QString &name)
{
    readList();
    const pid_t process = find(name);
    if (!process)
        return;
    if (::kill(process, SIGKILL) != 0)
        qCWarning(lcPlatform) << "Can't end" << name << qt_error_string(errno);
    running.remove(plainName(name));
}

bool Processes::start(const QString &path)
{
    QFileInfo program(path);
    if (!program.exists() && path.endsWith(ProgramEnding, Qt::CaseInsensitive))
        program.setFile(path.chopped(ProgramEnding.size()));
    if (!program.isFile() || !program.isExecutable())
        return false;
    qint64 process = 0;
    if (!QProcess::startDetached(program.filePath(), {}, program.absolutePath(), &process)) {
        qCWarning(lcPlatform) << "Can't start" << program.filePath();
        return false;
    }
    running.insert(plainName(program.fileName()), pid_t(process));
    return true;
}
