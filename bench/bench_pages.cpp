// What it costs to go from one page of a keyboard to the next, up to the finished picture, with the
// keyboard's settings read; as a ratio to one frame.

#include "DialogDeviceConnect.h"
#include "Figure.h"
#include "FrameDeviceHolder.h"
#include "SuperLabel.h"
#include "VirtualBus.h"

#include <QApplication>
#include <QEventLoop>

using namespace std::chrono_literals;
using bench::Seconds;
using virtualhid::VirtualBus;

namespace {

constexpr Seconds OneFrame = 16.7ms;
constexpr int Pages = 5; ///< those with a place in the navigation

void readKeyboard(DialogDeviceConnect *connection)
{
    VirtualBus::instance().reset();
    const auto keyboard = VirtualBus::instance().plug("wired-500");
    QEventLoop reading;
    QObject::connect(connection, &DialogDeviceConnect::onReadDone, &reading, &QEventLoop::quit);
    connection->DoConnectDevice(keyboard->model().vendorId, keyboard->model().productId, false,
                                QStringLiteral("null"), {});
    reading.exec();
}

void switchPage(benchmark::State &state)
{
    FrameDeviceHolder shell;
    shell.resize(1280, 800);
    shell.show();
    DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    QObject::connect(connection, &DialogDeviceConnect::onUpdataLayer, &shell, &FrameDeviceHolder::setLayer);
    readKeyboard(connection);
    const auto show = [&shell](int page) {
        shell.showPage(shell.findChild<SuperLabel *>(QStringLiteral("label%1").arg(page + 1)), page);
        QApplication::processEvents();
    };
    const int target = int(state.range(0));
    const int other = (target + 1) % Pages;
    Seconds slowest{};
    for ([[maybe_unused]] const auto &iteration : state) {
        state.PauseTiming();
        show(other);
        state.ResumeTiming();
        const auto start = std::chrono::steady_clock::now();
        show(target);
        slowest = std::max(slowest, Seconds(std::chrono::steady_clock::now() - start));
    }
    bench::tell(state, slowest, OneFrame);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::RegisterBenchmark("pages/switch to page", switchPage)
        ->DenseRange(0, Pages - 1)
        ->Iterations(50)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
