#include "Scanner.h"

#include <cstdio>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

using namespace std::chrono_literals;
using virtualhid::DevicePtr;
using virtualhid::Fault;

namespace {

constexpr sim::Byte IdentityCommand = 0x8F;
constexpr auto Jm = "Orbe JM Keyboard";
constexpr auto Ws = "Orbe WS Keyboard";
constexpr auto Air = "Orbe Magnetic 68";

/// Command line of the program that ends while a device holds the search.
constexpr auto LeaveArgument = "--leave-while-a-call-takes";

/// Begins a pass in which a call takes that long, and ends the program.
int leaveWhileACallTakes(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug("wired-500");
    device->faultOnCommand(IdentityCommand, Fault::late(std::chrono::milliseconds(std::atoi(argv[2]))));
    if (!scanner.isHeldAfter(250))
        return 1;
    scanner.enumeration->stop();
    std::puts("leaving");
    std::fflush(stdout);
    return 0;
}

} // namespace

/// When passes run, what holds them, and how the list follows what is plugged.
class TestDiscovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void gate_data();
    void gate();
    void requestDuringAPass();
    void muteDeviceHoldsThePass();
    void stopsAtOnce_data();
    void stopsAtOnce();
    void leavesWithoutADevice_data();
    void leavesWithoutADevice();
    void keptHandles();
    void staleReportsAreNoAnswer();
};

void TestDiscovery::gate_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("hosting");
    QTest::addColumn<bool>("suspended");
    QTest::addColumn<bool>("runs");
    QTest::newRow("window shown") << true << false << false << true;
    QTest::newRow("hidden") << false << false << false << false;
    QTest::newRow("hidden behind a sibling") << false << true << false << true;
    QTest::newRow("sibling, keyboard being read") << false << true << true << false;
}

void TestDiscovery::gate()
{
    QFETCH(bool, shown);
    QFETCH(bool, hosting);
    QFETCH(bool, suspended);
    QFETCH(bool, runs);
    Scanner scanner;
    scanner.enumeration->setWindowShown(shown);
    scanner.enumeration->setHosting(hosting);
    scanner.enumeration->setScanSuspended(suspended);
    QCOMPARE(scanner.scan(runs ? 20000 : 100), runs);

    // A request that met a closed gate is lost, not kept.
    scanner.enumeration->setWindowShown(true);
    scanner.enumeration->setScanSuspended(false);
    QVERIFY(!scanner.waitForPass(100));
    QVERIFY(scanner.scan());
}

void TestDiscovery::requestDuringAPass()
{
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug("wired-500");
    QVERIFY(scanner.isHeldAfter(20));
    for (int i = 0; i < 3; ++i)
        scanner.enumeration->requestScan();
    QVERIFY(scanner.waitForPass());
    QVERIFY(scanner.waitForPass());
    QVERIFY(!scanner.waitForPass(300));
    QCOMPARE(device->frameCount(), std::size_t(2));
}

void TestDiscovery::muteDeviceHoldsThePass()
{
    Scanner scanner;
    const DevicePtr jm = scanner.bus.plug("jm");
    QVERIFY(scanner.scan());
    const DevicePtr mute = scanner.bus.plug("wired-500");
    for (const bool putBack : {false, true}) {
        const Fault fault = putBack ? Fault::writeRefused() : Fault::lost();
        mute->addFault({.command = IdentityCommand, .times = {}, .fault = fault});
        mute->clearLog();
        // The window has its turns meanwhile, or this wait would not end in time.
        QElapsedTimer time;
        time.start();
        QVERIFY(scanner.isHeldAfter(1600)); // more than six rounds
        QVERIFY(time.elapsed() < 1900);
        QVERIFY(mute->transfers().size() > 12);
        QCOMPARE(scanner.onlineNames(), QStringList{QLatin1String(Jm)}); // its card stays
        QCOMPARE(scanner.bus.openHandles(), 1);

        mute->clearFaults();
        scanner.bus.unplug(mute);
        if (putBack)
            scanner.bus.replug(mute);
        QVERIFY(scanner.waitForPass(2000));
        QCOMPARE(scanner.list.onlineCount(), putBack ? 2 : 1);
        QCOMPARE(scanner.bus.openHandles(), 0);
        scanner.bus.replug(mute);
    }
}

void TestDiscovery::stopsAtOnce_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<bool>("mute");
    QTest::addColumn<int>("after"); // ms from the request
    QTest::newRow("wired") << QByteArray("wired-500") << false << 20;
    QTest::newRow("never answering") << QByteArray("wired-500") << true << 500;
    QTest::newRow("over the air") << QByteArray("bluetooth") << true << 500;
    QTest::newRow("ws") << QByteArray("ws") << true << 300;
}

void TestDiscovery::stopsAtOnce()
{
    QFETCH(QByteArray, model);
    QFETCH(bool, mute);
    QFETCH(int, after);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug(model.constData());
    if (mute)
        device->addFault({.times = {}, .fault = Fault::lost()});
    scanner.scan(after);
    QElapsedTimer time;
    time.start();
    scanner.enumeration.reset();
    QVERIFY(time.elapsed() < 700); // one wait of a pass, and one read over the air
    QCOMPARE(scanner.bus.openHandles(), 0);
    QCOMPARE(scanner.bus.counters().listsAlive, 0u);
}

void TestDiscovery::leavesWithoutADevice_data()
{
    QTest::addColumn<int>("milliseconds");
    for (const int milliseconds : {1000, 1200, 60000})
        QTest::addRow("call of %d ms", milliseconds) << milliseconds;
}

void TestDiscovery::leavesWithoutADevice()
{
    QFETCH(int, milliseconds);
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(LeaveArgument), QString::number(milliseconds)});
    QVERIFY(program.waitForReadyRead());
    QElapsedTimer time;
    time.start();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(time.elapsed() < 2000);
}

void TestDiscovery::keptHandles()
{
    Scanner scanner;
    const DevicePtr air = scanner.bus.plug("bluetooth");
    const DevicePtr ws = scanner.bus.plug("ws");
    constexpr int Passes = 40;
    for (int i = 0; i < Passes; ++i)
        QVERIFY(scanner.scan());
    QCOMPARE(scanner.bus.counters().opens, 2u);
    QCOMPARE(scanner.bus.openHandles(), 2);
    QCOMPARE(air->frameCount(), std::size_t(Passes));
    QCOMPARE(ws->frameCount(), std::size_t(Passes));

    // Pulled out and put back between two passes: the old handles are dead, and are replaced.
    for (const DevicePtr &device : {air, ws}) {
        scanner.bus.unplug(device);
        scanner.bus.replug(device);
    }
    QVERIFY(scanner.scan());
    QCOMPARE(scanner.list.onlineCount(), 2);
    QCOMPARE(scanner.bus.openHandles(), 2);

    // Gone for good: nothing is hoarded.
    scanner.bus.unplug(air);
    scanner.bus.unplug(ws);
    QVERIFY(scanner.scan());
    QCOMPARE(scanner.bus.openHandles(), 0);
    QCOMPARE(scanner.bus.counters().misuses, 0u);
}

void TestDiscovery::staleReportsAreNoAnswer()
{
    Scanner scanner;
    const DevicePtr air = scanner.bus.plug("bluetooth");
    QVERIFY(scanner.scan());
    // What another program's or the connection's question brought stays in the queue of the handle that is
    // kept.
    for (int i = 0; i < 20; ++i)
        air->injectInput(sim::Channel::Bluetooth, {0x06, 0x55, IdentityCommand, 0xC3, 0x0E});
    QVERIFY(scanner.scan());
    QCOMPARE(scanner.onlineNames(), QStringList{QLatin1String(Air)});
    QCOMPARE(scanner.only()->deviceId, quint64(0x0AF7));
}

int main(int argc, char **argv)
{
    if (argc == 3 && QByteArray(argv[1]) == LeaveArgument)
        return leaveWhileACallTakes(argc, argv);
    QCoreApplication application(argc, argv);
    TestDiscovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_discovery.moc"
