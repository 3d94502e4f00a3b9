// What the colour square costs: a repaint with the pointer moved, as in a drag, and one in a new hue, as when
// the hue slider is dragged, each up to the finished picture and as a ratio to its budget.

#include "ColorSquare.h"
#include "Figure.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>

using namespace std::chrono_literals;
using bench::Seconds;

namespace {

constexpr Seconds Repaint = 1ms;
constexpr QSize SquareSize(300, 200);

/// Paints the square over and over, changed by \a change in between.
template <typename Change>
void repaint(benchmark::State &state, qreal scale, Change change)
{
    ColorSquare square;
    square.resize(SquareSize);
    QImage screen(SquareSize * scale, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(scale);
    int turn = 0;
    const auto start = std::chrono::steady_clock::now();
    for ([[maybe_unused]] const auto &iteration : state) {
        change(square, ++turn);
        square.render(&screen);
    }
    const Seconds each = (std::chrono::steady_clock::now() - start) / double(state.iterations());
    bench::tell(state, each, Repaint);
}

void moved(benchmark::State &state, qreal scale)
{
    repaint(state, scale, [](ColorSquare &square, int turn) {
        const QPointF place(turn % SquareSize.width(), turn % SquareSize.height());
        QMouseEvent press(QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&square, &press);
    });
}

void newHue(benchmark::State &state, qreal scale)
{
    repaint(state, scale, [](ColorSquare &square, int turn) { square.setHue(turn % 360 / 360.0); });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const double scale : {1.0, 2.0}) {
        const std::string suffix = scale > 1 ? ", screen of double sharpness" : "";
        benchmark::RegisterBenchmark(("colour square/pointer moved" + suffix).c_str(), moved, scale)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("colour square/new hue" + suffix).c_str(), newHue, scale)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
