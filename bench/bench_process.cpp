// What the whole program costs: time from process start to first paint, memory and processor time at idle,
// each as a ratio to a bare Qt program. Every figure comes from a child process of its own, started by this
// one.
//
//   bench_process [seconds of idling, 10 by default]

#include "AppStart.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <ctime>
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <sys/resource.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int StartRuns = 7;
constexpr auto Settling = 4s;
constexpr double StartBudget = 3;
constexpr double IdleBudget = 1.25;
constexpr double MemoryBudget = 3;

/// Periods of the timers that the hub keeps running, and how long its enumeration thread sleeps between two
/// looks.
constexpr std::array HubTimers{20ms, 30ms, 100ms, 100ms, 200ms, 200ms, 5000ms};
constexpr auto ThreadSleep = 2ms;

qint64 now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

qint64 residentPages()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
}

/// Tells when the first window is painted, and ends the child there.
class FirstPaint : public QObject
{
protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            qobject_cast<QMainWindow *>(watched)) {
            watched->event(event);
            QTextStream(stdout) << now() << Qt::endl;
            std::_Exit(0);
        }
        return false;
    }
};

/// Tells what a while of idling took, and ends the child there.
void reportIdling(std::chrono::seconds idling)
{
    QTimer::singleShot(Settling, qApp, [idling] {
        const double before = processorSeconds();
        QTimer::singleShot(idling, qApp, [before] {
            QTextStream(stdout) << processorSeconds() - before << ' ' << residentPages() << Qt::endl;
            std::_Exit(0);
        });
    });
}

void measure(const QString &what, std::chrono::seconds idling)
{
    if (what == QLatin1String("start"))
        qApp->installEventFilter(new FirstPaint);
    else
        reportIdling(idling);
}

int runBare(int argc, char **argv, const QString &what, std::chrono::seconds idling)
{
    QApplication application(argc, argv);
    measure(what, idling);
    QMainWindow window;
    window.setFixedSize(1280, 900);
    std::vector<std::unique_ptr<QTimer>> timers;
    std::atomic_bool stop = false;
    std::unique_ptr<QThread> thread;
    if (what == QLatin1String("timers")) {
        for (const auto period : HubTimers) {
            timers.push_back(std::make_unique<QTimer>());
            timers.back()->start(period);
        }
        thread.reset(QThread::create([&stop] {
            while (!stop)
                QThread::usleep(std::chrono::microseconds(ThreadSleep).count());
        }));
        thread->start();
    }
    window.show();
    return QApplication::exec();
}

int runHub(int argc, char **argv, const QString &what, std::chrono::seconds idling)
{
    AppStart start(argc, argv);
    measure(what, idling);
    return start.run();
}

QStringList child(const QString &program, const QString &what, const QString &idling)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {program, what, idling});
    process.waitForFinished(-1);
    const QString answer = QString::fromLatin1(process.readAllStandardOutput()).simplified();
    if (answer.isEmpty())
        qFatal("The %s program ended without a word", qPrintable(program));
    return answer.split(QLatin1Char(' '));
}

double startMilliseconds(const QString &program)
{
    std::array<double, StartRuns> runs{};
    for (double &run : runs) {
        const qint64 before = now();
        run = double(child(program, QStringLiteral("start"), {}).value(0).toLongLong() - before) / 1e6;
    }
    std::sort(runs.begin(), runs.end());
    return runs[StartRuns / 2];
}

void printRow(const char *name, double value, double floor, double budget, const char *unit)
{
    const double ratio = value / floor;
    QTextStream(stdout) << QString::asprintf(
        "%-28s %10.2f %-3s  floor %8.2f  ratio %5.2f  budget %5.2f  %s\n", name, value, unit, floor, ratio,
        budget, ratio <= budget ? "kept" : "OVER");
}

int report(const QString &idling)
{
    const QString hub = QStringLiteral("hub");
    const QString bare = QStringLiteral("bare");
    const QString timers = QStringLiteral("timers");
    printRow("process/start to paint", startMilliseconds(hub), startMilliseconds(bare), StartBudget, "ms");
    const QStringList hubIdle = child(hub, QStringLiteral("idle"), idling);
    const QStringList bareIdle = child(bare, timers, idling);
    const QStringList bareMemory = child(bare, QStringLiteral("idle"), QStringLiteral("1"));
    const double seconds = idling.toDouble();
    constexpr double PageMiB = 4096.0 / 1024 / 1024;
    printRow("process/idle", hubIdle.value(0).toDouble() / seconds * 100,
             bareIdle.value(0).toDouble() / seconds * 100, IdleBudget, "%");
    printRow("process/resident memory", hubIdle.value(1).toDouble() * PageMiB,
             bareMemory.value(1).toDouble() * PageMiB, MemoryBudget, "MiB");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QString program = QString::fromLocal8Bit(argc > 2 ? argv[1] : "");
    const QString what = QString::fromLocal8Bit(argc > 2 ? argv[2] : "");
    const std::chrono::seconds idling(argc > 3 ? std::atoi(argv[3]) : 0);
    if (program == QLatin1String("hub"))
        return runHub(argc, argv, what, idling);
    if (program == QLatin1String("bare"))
        return runBare(argc, argv, what, idling);
    const QCoreApplication application(argc, argv);
    // A hub that runs on this desktop would count as the first instance.
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    return report(QString::fromLatin1(argc > 1 ? argv[1] : "10"));
}
