// What the whole program costs: time from process start to first paint, memory and processor time at idle,
// each as a ratio to a bare Qt program. Every figure comes from a child process of its own, started by this
// one.

#include "AppStart.h"
#include "Figure.h"

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
using bench::Seconds;

namespace {

constexpr int StartRuns = 7;
constexpr auto Settling = 4s;
constexpr auto Idling = 10s;
constexpr double StartBudget = 3;
constexpr double IdleBudget = 1.25;
constexpr double MemoryBudget = 3;

// What a child is: the program, and what it measures before it ends.
constexpr QLatin1String Hub("hub");
constexpr QLatin1String Bare("bare");
constexpr QLatin1String Start("start");
constexpr QLatin1String Idle("idle");
constexpr QLatin1String Timers("timers"); ///< idle, with the hub's timers
constexpr QLatin1String Memory("memory");

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
void reportIdling()
{
    QTimer::singleShot(Settling, qApp, [] {
        const double before = processorSeconds();
        QTimer::singleShot(Idling, qApp, [before] {
            QTextStream(stdout) << processorSeconds() - before << ' ' << residentPages() << Qt::endl;
            std::_Exit(0);
        });
    });
}

void measure(const QString &what)
{
    if (what == Start)
        qApp->installEventFilter(new FirstPaint);
    else
        reportIdling();
}

int runBare(int argc, char **argv, const QString &what)
{
    QApplication application(argc, argv);
    measure(what);
    QMainWindow window;
    window.setFixedSize(1280, 900);
    std::vector<std::unique_ptr<QTimer>> timers;
    std::atomic_bool stop = false;
    std::unique_ptr<QThread> thread;
    if (what == Timers) {
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

int runHub(int argc, char **argv, const QString &what)
{
    AppStart start(argc, argv);
    measure(what);
    return start.run();
}

QStringList child(QLatin1String program, QLatin1String what)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {program, what});
    process.waitForFinished(-1);
    const QString answer = QString::fromLatin1(process.readAllStandardOutput()).simplified();
    if (answer.isEmpty())
        qFatal("The %s program ended without a word", program.data());
    return answer.split(QLatin1Char(' '));
}

double startMilliseconds(QLatin1String program)
{
    std::array<double, StartRuns> runs{};
    for (double &run : runs) {
        const qint64 before = now();
        run = double(child(program, Start).value(0).toLongLong() - before) / 1e6;
    }
    std::sort(runs.begin(), runs.end());
    return runs[StartRuns / 2];
}

void startToPaint(benchmark::State &state)
{
    for ([[maybe_unused]] const auto &iteration : state) {
        const double hub = startMilliseconds(Hub);
        bench::tell(state, hub, startMilliseconds(Bare), StartBudget, "ms");
    }
}

/// Processor time and memory of the hub and of the floor of each.
void idle(benchmark::State &state)
{
    for ([[maybe_unused]] const auto &iteration : state) {
        const double hub = child(Hub, Idle).value(0).toDouble();
        const double floor = child(Bare, Timers).value(0).toDouble();
        const double percent = 100 / Seconds(Idling).count();
        bench::tell(state, hub * percent, floor * percent, IdleBudget, "%");
    }
}

void residentMemory(benchmark::State &state)
{
    constexpr double PageMiB = 4096.0 / 1024 / 1024;
    for ([[maybe_unused]] const auto &iteration : state) {
        const double hub = child(Hub, Memory).value(1).toDouble();
        bench::tell(state, hub * PageMiB, child(Bare, Memory).value(1).toDouble() * PageMiB, MemoryBudget,
                    "MiB");
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QString program = QString::fromLocal8Bit(argc == 3 ? argv[1] : "");
    const QString what = QString::fromLocal8Bit(argc == 3 ? argv[2] : "");
    if (program == Hub)
        return runHub(argc, argv, what);
    if (program == Bare)
        return runBare(argc, argv, what);
    const QCoreApplication application(argc, argv);
    // A hub that runs on this desktop would count as the first instance.
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    benchmark::RegisterBenchmark("process/start to first paint", startToPaint)->Iterations(1);
    benchmark::RegisterBenchmark("process/processor time at idle", idle)->Iterations(1);
    benchmark::RegisterBenchmark("process/resident memory at idle", residentMemory)->Iterations(1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
