// What the on-screen keyboard costs with the keyboards of all pages alive: a refresh of what the keys do, and
// a move of the rubber band, each up to the finished picture and as a ratio to its budget.

#include "Figure.h"
#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"

#include <array>
#include <QApplication>
#include <QMouseEvent>

using namespace std::chrono_literals;
using bench::Seconds;

namespace {

constexpr int Pages = 6;
constexpr Seconds NothingChanged = 2ms;
constexpr Seconds AllChanged = 60ms;
constexpr Seconds OneFrame = 16.7ms;

/// The keyboards of all pages, the first one on the screen.
struct Board
{
    Board()
    {
        keyboards[0].show();
        QApplication::processEvents();
    }

    /// What the key page does: every key gets the text of its function.
    void refresh(const KeyEntry &entry)
    {
        for (int position = 0; position < keys::PositionCount; ++position) {
            const quint8 code = keys::CodeOfPosition(quint8(position));
            const QString title = keys::KeyNameByCode(code);
            const QString body = ModuleGenKeymapping::KeyEntryText(entry, true);
            keyboards[0].setKeyTooltip(code, title, body, true);
        }
        QApplication::processEvents();
    }

    void drag(QEvent::Type type, const QPoint &position)
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, position, keyboards[0].mapToGlobal(position), button, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&keyboards[0], &event);
        QApplication::processEvents();
    }

    std::array<ModuleKeyboard, Pages> keyboards;
};

constexpr KeyEntry Combination{{KeyKind::Keys, 0xE0, 0x04, 0x00}};
constexpr KeyEntry Calculator{{KeyKind::Consumer, 0x00, 0x92, 0x01}};

template <typename Work>
void measure(benchmark::State &state, Seconds budget, Work work)
{
    const auto start = std::chrono::steady_clock::now();
    for ([[maybe_unused]] const auto &iteration : state)
        work();
    const Seconds each = (std::chrono::steady_clock::now() - start) / double(state.iterations());
    bench::tell(state, each, budget);
}

void refreshUnchanged(benchmark::State &state)
{
    Board board;
    board.refresh(Combination);
    measure(state, NothingChanged, [&board] { board.refresh(Combination); });
}

void refreshChanged(benchmark::State &state)
{
    Board board;
    bool turn = false;
    measure(state, AllChanged, [&board, &turn] {
        board.refresh(turn ? Combination : Calculator);
        turn = !turn;
    });
}

void refreshToggled(benchmark::State &state)
{
    Board board;
    bool turn = false;
    measure(state, AllChanged, [&board, &turn] {
        board.refresh(turn ? KeyEntry{} : Combination);
        turn = !turn;
    });
}

/// The worst moves: the whole board is selected by one and left by the next.
void moveBand(benchmark::State &state)
{
    Board board;
    board.keyboards[0].enterValueMode(3);
    board.drag(QEvent::MouseButtonPress, {2, 2});
    bool turn = false;
    measure(state, OneFrame, [&board, &turn] {
        board.drag(QEvent::MouseMove, turn ? QPoint(10, 5) : QPoint(950, 390));
        turn = !turn;
    });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::RegisterBenchmark("keyboard/refresh, nothing changed", refreshUnchanged)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("keyboard/refresh, all functions changed", refreshChanged)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("keyboard/refresh, all keys set and cleared", refreshToggled)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("keyboard/rubber band", moveBand)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
