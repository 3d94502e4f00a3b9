#include "FuzzProgram.h"

#include "FuzzClock.h"

#include <cstdlib>
#include <fcntl.h>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QString programFolder()
{
    return QCoreApplication::applicationDirPath();
}

void makeFolders()
{
    const QDir memory(fuzzprogram::folder());
    QDir(memory).removeRecursively();
    memory.mkpath(QStringLiteral("config"));
    const QString config = programFolder() + QStringLiteral("/config");
    QFile::remove(config);
    QFile::link(memory.filePath(QStringLiteral("config")), config);
    const QDir shipped(QStringLiteral(ORBE_SHIPPED_CONFIG));
    const QStringList files = shipped.entryList(QDir::Files);
    for (const QString &file : files)
        QFile::copy(shipped.filePath(file), config + u'/' + file);
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, QFile::encodeName(memory.path()));
}

} // namespace

namespace fuzzprogram {

QString folder()
{
    const QDir memory(QStringLiteral("/dev/shm"));
    return (memory.exists() ? memory : QDir::temp())
        .filePath(QStringLiteral("orbehub-%1-%2").arg(QFileInfo(programFolder()).fileName()).arg(getuid()));
}

QString configPath(const char *name)
{
    return programFolder() + QStringLiteral("/config/") + QLatin1String(name);
}

// What reads settings looks at a file's size and its time of change only.
void write(const QString &path, const QByteArray &content)
{
    static timespec times[2]{};
    times[0].tv_sec = ++times[1].tv_sec;
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    require(file >= 0 && ::write(file, content.constData(), size_t(content.size())) == content.size());
    ::futimens(file, times);
    ::close(file);
}

void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace fuzzprogram

/// What the system's libraries keep to the end of the process is no leak of the product's.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

// Neither the application nor what hangs on it is ever destroyed: the program ends by _exit.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1"); // the event loop that waits by ppoll()
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static int count = 1;
    static auto *application = new QApplication(count, *argv);
    Q_UNUSED(argc)
    Q_UNUSED(application)
    makeFolders();
    fuzzclock::start();
    return 0;
}
