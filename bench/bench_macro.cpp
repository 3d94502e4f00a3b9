// What the macro page costs with a macro of 5,000 events, each step up to the finished picture and as a ratio
// to its budget.

#include "Figure.h"
#include "FrameMacro.h"
#include "MacroGrid.h"
#include "MacroItem.h"
#include "MacroSquare.h"
#include "ModuleMacroManager.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace std::chrono_literals;
using bench::Seconds;

namespace {

constexpr int Pairs = 2500;
constexpr Seconds Rebuild = 100ms;
constexpr Seconds OneFrame = 16.7ms;

/// The page on the screen, with a long macro and an empty one.
struct Page
{
    Page()
    {
        for (int i = 0; i < Pairs; ++i) {
            store.AddEvent(store.FindMacro(0), MacroType::Key, 4, i % 2 == 0, QStringLiteral("A"));
            store.AddEvent(store.FindMacro(0), MacroType::Delay, quint16(20 + i % 200), false, {});
        }
        store.SaveEvents(store.FindMacro(0));
        page.resize(1124, 740);
        page.show();
        open(0);
    }

    void open(int row)
    {
        auto *item = page.findChildren<MacroItem *>().at(row);
        Q_EMIT item->onOperation(MacroItem::Select, item);
        QApplication::processEvents();
    }

    void type(QEvent::Type kind)
    {
        QKeyEvent event(kind, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(&page, &event);
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    ModuleMacroManager store{folder.path()};
    FrameMacro page;
    MacroGrid *grid = page.findChild<MacroGrid *>();
    QScrollBar *bar = page.findChild<QScrollArea *>(QStringLiteral("scrollAreaSquares"))->verticalScrollBar();
    QPushButton *record = page.findChild<QPushButton *>(QStringLiteral("pushButtonRecord"));
};

template <typename Prepare, typename Work>
void measure(benchmark::State &state, Seconds budget, Prepare prepare, Work work)
{
    Seconds whole{};
    for ([[maybe_unused]] const auto &iteration : state) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        work();
        const Seconds each = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(each.count());
        whole += each;
    }
    bench::tell(state, whole / double(state.iterations()), budget);
}

constexpr auto Nothing = [] {};

void openMacro(benchmark::State &state)
{
    Page page;
    measure(
        state, Rebuild, [&page] { page.open(1); }, [&page] { page.open(0); });
}

/// Takes out the first pair, so that all others move up; the content is written each time.
void rebuild(benchmark::State &state)
{
    Page page;
    measure(state, Rebuild, Nothing, [&page] {
        MacroSquare *first = page.grid->squares().first();
        Q_EMIT first->onAction(first, MacroSquare::DeleteThis);
        QApplication::processEvents();
    });
}

void recordStep(benchmark::State &state)
{
    Page page;
    page.record->click();
    bool down = false;
    measure(state, OneFrame, Nothing, [&page, &down] {
        down = !down;
        page.type(down ? QEvent::KeyPress : QEvent::KeyRelease);
    });
    page.record->click();
}

void scroll(benchmark::State &state)
{
    Page page;
    measure(state, OneFrame, Nothing, [&page] {
        const int next = page.bar->value() + page.bar->pageStep();
        page.bar->setValue(next > page.bar->maximum() ? 0 : next);
        QApplication::processEvents();
    });
}

void load(benchmark::State &state)
{
    Page page;
    measure(state, Rebuild, Nothing, [&page] { page.store.LoadEvents(page.store.FindMacro(0)); });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->UseManualTime();
    };
    add("macro/load 5,000 events", load);
    add("macro/open 5,000 events", openMacro);
    add("macro/rebuild and save 5,000 events", rebuild);
    add("macro/record a step behind 5,000 events", recordStep);
    add("macro/scroll a page of 5,000 events", scroll);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
