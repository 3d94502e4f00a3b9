#include "RecordedOperations.h"
#include "SiblingHost.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

/// Which driver a keyboard is handed to, how, and how the user comes back, on a desktop that only writes
/// down. Its windows are 10 (RY), 11 (WS), 12 (BY) and 13 (JM).
class TestSiblings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startingIsOrdered();
    void windowsAreAdopted();
    void goneDriversAreRestarted();
    void nativeKeyboards();
    void handOver_data();
    void handOver();
    void ownWindowTakesTheHubsPlace();
    void requestBringsTheCardsBack();
    void closingEndsAllDrivers();

private:
    void makeHost(bool tarnwick);
    void startWithAllWindows();
    void open(quint8 family);
    QString recordUntil(const QString &last, std::chrono::milliseconds earliest);
    QString path(const QString &below) const { return root->path() + below; }

    std::unique_ptr<QTemporaryDir> root;
    std::unique_ptr<RecordedOperations> desktop;
    std::unique_ptr<QWidget> hub;
    QStackedWidget *pages = nullptr;
    QWidget *frame = nullptr;
    std::unique_ptr<SiblingHost> host;
    DeviceEnumInfo device;
};

void TestSiblings::init()
{
    root = std::make_unique<QTemporaryDir>();
    desktop = std::make_unique<RecordedOperations>();
    hub = std::make_unique<QWidget>();
    pages = new QStackedWidget(hub.get());
    for (int page = 0; page < 3; ++page)
        pages->addWidget(new QWidget);
    frame = new QWidget(pages->widget(SiblingHost::EmbedPage));
    frame->resize(1240, 700);
    hub->show();
    makeHost(false);
    device = {};
    device.deviceId = 0x1234;
    device.displayName = u"Board"_s;
    device.vendorPath = u"vendor"_s;
    device.devicePath = u"path"_s;
}

void TestSiblings::cleanup()
{
    host.reset();
    hub.reset();
}

void TestSiblings::makeHost(bool tarnwick)
{
    host = std::make_unique<SiblingHost>(*desktop, SiblingHost::Stage{hub.get(), pages, frame}, tarnwick);
    QStringList &record = desktop->record;
    const auto note = [this, &record](auto signal, auto text) {
        connect(host.get(), signal, this, [&record, text](auto... values) { record += text(values...); });
    };
    note(&SiblingHost::languageMenuUnwanted, [] { return u"menu away"_s; });
    note(&SiblingHost::windowModeWanted, [](bool narrow) { return narrow ? u"narrow"_s : u"wide"_s; });
    note(&SiblingHost::returnButtonWanted, [](bool shown) { return shown ? u"button"_s : u"no button"_s; });
    note(&SiblingHost::nativeDeviceOpened,
         [](DeviceEnumInfo *, const QString &image) { return u"native "_s + image; });
    note(&SiblingHost::currentDeviceChanged, [](DeviceEnumInfo *current) {
        return u"current "_s + (current ? current->displayName : u"none"_s);
    });
    note(&SiblingHost::hostingChanged,
         [](bool hosting) { return hosting ? u"hosting"_s : u"not hosting"_s; });
    note(&SiblingHost::pointerInside, [] { return u"pointer inside"_s; });
}

/// Starts the host on a desktop where all four drivers run and show their windows.
void TestSiblings::startWithAllWindows()
{
    desktop->processes = QStringList{u"Orbe-WS.exe"_s, u"Orbe-Gaming-Bub.exe"_s};
    desktop->windows = {
        {u"Orbe Cloud Driver"_s, 10}, {u"Orbe"_s, 11}, {u"bymold"_s, 12}, {u"Orbe-Gaming-Bub"_s, 13}};
    for (quintptr window = 10; window < 14; ++window)
        desktop->rects[window] = QRect(5, 6, 400, 300);
    host->start(root->path());
    QTRY_VERIFY(desktop->record.contains(u"hide 13"_s));
}

/// Clicks the card of a device of that family.
void TestSiblings::open(quint8 family)
{
    device.family = family;
    host->openDevice(&device, u"board.png"_s);
}

/// The record up to an operation, which must come in time but not before \a earliest.
QString TestSiblings::recordUntil(const QString &last, std::chrono::milliseconds earliest)
{
    QElapsedTimer clock;
    clock.start();
    if (!QTest::qWaitFor([this, &last] { return desktop->record.contains(last); }, 4000))
        return u"never: "_s + last;
    if (clock.elapsed() + 5 < earliest.count()) // the clock starts a little after what is waited for
        return u"too early: "_s + last;
    const QStringList later = desktop->record.mid(desktop->record.indexOf(last) + 1);
    desktop->record.resize(desktop->record.size() - later.size());
    return std::exchange(desktop->record, later).join(u"; "_s);
}

static bool touch(const QString &file)
{
    return QDir().mkpath(QFileInfo(file).path()) && QFile(file).open(QIODevice::WriteOnly);
}

void TestSiblings::startingIsOrdered()
{
    QCOMPARE(siblingRoot(path(u"/bin"_s)), path(u"/bin/.."_s));
    QVERIFY(touch(path(u"/bin/RyExe/driver"_s)));
    QCOMPARE(siblingRoot(path(u"/bin"_s)), path(u"/bin"_s));

    QVERIFY(touch(path(u"/WsExe/Orbe.exe"_s)));
    host->resetValues();
    host->start(root->path());
    const QString record =
        u"set OrbeReturn=0 int; set TarnwickReturn=0 int; set OrbeWnd=0 uint; "
        "set iotManagerInitialized=false bool; set ShowWindowControlButtons=false bool; "
        "set PageLoaded=false bool; set DeviceId=0 int; set DevicePath= QString; "
        "set VendorDevicePath= QString; set ByDeviceUuid= QString; "
        "end Orbe-WS.exe; end Orbe-BY.exe; end Orbe-Gaming-Bub.exe; end OrbeCloudDriver.exe; "
        "start %1/WsExe/Orbe-WS.exe; start %1/RyExe/OrbeCloudDriver.exe; "
        "start %1/JmExe/Orbe-Gaming-Bub.exe; start %1/ByExe/Orbe-BY.exe"_s;
    QCOMPARE(desktop->taken(), record.arg(root->path()));
    QVERIFY2(QFile::exists(path(u"/WsExe/Orbe-WS.exe"_s)), "an updated WS driver gets its old name");

    makeHost(true);
    host->start(u"/hub"_s);
    QVERIFY(desktop->taken().contains(u"start /hub/TrExe/TarnwickDriver.exe"_s));
}

void TestSiblings::windowsAreAdopted()
{
    desktop->values[u"OrbeWnd"_s] = 99u; // the WS driver tells its window, which is believed unseen
    startWithAllWindows();
    const QString record = desktop->taken();
    const QString found = u"; style 10 d60a0000 80000; place 10 bottom 0,0 0x0 81; embed 10; "
                          "set ParentHwnd=10 int; hide 99; style 12 d60a0000 80000; "
                          "place 12 bottom 0,0 0x0 81; hide 12; embed 12; hide 13"_s;
    QVERIFY2(record.endsWith(found), qPrintable(record));
}

void TestSiblings::goneDriversAreRestarted()
{
    for (const auto *program :
         {"/WsExe/Orbe-WS.exe", "/JmExe/Orbe-Gaming-Bub.exe", "/RyExe/OrbeCloudDriver.exe"})
        QVERIFY(touch(path(QLatin1String(program))));
    desktop->values[u"OrbeWnd"_s] = 11u;
    startWithAllWindows();
    desktop->taken();
    desktop->processes.clear();
    desktop->windows = {{u"Orbe-Gaming-Bub"_s, 23}};
    hub->hide();
    QTRY_VERIFY2(desktop->record.contains(u"hide 23"_s), "the new window is found like the first");
    const QString restarts = u"set OrbeWnd=0 uint; start %1/WsExe/Orbe-WS.exe; "
                             "start %1/JmExe/Orbe-Gaming-Bub.exe; hide 23"_s;
    QCOMPARE(desktop->taken(), restarts.arg(root->path()));
}

void TestSiblings::nativeKeyboards()
{
    const auto opened = [this](quint8 family, quint64 id, const QString &name) {
        device.deviceId = id;
        device.displayName = name;
        desktop->taken();
        open(family);
        return desktop->taken();
    };
    startWithAllWindows();
    open(ByFamily);
    QCOMPARE(opened(CloudFamily, 0x0AF7, u"Board"_s),
             u"menu away; hide 10; place 10 bottom 5,6 400x300 82; hide 11; "
             "hide 12; place 12 bottom 5,6 400x300 82; hide 13; current Board; native board.png"_s);
    QTest::qWait(250);
    QVERIFY2(!desktop->record.contains(u"pointer inside"_s), "the hand-over before is called off");
    const QString native = u"native board.png"_s;
    QVERIFY(opened(CloudFamily, 1, u"Orbe 7090 Pro"_s).endsWith(native));
    QVERIFY(!opened(CloudFamily, 0x0AF8, u"Orbe 709"_s).contains(native));
    QVERIFY(!opened(WsFamily, 0x0AF7, u"Orbe 7090"_s).contains(native));
    QVERIFY(!opened(99, 1, u"Board"_s).contains(native));
    host->openDevice(nullptr, {});
}

void TestSiblings::handOver_data()
{
    QTest::addColumn<quint8>("family");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("atOnce");
    QTest::addColumn<QString>("later");
    const QString embedded = u"current Board; place %1 bottom 0,0 1241x701 40; shape %1 1241x701 32 32; "
                             "pointer inside"_s;
    const QString own = u"current Board; show %1; top %1; move %1 200,250 400x300; pointer inside"_s;
    QTest::newRow("RY") << quint8(0) << "de-DE"
                        << "set DeviceId=0 int; set DevicePath= QString; set PageLoaded=false QString; "
                           "set VendorDevicePath= QString; wide"
                        << u"set DeviceId=4660 int; set VendorDevicePath=vendor QString; "
                           "set DevicePath=path QString; "_s +
                               embedded.arg(10);
    QTest::newRow("WS") << quint8(1) << "de-DE"
                        << "set OrbeDeviceIndex=4660 int" << own.arg(11);
    QTest::newRow("BY") << quint8(2) << "de-DE"
                        << "set ByLocale=de-DE QString; set ByDeviceUuid=0xvendor QString"
                        << embedded.arg(12);
    QTest::newRow("JM") << quint8(3) << "de-DE"
                        << "set JmLocale=de-DE QString; set JmDevicePath=path QString" << own.arg(13);
}

void TestSiblings::handOver()
{
    QFETCH(quint8, family);
    QFETCH(QString, tag);
    QFETCH(QString, atOnce);
    QFETCH(QString, later);
    startWithAllWindows();
    desktop->taken();
    host->setLocaleTag(tag);
    open(family);
    const QString record = desktop->taken();
    QVERIFY2(record.endsWith(u"hide 13; "_s + atOnce), qPrintable(record));
    const QString first = later.section(u"; "_s, 0, 0);
    QCOMPARE(recordUntil(first, 100ms), first);
    QCOMPARE(recordUntil(u"pointer inside"_s, 0ms), later.section(u"; "_s, 1));
    const bool embedded = family == CloudFamily || family == ByFamily;
    QCOMPARE(pages->currentIndex(), embedded ? SiblingHost::EmbedPage : SiblingHost::CardPage);
    QCOMPARE(hub->isVisible(), embedded);
    if (family == CloudFamily) {
        open(family);
        QVERIFY2(desktop->taken().endsWith(u"hide 13; wide"_s), "it has the device already");
    }
    if (family != ByFamily)
        return;
    QVERIFY(recordUntil(u"button"_s, 1800ms).endsWith(u"button"_s));
    hub->hide(); // and with it the watch that keeps own windows behind it
    desktop->taken();
    host->leaveEmbedded();
    QCOMPARE(pages->currentIndex(), SiblingHost::CardPage);
    QCOMPARE(recordUntil(u"narrow"_s, 100ms), u"no button; hide 10; hide 12; hide 13; narrow"_s);
}

void TestSiblings::ownWindowTakesTheHubsPlace()
{
    startWithAllWindows();
    desktop->taken();
    QCOMPARE(recordUntil(u"hide 13"_s, 0ms), u"hide 11; hide 13"_s); // behind the hub, again and again
    desktop->rects[13] = QRect(0, 0, 20000, 10000);                  // larger than any screen
    open(JmFamily);
    QVERIFY(recordUntil(u"pointer inside"_s, 100ms).contains(u"move 13 0,0 20000x10000"_s));
    QVERIFY(hub->isHidden());

    // A request from before the window was shown must not pull the hub back.
    host->requestReturn();
    QCOMPARE(recordUntil(u"hosting"_s, 1000ms), u"set OrbeReturn=1 int; set OrbeReturn=0 int; "
                                                "set TarnwickReturn=0 int; top 13; show 13; foreground 13; "
                                                "redraw 13 300; hosting"_s);
    QCOMPARE(recordUntil(u"no button"_s, 900ms), u"no button"_s);
    QVERIFY(hub->isHidden());
}

void TestSiblings::requestBringsTheCardsBack()
{
    startWithAllWindows();
    open(WsFamily);
    recordUntil(u"hosting"_s, 1000ms);
    pages->setCurrentIndex(SiblingHost::NativePage);
    desktop->values[u"TarnwickReturn"_s] = 1;
    QCOMPARE(recordUntil(u"current none"_s, 0ms),
             u"set OrbeReturn=0 int; set TarnwickReturn=0 int; no button; "
             "hide 10; place 10 bottom 5,6 400x300 82; hide 11; "
             "hide 12; place 12 bottom 5,6 400x300 82; hide 13; not hosting; current none"_s);
    QCOMPARE(pages->currentIndex(), SiblingHost::CardPage);
    QCOMPARE(host->hostedFamily(), -1);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(hub->isHidden());
    QTRY_VERIFY(hub->isVisible());
    QVERIFY(clock.elapsed() >= 190);
}

void TestSiblings::closingEndsAllDrivers()
{
    startWithAllWindows();
    desktop->taken();
    host->endProcesses();
    host->closeWindows();
    const QString record = u"end Orbe-WS.exe; end Orbe-BY.exe; end OrbeBox.exe; end Orbe-Gaming-Bub.exe; "
                           "end OrbeCloudDriver.exe; close 10; close 11; close 12; close 13"_s;
    QCOMPARE(desktop->taken(), record);
    QTest::qWait(250); // nothing is started again
    QCOMPARE(desktop->taken(), QString());
}

QTEST_MAIN(TestSiblings)
#include "tst_siblings.moc"
