// How long a keyboard takes to be read whole, as a ratio to the shortest time that the pacing allows.

#include "DialogDeviceConnect.h"
#include "Figure.h"
#include "VirtualBus.h"

#include <QApplication>
#include <QEventLoop>

using namespace std::chrono_literals;
using bench::Seconds;

namespace {

constexpr int Frames = 99;
constexpr double Most = 1.03;
constexpr auto WiredPace = 30ms;
constexpr auto WirelessPace = 110ms;
constexpr auto AfterTheLast = 50ms; ///< from the end of the sequence to its signal

void waitForReadDone(DialogDeviceConnect &connection)
{
    QEventLoop loop;
    QObject::connect(&connection, &DialogDeviceConnect::onReadDone, &loop, &QEventLoop::quit);
    loop.exec();
}

void readKeyboard(benchmark::State &state, const char *model, bool wireless, std::chrono::milliseconds pace)
{
    auto &bus = virtualhid::VirtualBus::instance();
    bus.reset();
    const auto keyboard = bus.plug(model);
    DialogDeviceConnect connection;
    const std::string path = keyboard->path(wireless ? sim::Channel::Bluetooth : sim::Channel::Command);
    QObject::connect(&connection, &DialogDeviceConnect::onUpdataLayer, &connection,
                     [&connection] { connection.DoReadAll(); });
    connection.DoConnectDevice(keyboard->model().vendorId, keyboard->model().productId, wireless, {},
                               QString::fromStdString(path));
    waitForReadDone(connection);

    Seconds total{};
    for ([[maybe_unused]] const auto &iteration : state) {
        keyboard->clearLog();
        connection.DoReadAll();
        waitForReadDone(connection);
        const Seconds taken = sim::Clock::now() - keyboard->frames().front().when - AfterTheLast;
        state.SetIterationTime(taken.count());
        total += taken;
    }
    bench::tell(state, total / double(state.iterations()), Frames * pace, Most);
    bus.reset();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::RegisterBenchmark("read/wired", readKeyboard, "wired-500", false, WiredPace)
        ->UseManualTime()
        ->Iterations(3)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("read/wireless", readKeyboard, "bluetooth", true, WirelessPace)
        ->UseManualTime()
        ->Iterations(2)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
