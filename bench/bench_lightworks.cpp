// What the light works cost: saving the hundredth, with its preview, and starting a page that has a hundred;
// each as a ratio to its budget. Every key has a colour of its own, which makes the previews as large as they
// get.

#include "DialogDeviceConnect.h"
#include "Figure.h"
#include "FrameLight.h"
#include "KeyboardButton.h"
#include "ModuleKeyboard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>

using namespace std::chrono_literals;
using bench::Seconds;

namespace {

constexpr int Works = 100;
constexpr Seconds SaveBudget = 50ms;
constexpr Seconds StartBudget = 100ms;

QString worksFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/work");
}

QString worksFile()
{
    return worksFolder() + QStringLiteral("/ledwork.json");
}

void press(const FrameLight &page, const char *button)
{
    page.findChild<QAbstractButton *>(QLatin1String(button))->click();
}

/// Colours every key at random.
void paint(const FrameLight &page)
{
    page.findChild<QAbstractButton *>(QStringLiteral("checkBoxRam"))->setChecked(true);
    const auto keyButtons = page.findChild<ModuleKeyboard *>()->findChildren<KeyboardButton *>();
    for (KeyboardButton *key : keyButtons)
        key->click();
}

/// The file of a user with so many works.
QByteArray fileOfWorks(int count)
{
    QDir(worksFolder()).removeRecursively();
    FrameLight page;
    for (int i = 0; i < count; ++i) {
        paint(page);
        press(page, "pushButtonSave");
    }
    QFile file(worksFile());
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

void restore(const QByteArray &content)
{
    QFile file(worksFile());
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

/// Calls \a work for each iteration and takes the time that it says it took.
template <typename Work>
void measure(benchmark::State &state, Seconds budget, Work work)
{
    Seconds whole{};
    for ([[maybe_unused]] const auto &iteration : state) {
        const Seconds each = work();
        state.SetIterationTime(each.count());
        whole += each;
    }
    bench::tell(state, whole / double(state.iterations()), budget);
}

void saveHundredth(benchmark::State &state)
{
    const QByteArray ninetyNine = fileOfWorks(Works - 1);
    measure(state, SaveBudget, [&ninetyNine] {
        restore(ninetyNine);
        const FrameLight page;
        paint(page);
        const auto start = std::chrono::steady_clock::now();
        press(page, "pushButtonSave");
        return std::chrono::steady_clock::now() - start;
    });
}

void startWithHundred(benchmark::State &state)
{
    fileOfWorks(Works);
    measure(state, StartBudget, [] {
        const auto start = std::chrono::steady_clock::now();
        const FrameLight page;
        return std::chrono::steady_clock::now() - start;
    });
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const DialogDeviceConnect connection;
    benchmark::RegisterBenchmark("lightworks/save the hundredth", saveHundredth)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
    benchmark::RegisterBenchmark("lightworks/start with a hundred", startWithHundred)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir(worksFolder()).removeRecursively();
    return 0;
}
