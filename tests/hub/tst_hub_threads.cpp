#include "Scanner.h"
#include "USBNotifier.h"

#include <atomic>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <thread>

using namespace std::chrono_literals;
using virtualhid::DevicePtr;

namespace {

constexpr int WantedPasses = 400;
constexpr int LimitMs = 50000;

/// The quick ones, so that hundreds of passes take seconds; those that a pass waits for join now and then.
constexpr std::array QuickModels{"jm", "jm", "by", "jm", "jm"};
constexpr std::array SlowModels{"wired-500", "ws", "bluetooth"};
constexpr int SlowEvery = 250; // steps

/// A user with a restless hand: pulls devices out and puts them back from a thread of its own, and the bus
/// asks for a pass each time.
class RestlessHand
{
public:
    explicit RestlessHand(Scanner &scanner)
        : bus(scanner.bus)
    {
        for (const char *model : QuickModels)
            quick.push_back(bus.plug(model));
        for (const char *model : SlowModels) {
            slow.push_back(bus.plug(model));
            bus.unplug(slow.back());
        }
        bus.setHotPlugObserver([thread = scanner.enumeration.get()] { thread->requestScan(); });
        worker = std::thread([this] { run(); });
    }

    void stop()
    {
        stopped = true;
        worker.join();
        bus.setHotPlugObserver({});
    }

private:
    void run()
    {
        QRandomGenerator random(1);
        for (int step = 0; !stopped; ++step) {
            toggle(quick[random.bounded(quint32(quick.size()))]);
            if (step % SlowEvery < 2) // in with one step, out with the next
                toggle(slow[std::size_t(step / SlowEvery) % slow.size()]);
            std::this_thread::sleep_for(std::chrono::milliseconds(random.bounded(4)));
        }
        for (const DevicePtr &device : slow)
            bus.unplug(device);
        for (const DevicePtr &device : quick)
            bus.replug(device);
    }

    void toggle(const DevicePtr &device)
    {
        if (device->isPlugged())
            bus.unplug(device);
        else
            bus.replug(device);
    }

    virtualhid::VirtualBus &bus;
    std::vector<DevicePtr> quick;
    std::vector<DevicePtr> slow;
    std::thread worker;
    std::atomic_bool stopped = false;
};

} // namespace

/// The threads of the search and of the system's news about plugs; the thread sanitizer watches.
class TestHubThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }
    void newsFromAnyThread();
    void newsWithoutAWindow();
    void everythingAtOnce();

private:
    void useTheWindow(Scanner &scanner);

    QRandomGenerator random{2};
    std::size_t lettersRead = 0;
};

void TestHubThreads::newsFromAnyThread()
{
    QObject window;
    USBNotifier *notifier = USBNotifier::instance(&window);
    QSignalSpy news(notifier, &USBNotifier::devicePluggined);
    connect(notifier, &USBNotifier::devicePluggined, this,
            [this] { QCOMPARE(QThread::currentThread(), thread()); });
    constexpr int Burst = 20;
    std::thread([] {
        for (int i = 0; i < Burst; ++i)
            USBNotifier::report();
    }).join();
    QCOMPARE(news.count(), 0); // never inside the call
    QTRY_COMPARE(news.count(), Burst);
}

void TestHubThreads::newsWithoutAWindow()
{
    auto first = std::make_unique<QObject>();
    USBNotifier::instance(first.get());
    USBNotifier::report();
    first.reset(); // the news is still under way
    QTest::qWait(10);

    QObject second;
    QSignalSpy news(USBNotifier::instance(&second), &USBNotifier::devicePluggined);
    USBNotifier::report();
    QTRY_COMPARE(news.count(), 1);
}

/// One thing that the user or the window does between two passes.
void TestHubThreads::useTheWindow(Scanner &scanner)
{
    switch (random.bounded(8)) {
    case 0: // the scan button
        scanner.list.clear();
        scanner.enumeration->requestScan();
        break;
    case 1: // a click on a card
        if (scanner.list.onlineCount() > 0) {
            const auto &devices = scanner.list.devices();
            const DeviceEnumInfo *device = devices.at(random.bounded(int(devices.size())));
            lettersRead +=
                std::size_t((device->displayName + device->vendorPath + device->devicePath).size());
            scanner.list.setCurrentDevice(device);
        }
        break;
    case 2: // a keyboard is read
        scanner.enumeration->setScanSuspended(true);
        break;
    case 3: // minimised behind a sibling
        scanner.enumeration->setWindowShown(false);
        scanner.enumeration->setHosting(true);
        break;
    default:
        scanner.enumeration->setScanSuspended(false);
        scanner.enumeration->setWindowShown(true);
        scanner.enumeration->requestScan();
        break;
    }
}

void TestHubThreads::everythingAtOnce()
{
    Scanner scanner;
    RestlessHand hand(scanner);
    QTimer user;
    connect(&user, &QTimer::timeout, this, [this, &scanner] { useTheWindow(scanner); });
    user.start(1);
    const bool enough = QTest::qWaitFor([&scanner] { return scanner.passes >= WantedPasses; }, LimitMs);
    user.stop();
    hand.stop();
    QVERIFY(enough);
    QVERIFY(lettersRead > 0);

    scanner.enumeration->setScanSuspended(false);
    scanner.enumeration->setWindowShown(true);
    QVERIFY(scanner.scan());
    QVERIFY(scanner.scan()); // the first may have been under way before the last plug
    QCOMPARE(scanner.list.onlineCount(), int(QuickModels.size()));
    QCOMPARE(scanner.bus.counters().misuses, 0u);
    QCOMPARE(scanner.bus.counters().listsAlive, 0u);
    QCOMPARE(scanner.bus.openHandles(), 0);
}

QTEST_GUILESS_MAIN(TestHubThreads)
#include "tst_hub_threads.moc"
