// A day in the life of the hub, in compressed time.
//
//   soak [hours [file.csv]]
//
// A user plugs and pulls keyboards, goes through the pages, turns what can be turned, listens to music and
// searches again and again. Every quarter of an hour, with nothing plugged in, it is measured what the
// process has; at the end there must be no more of it than after the first hours.

#include "AppStart.h"
#include "CompressedTime.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "ModuleLangMenu.h"
#include "USBNotifier.h"
#include "VirtualBus.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <malloc.h>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <random>
#include <unistd.h>

using virtualhid::VirtualBus;
using namespace std::chrono_literals;

namespace {

constexpr auto Quarter = 15min;
constexpr auto Glance = 400ms;
constexpr auto CardPatience = 10s;
constexpr auto ReadPatience = 30s;
constexpr int ConnectsPerQuarter = 11; ///< over a thousand in a day
constexpr int ScansPerQuarter = 105;   ///< over ten thousand
constexpr int CardPage = 0;
constexpr int MusicEffect = 22;
constexpr int Languages = 14;

std::mt19937 chance(1);

QWidget *hub()
{
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget *widget) {
        return widget->objectName() == QLatin1String("MainWindow");
    });
    return found == windows.end() ? nullptr : *found;
}

template <typename Widget>
Widget *inHub(const QString &name)
{
    return hub()->findChild<Widget *>(name);
}

/// Does something as an event of its own, as what a user does is one, and lets time pass. What is to be
/// deleted behind an event wouldn't be before the end of the whole run otherwise.
template <typename Action>
void act(Action action, std::chrono::milliseconds time = Glance)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, action);
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

void pass(std::chrono::milliseconds time)
{
    act([] {}, time);
}

template <typename Condition>
bool waitFor(Condition condition, std::chrono::milliseconds patience)
{
    for (auto waited = 0ms; !condition(); waited += 50ms) {
        if (waited > patience)
            return false;
        pass(50ms);
    }
    return true;
}

void press(QWidget *widget)
{
    act([widget] {
        const QPointF at = widget->rect().center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, buttons, {});
            QApplication::sendEvent(widget, &event);
        }
    });
}

void click(QPushButton *button, std::chrono::milliseconds time = Glance)
{
    act([button] { button->click(); }, time);
}

int cards()
{
    const auto pool = hub()->findChildren<FrameDeviceShow *>();
    return int(std::count_if(pool.begin(), pool.end(), [](const auto *card) { return !card->isHidden(); }));
}

/// What a process can have too much of.
struct Stock
{
    long residentKiB = 0;
    long heapKiB = 0; ///< in use
    long descriptors = 0;
    long threads = 0;
    long timers = 0; ///< active ones of Qt, anywhere in the process
    long hidHandles = 0;
    long widgets = 0;
};

long entriesIn(const char *folder)
{
    return long(
        QDir(QLatin1String(folder)).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

/// Qt numbers timers with the lowest numbers that are free, in any order; with enough new ones there is no
/// free one between them.
long activeTimers()
{
    constexpr int Probes = 1000;
    constexpr int NumberMask = 0x00FFFFFF; // above it, how often a number was used
    QObject owner;
    int highest = 0;
    for (int i = 0; i < Probes; ++i)
        highest = std::max(highest, owner.startTimer(24h) & NumberMask);
    return highest - Probes;
}

Stock takeStock()
{
    malloc_trim(0);
    QFile memory(QStringLiteral("/proc/self/statm"));
    memory.open(QIODevice::ReadOnly);
    const long pages = memory.readAll().split(' ').value(1).toLong();
    memory.close();
    const struct mallinfo2 heap = mallinfo2();
    return {pages * sysconf(_SC_PAGESIZE) / 1024,
            long((heap.uordblks + heap.hblkhd) / 1024),
            entriesIn("/proc/self/fd"),
            entriesIn("/proc/self/task"),
            activeTimers(),
            VirtualBus::instance().openHandles(),
            long(QApplication::allWidgets().size())};
}

struct Limit
{
    const char *name;
    long Stock::*member;
    long most; ///< more than after the first hours
};

constexpr Limit Limits[] = {
    {"resident KiB", &Stock::residentKiB, 1023},
    {"heap KiB", &Stock::heapKiB, 256},
    {"descriptors", &Stock::descriptors, 0},
    {"threads", &Stock::threads, 0},
    {"timers", &Stock::timers, 0},
    {"HID handles", &Stock::hidHandles, 0},
    {"widgets", &Stock::widgets, 0},
};

class User : public QObject
{
public:
    User(int quarterCount, const QString &csvPath)
        : quarters(quarterCount)
        , csv(csvPath)
    {
        for (const char *model : {"wired-500", "bluetooth", "wired-300"}) {
            keyboards.push_back(VirtualBus::instance().plug(model));
            keyboards.back()->setLogLimit(0);
            VirtualBus::instance().unplug(keyboards.back());
        }
        VirtualBus::instance().setHotPlugObserver([] { USBNotifier::report(); });
    }

    void live();

private:
    void spendQuarter(int number);
    void useKeyboard(const virtualhid::DevicePtr &keyboard, int round);
    void visitPages();
    void turnSomething();
    void playMusic();
    void openSettings();
    void note(int number);
    bool judge() const;
    void complain(const char *what)
    {
        std::fprintf(stderr, "soak: %s\n", what);
        ++complaints;
    }

    const int quarters;
    QFile csv;
    std::vector<virtualhid::DevicePtr> keyboards;
    std::vector<Stock> stocks;
    int connects = 0;
    int complaints = 0;
};

void User::live()
{
    if (!csv.open(QIODevice::WriteOnly | QIODevice::Text)) {
        complain("the file can't be written");
        QCoreApplication::exit(2);
        return;
    }
    csv.write(
        "minutes,connects,scans,resident_kib,heap_kib,descriptors,threads,timers,hid_handles,widgets\n");
    pass(5s);
    for (int language = 0; language < Languages; ++language) // each brings its fonts along
        act([language] { inHub<ModuleLangMenu>({})->selectLanguage(language); }, 2s);
    for (int number = 1; number <= quarters; ++number) {
        spendQuarter(number);
        note(number);
    }
    QCoreApplication::exit(judge() ? 0 : 1);
}

void User::spendQuarter(int number)
{
    QElapsedTimer time;
    time.start();
    for (int round = 0; round < ConnectsPerQuarter; ++round)
        useKeyboard(keyboards[size_t(number + round) % keyboards.size()], round);
    for (int scan = 0; scan < ScansPerQuarter; ++scan)
        click(inHub<QPushButton>(QStringLiteral("pushButtonScan")), 3s);
    openSettings();
    act([number] { inHub<ModuleLangMenu>({})->selectLanguage(number % Languages); });
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(Quarter) -
                      std::chrono::milliseconds(time.elapsed());
    if (left > 0ms)
        pass(left);
}

void User::useKeyboard(const virtualhid::DevicePtr &keyboard, int round)
{
    VirtualBus::instance().replug(keyboard);
    if (!waitFor([] { return cards() == 1; }, CardPatience))
        complain("no card came");
    auto *connection = DialogDeviceConnect::instance();
    bool isRead = false;
    const auto done =
        QObject::connect(connection, &DialogDeviceConnect::onReadDone, this, [&isRead] { isRead = true; });
    press(FrameDeviceShow::acquire(0, nullptr));
    if (waitFor([&isRead] { return isRead; }, ReadPatience))
        ++connects;
    else
        complain("a keyboard wasn't read");
    QObject::disconnect(done);
    visitPages();
    if (round == 0)
        playMusic();
    VirtualBus::instance().unplug(keyboard);
    if (!waitFor([] { return cards() == 0; }, CardPatience))
        complain("a card stayed");
    press(inHub<QWidget>(QStringLiteral("label8"))); // back to the cards
}

void User::visitPages()
{
    for (int page = 1; page <= 6; ++page) {
        press(inHub<QWidget>(QStringLiteral("label%1").arg(page)));
        for (int part = 0; part < 5; ++part) {
            const auto buttons =
                hub()->findChildren<QPushButton *>(QStringLiteral("pushButtonSet%1").arg(part));
            const auto shown =
                std::find_if(buttons.begin(), buttons.end(), [](auto *each) { return each->isVisible(); });
            if (shown == buttons.end())
                break;
            click(*shown);
            turnSomething();
        }
        turnSomething();
    }
}

/// One of the controls that show and are neither a way to another page nor to a dialog.
void User::turnSomething()
{
    QList<QWidget *> controls;
    const auto add = [&controls](auto found) {
        std::copy(found.begin(), found.end(), std::back_inserter(controls));
    };
    add(hub()->findChildren<QAbstractSlider *>());
    add(hub()->findChildren<QCheckBox *>());
    add(hub()->findChildren<QTabWidget *>());
    erase_if(controls, [](const QWidget *each) {
        return !each->isVisible() || !each->isEnabled() || qobject_cast<const QScrollBar *>(each);
    });
    if (controls.isEmpty())
        return;
    QWidget *control = controls.at(qsizetype(chance() % size_t(controls.size())));
    act([control] {
        if (auto *slider = qobject_cast<QAbstractSlider *>(control))
            slider->setValue(slider->minimum() +
                             int(chance() % unsigned(slider->maximum() - slider->minimum() + 1)));
        else if (auto *box = qobject_cast<QCheckBox *>(control))
            box->click();
        else if (auto *tabs = qobject_cast<QTabWidget *>(control))
            tabs->setCurrentIndex(int(chance() % unsigned(tabs->count())));
    });
}

void User::playMusic()
{
    act([] { DialogDeviceConnect::instance()->DoSetLedEffect(MusicEffect, 0); }, 20s);
    act([] { DialogDeviceConnect::instance()->DoSetLedEffect(1, 0); }, 1s);
}

void User::openSettings()
{
    QTimer::singleShot(1s, this, [] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            dialog->close();
    });
    click(inHub<QPushButton>(QStringLiteral("pushButtonSet")), 2s);
}

void User::note(int number)
{
    const Stock now = takeStock();
    stocks.push_back(now);
    const QString line = QStringLiteral("%1,%2,%3,%4,%5,%6,%7,%8,%9,%10\n")
                             .arg(number * Quarter / 1min)
                             .arg(connects)
                             .arg(number * ScansPerQuarter)
                             .arg(now.residentKiB)
                             .arg(now.heapKiB)
                             .arg(now.descriptors)
                             .arg(now.threads)
                             .arg(now.timers)
                             .arg(now.hidHandles)
                             .arg(now.widgets);
    csv.write(line.toLatin1());
    csv.flush();
    std::printf("%s", line.toLatin1().constData());
    std::fflush(stdout);
}

/// Compares the last quarters with those behind the first eighth, in which everything is built that is built
/// once: their medians, as one quarter more or less says nothing.
bool User::judge() const
{
    const auto medianOf = [this](size_t first, size_t count, long Stock::*member) {
        std::vector<long> values;
        for (size_t i = first; i < first + count; ++i)
            values.push_back(stocks[i].*member);
        std::ranges::sort(values);
        return values[values.size() / 2];
    };
    const size_t warmUp = stocks.size() / 8;
    const size_t span = std::max<size_t>(1, stocks.size() / 8);
    bool isFlat = complaints == 0;
    for (const Limit &limit : Limits) {
        const long before = medianOf(warmUp, span, limit.member);
        const long after = medianOf(stocks.size() - span, span, limit.member);
        const bool isGood = after - before <= limit.most;
        isFlat = isFlat && isGood;
        std::printf("%-14s %8ld -> %8ld  (%+ld, at most %+ld)  %s\n", limit.name, before, after,
                    after - before, limit.most, isGood ? "flat" : "GROWS");
    }
    std::printf("%g simulated hours, %d connects, %zu scans asked for, %d complaints: %s\n", quarters / 4.0,
                connects, stocks.size() * ScansPerQuarter, complaints, isFlat ? "flat" : "NOT FLAT");
    return isFlat;
}

/// The lists of known devices lie beside the program.
void provideCatalogue()
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/config/");
    QDir().mkpath(folder);
    for (const QString &name : QDir(QStringLiteral(ORBE_DATA "/config")).entryList(QDir::Files))
        QFile::copy(QStringLiteral(ORBE_DATA "/config/") + name, folder + name);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
        qputenv(variable, QFile::encodeName(home.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    compressedtime::begin();
    const QString hours = QString::fromLocal8Bit(argc > 1 ? argv[1] : "0.5");
    const QString csv =
        argc > 2 ? QString::fromLocal8Bit(argv[2]) : home.filePath(QStringLiteral("soak.csv"));
    AppStart start(argc, argv);
    provideCatalogue();
    User user(std::max(1, int(hours.toDouble() * 4)), csv);
    QTimer::singleShot(0, &user, &User::live);
    return start.run();
}
