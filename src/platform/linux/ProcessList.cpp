#include "ProcessList.h"

#include <array>
#include <climits>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <unistd.h>

namespace processlist {

namespace {

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// \a link is relative to the folder that \a folder is open on.
QString programBehind(int folder, const QByteArray &link)
{
    constexpr QByteArrayView Replaced(" (deleted)"); // the kernel's note, after an update for example
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlinkat(folder, link.constData(), target.data(), target.size());
    if (length <= 0)
        return {};
    QByteArray path(target.data(), length);
    if (path.endsWith(Replaced))
        path.chop(Replaced.size());
    return QFile::decodeName(path.mid(path.lastIndexOf('/') + 1));
}

} // namespace

std::vector<Entry> read()
{
    std::vector<Entry> entries;
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir("/proc"));
    if (!folder)
        return entries;
    while (const dirent *item = ::readdir(folder.get())) {
        const QByteArray name = item->d_name;
        const qint64 process = name.toLongLong();
        if (process <= 0 || process == ::getpid())
            continue;
        const QString program = programBehind(::dirfd(folder.get()), QByteArray(name + "/exe"));
        if (!program.isEmpty())
            entries.push_back({process, program});
    }
    return entries;
}

QString programOf(qint64 process)
{
    return programBehind(AT_FDCWD, QByteArray("/proc/" + QByteArray::number(process) + "/exe"));
}

// Programs have no ending here, but may keep the name that they have elsewhere.
std::optional<qint64> start(const QString &path)
{
    constexpr QLatin1String Ending(".exe");
    QFileInfo program(path);
    if (!program.exists() && path.endsWith(Ending, Qt::CaseInsensitive))
        program.setFile(path.chopped(Ending.size()));
    if (!program.isFile() || !program.isExecutable())
        return std::nullopt;
    qint64 process = 0;
    if (!QProcess::startDetached(program.filePath(), {}, program.absolutePath(), &process))
        return std::nullopt;
    return process;
}

bool end(qint64 process)
{
    return ::kill(pid_t(process), SIGKILL) == 0;
}

} // namespace processlist
