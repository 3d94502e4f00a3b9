#include "AppStart.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "HubOnScreen.h"
#include "KeyboardButton.h"
#include "KeyEntry.h"
#include "KeyMatrix.h"
#include "ModuleKeyboard.h"
#include "UhidBench.h"
#include "USBNotifier.h"

#include <QFile>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <unistd.h>

namespace {

constexpr quint8 KeyA = 0x04;
constexpr quint8 KeyQ = 0x14;
constexpr int NativePage = 2;
constexpr int CardPage = 0;

// An emulated machine is slow, and never as slow as this.
constexpr int SoonMs = 15000; ///< half the period in which the hub searches without being told
constexpr int ReadMs = 60000; ///< for all of a keyboard

QString environment(const char *name)
{
    return qEnvironmentVariable(name);
}

int &accessComplaints()
{
    static int complaints = 0;
    return complaints;
}

QtMessageHandler &nextHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// Counts the hints at the missing rule among the log lines, from whatever thread they come.
void countComplaints(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.contains(QLatin1String("70-orbehub.rules")))
        QMetaObject::invokeMethod(qApp, [] { ++accessComplaints(); });
    nextHandler()(type, context, text);
}

} // namespace

/// The whole program with the system's hidapi, on devices that the kernel and udev take for real ones. The
/// tests follow each other: at first the user has no access.
class TestHardware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ruleGivesAccess();
    void cardsFollowThePlugs();
    void keyboard_data();
    void keyboard();
    void receiverTellsTheCharge();
    void unplugWhileItIsRead();
    void cleanup();

private:
    void open(const QByteArray &model);
    void writeKeyByHand();
    void readBack();
    void testKeys();
    void calibrate();

    UhidBench bench{environment("ORBE_BENCH"), environment("ORBE_TRAFFIC")};
    QList<int> plugged;
    int device = 0; ///< the one that is open
    QByteArray way;
};

void TestHardware::initTestCase()
{
    nextHandler() = qInstallMessageHandler(countComplaints);
    QVERIFY2(::geteuid() != 0, "root needs no rule");
    QVERIFY(hub::window());
    QVERIFY(hub::window()->isVisible());
    QCOMPARE(hub::cards(), 0);
}

void TestHardware::cleanup()
{
    QVERIFY(hub::settle(ReadMs));
    for (const int number : std::as_const(plugged))
        bench.unplug(number);
    plugged.clear();
    QTRY_COMPARE_WITH_TIMEOUT(hub::cards(), 0, SoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(hub::find<QStackedWidget>("stackedWidget")->currentIndex(), CardPage, SoonMs);
}

void TestHardware::ruleGivesAccess()
{
    // Opening order: USB, a HID device without a bus behind it, and Bluetooth. The rule must know all of
    // them.
    const QByteArrayList models{"usb:wired-500", "wired-300", "bluetooth"};
    for (const QByteArray &model : models)
        plugged += bench.plug(model);
    QVERIFY(!plugged.contains(0));
    QTRY_VERIFY_WITH_TIMEOUT(accessComplaints() >= int(models.size()), SoonMs);
    QCOMPARE(hub::cards(), 0);
    QVERIFY(hub::picture(QStringLiteral("no-access")));

    QFile wishes(environment("ORBE_WISHES"));
    QVERIFY(wishes.open(QIODevice::WriteOnly));
    QVERIFY(wishes.write("rule\n") > 0);
    wishes.close();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(environment("ORBE_WISH_GRANTED")), SoonMs);
    for (const int number : std::as_const(plugged))
        QVERIFY(bench.unplug(number));
    plugged.clear();
    for (const QByteArray &model : models)
        plugged += bench.plug(model);
    QTRY_COMPARE_WITH_TIMEOUT(hub::cards(), int(models.size()), SoonMs);
}

void TestHardware::cardsFollowThePlugs()
{
    const QByteArrayList models{"wired-500", "usb:receiver", "bluetooth", "cloud", "usb:cloud-mouse",
                                "hitscreen", "ws",           "usb:by",    "jm"};
    QSignalSpy news(USBNotifier::instance(nullptr), &USBNotifier::devicePluggined);
    for (const QByteArray &model : models) {
        plugged += bench.plug(model);
        QVERIFY2(plugged.last() != 0, model.constData());
    }
    QTRY_COMPARE_WITH_TIMEOUT(hub::cards(), int(models.size()), SoonMs);
    QVERIFY(!news.isEmpty());
    QVERIFY(hub::picture(QStringLiteral("cards")));

    QVERIFY(hub::settle(ReadMs));
    news.clear();
    QVERIFY(bench.unplug(plugged.takeFirst()));
    QTRY_COMPARE_WITH_TIMEOUT(hub::cards(), int(models.size()) - 1, SoonMs);
    QVERIFY(!news.isEmpty());
}

void TestHardware::keyboard_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::newRow("usb") << QByteArray("usb:wired-500");
    QTest::newRow("uhid") << QByteArray("wired-500");
    QTest::newRow("bluetooth") << QByteArray("bluetooth");
}

void TestHardware::keyboard()
{
    QFETCH(QByteArray, model);
    const auto step = [this](void (TestHardware::*part)()) {
        if (!QTest::currentTestFailed())
            (this->*part)();
    };
    way = QTest::currentDataTag();
    open(model);
    step(&TestHardware::writeKeyByHand);
    step(&TestHardware::readBack);
    if (way != "bluetooth") { // which has no road for the stream of depths
        step(&TestHardware::testKeys);
        step(&TestHardware::calibrate);
    }
    QCOMPARE(bench.faults(device), QByteArray("badchecksum 0 unknown 0 malformed 0 oddlength 0 misrouted 0"));
}

/// Plugs a keyboard alone, clicks its card, and waits until it was read.
void TestHardware::open(const QByteArray &model)
{
    device = bench.plug(model);
    QVERIFY(device != 0);
    plugged += device;
    QTRY_VERIFY_WITH_TIMEOUT(hub::onlyCard(), SoonMs);
    const QPoint middle = hub::onlyCard()->rect().center();
    QFile place(environment("ORBE_CARD_PLACE")); // for whoever has a mouse and no widgets
    QVERIFY(place.open(QIODevice::WriteOnly));
    const QPoint inWindow = hub::onlyCard()->mapTo(hub::window(), middle);
    place.write(QStringLiteral("%1 %2\n").arg(inWindow.x()).arg(inWindow.y()).toLatin1());

    QSignalSpy read(DialogDeviceConnect::instance(), &DialogDeviceConnect::onReadDone);
    QTest::mouseClick(hub::onlyCard(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(hub::find<QStackedWidget>("stackedWidget")->currentIndex(), NativePage, SoonMs);
    QVERIFY(read.wait(ReadMs));
    QVERIFY(hub::settle(ReadMs));
    QVERIFY(DialogDeviceConnect::instance()->isConnected());
    QVERIFY(hub::picture(QLatin1String(way) + QStringLiteral("-home")));
}

/// Gives Q the function of A, as a user does.
void TestHardware::writeKeyByHand()
{
    hub::openPage("label2");
    hub::click("pushButtonSet1");
    const auto keyboards = hub::window()->findChildren<ModuleKeyboard *>();
    const auto shown = std::find_if(keyboards.begin(), keyboards.end(),
                                    [](const ModuleKeyboard *board) { return board->isVisible(); });
    QVERIFY(shown != keyboards.end());
    QCOMPARE(bench.key(device, keys::PositionOfCode(KeyQ)), QByteArray("00 00 14 00"));
    const bool picked =
        hub::inDialog([shown] { (*shown)->keyButton(KeyQ)->click(); },
                      [](QWidget &picker) {
                          picker.findChild<QAbstractButton *>(QStringLiteral("pushButton_Hid004"))->click();
                          QVERIFY(hub::picture(QStringLiteral("picker")));
                          picker.findChild<QAbstractButton *>(QStringLiteral("pushButtonOK"))->click();
                      });
    QVERIFY(picked);
    QTRY_COMPARE_WITH_TIMEOUT(bench.key(device, keys::PositionOfCode(KeyQ)), QByteArray("00 04 00 00"),
                              SoonMs);
    QVERIFY(hub::picture(QLatin1String(way) + QStringLiteral("-keys")));
}

/// What the keyboard holds comes back when it is read again.
void TestHardware::readBack()
{
    DialogDeviceConnect &connection = *DialogDeviceConnect::instance();
    QSignalSpy read(&connection, &DialogDeviceConnect::onReadDone);
    connection.DoReadAll();
    QVERIFY(read.wait(ReadMs));
    KeyEntry entry;
    connection.GetKeyEntry(entry, quint8(keys::PositionOfCode(KeyQ)), 0);
    QCOMPARE(entry, (KeyEntry{{KeyKind::Keys, KeyA, 0, 0}}));
}

/// A key on its way down and up, on the page that shows it.
void TestHardware::testKeys()
{
    const DialogDeviceConnect &connection = *DialogDeviceConnect::instance();
    float deepest = 0;
    const QObject listening;
    connect(&connection, &DialogDeviceConnect::onKeyTest, &listening,
            [&connection, &deepest] { deepest = std::max(deepest, connection.GetKeyTravel()); });
    hub::openPage("label3");
    hub::click("pushButtonSet4");
    hub::click("checkBoxKeytest0");
    QTRY_COMPARE_WITH_TIMEOUT(bench.state(device, "keytest"), 1, SoonMs);
    bench.press(device, keys::PositionOfCode(KeyQ), 1500);
    QTRY_VERIFY_WITH_TIMEOUT(deepest > 0.9F, SoonMs);
    QVERIFY(hub::picture(QLatin1String(way) + QStringLiteral("-key-test")));
    QTRY_COMPARE_WITH_TIMEOUT(connection.GetKeyTravel(), 0.0F, SoonMs);
    hub::click("checkBoxKeytest0");
    QTRY_COMPARE_WITH_TIMEOUT(bench.state(device, "keytest"), 0, SoonMs);
}

/// Every reading of the scan is the keyboard's.
void TestHardware::calibrate()
{
    const auto inProgress = [this](QWidget &) {
        QByteArray scan;
        const QObject listening;
        connect(DialogDeviceConnect::instance(), &DialogDeviceConnect::onCalibration, &listening,
                [&scan](const QByteArray &data) { scan = data; });
        QTRY_COMPARE_WITH_TIMEOUT(bench.state(device, "calibrating"), 1, SoonMs);
        bench.press(device, keys::PositionOfCode(KeyQ), 300);
        const auto reading = [&scan](quint8 code) {
            const qsizetype at = 2 * keys::PositionOfCode(code);
            return at + 1 < scan.size() ? quint8(scan.at(at)) + 256 * quint8(scan.at(at + 1)) : -1;
        };
        QTRY_COMPARE_WITH_TIMEOUT(reading(KeyQ), 720, SoonMs);
        QCOMPARE(reading(KeyA), 0);
        QVERIFY(hub::picture(QLatin1String(way) + QStringLiteral("-calibration")));
    };
    bool started = false;
    QVERIFY(hub::inDialog([] { hub::click("pushButtonFixline"); },
                          [&started, &inProgress](QWidget &guide) {
                              auto *start = guide.findChild<QPushButton *>(QStringLiteral("pushButtonStart"));
                              started = hub::inDialog([start] { start->click(); }, inProgress);
                          }));
    QVERIFY(started);
    QTRY_COMPARE_WITH_TIMEOUT(bench.state(device, "calibrating"), 0, SoonMs);
}

void TestHardware::receiverTellsTheCharge()
{
    device = bench.plug("usb:receiver");
    QVERIFY(device != 0);
    plugged += device;
    bench.setBattery(device, 37);
    QTRY_VERIFY_WITH_TIMEOUT(hub::onlyCard(), SoonMs);
    QTRY_COMPARE_WITH_TIMEOUT(hub::onlyCard()->accessibleDescription().right(5), QStringLiteral(": 37%"),
                              30000);
    QVERIFY(hub::picture(QStringLiteral("receiver")));
}

/// A cable that wavers: the hub takes the keyboard up again when it is back.
void TestHardware::unplugWhileItIsRead()
{
    way = "wavering";
    open("usb:wired-500");
    if (QTest::currentTestFailed())
        return;
    DialogDeviceConnect &connection = *DialogDeviceConnect::instance();
    connection.DoReadAll();
    QTest::qWait(500);
    QVERIFY(connection.isReadingAll());
    QVERIFY(bench.unplug(plugged.takeFirst()));
    QTRY_VERIFY_WITH_TIMEOUT(!connection.isConnected(), SoonMs);
    QSignalSpy read(&connection, &DialogDeviceConnect::onReadDone);
    plugged += bench.plug("usb:wired-500");
    QVERIFY(read.wait(ReadMs));
    QVERIFY(connection.isConnected());
}

int main(int argc, char **argv)
{
    AppStart start(argc, argv);
    QTimer::singleShot(0, qApp, [argc, argv] {
        TestHardware tests;
        QCoreApplication::exit(QTest::qExec(&tests, argc, argv));
    });
    return start.run();
}

#include "tst_hardware.moc"
