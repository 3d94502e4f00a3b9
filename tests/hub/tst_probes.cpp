#include "Scanner.h"

#include <QTest>

using virtualhid::DevicePtr;
using virtualhid::Fault;
using virtualhid::FaultRule;
using virtualhid::Way;

namespace {

/// Reports that the device received, as hexadecimal text without the zeros at the end; repeats stand once
/// with their count.
QString received(const DevicePtr &device)
{
    QStringList lines;
    int repeats = 0;
    for (const virtualhid::Transfer &transfer : device->transfers()) {
        if (transfer.way != Way::FeatureSent && transfer.way != Way::OutputSent)
            continue;
        QByteArray bytes(reinterpret_cast<const char *>(transfer.report.data()),
                         qsizetype(transfer.report.size()));
        const auto length = bytes.size();
        while (bytes.endsWith('\0'))
            bytes.chop(1);
        const QString line = QStringLiteral("%1%2:%3").arg(
            transfer.way == Way::FeatureSent ? QStringLiteral("f") : QStringLiteral("w"),
            QString::number(length), QString::fromLatin1(bytes.toHex().toUpper()));
        const QString before = lines.isEmpty() ? QString() : lines.constLast().section(u'*', 0, 0);
        repeats = line == before ? repeats + 1 : 1;
        if (line == before)
            lines.removeLast();
        lines += repeats == 1 ? line : line + u'*' + QString::number(repeats);
    }
    return lines.join(u' ');
}

const auto Identity = QStringLiteral("f65:008F00000000000070");
const auto ReceiverMode = QStringLiteral("f65:00F60A0000000000FF");
const auto ReceiverState = QStringLiteral("f65:00F700000000000008");
const auto Fetch = QStringLiteral("f65:00FC00000000000003");
const auto OverTheAir = QStringLiteral("w66:06558F00000000000070");
const auto WsIdentity = QStringLiteral("w8:0400003006");
const auto ByIdentity = QStringLiteral("w64:09820100010006") + QString(112, u'0') + QStringLiteral("6C");

QString times(const QString &frame, int count)
{
    return count == 1 ? frame : frame + u'*' + QString::number(count);
}

QString throughReceiver(int identityRounds, int polls, int morePolls)
{
    return QStringList{times(Identity, identityRounds), ReceiverMode, times(ReceiverState, polls), Identity,
                       times(ReceiverState, morePolls), Fetch}
        .join(u' ');
}

FaultRule always(sim::Byte command, Fault fault)
{
    return {.command = command, .times = {}, .fault = std::move(fault)};
}

/// The identity frame of a wired keyboard that says something else.
Fault identityReply(quint32 id)
{
    sim::Bytes reply(64);
    reply[0] = 0x8F;
    for (std::size_t i = 0; i < 4; ++i)
        reply[1 + i] = sim::Byte(id >> 8 * i);
    return Fault::reply(reply);
}

} // namespace

/// What each pass sends to a device, and what it makes of the answer.
class TestProbes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyModel_data();
    void everyModel();
    void receivers_data();
    void receivers();
    void answers_data();
    void answers();
    void idsChooseTheFamily();
    void pauses_data();
    void pauses();
    void secondBrand();
    void brokenInterfaceIsTriedAgain();
};

void TestProbes::everyModel_data()
{
    QTest::addColumn<DeviceSighting>("found");
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("frames");
    const auto row = [](const char *model, const char *name, quint64 id, DeviceFamilies family,
                        int connection, int type, int channel, const QString &frames,
                        const char *vendorPath = "null") {
        QTest::newRow(model) << DeviceSighting{.deviceId = id,
                                               .deviceType = quint16(type),
                                               .connection = quint16(connection),
                                               .family = family,
                                               .displayName = QLatin1String(name),
                                               .vendorPath = QLatin1String(vendorPath),
                                               .devicePath = QString()}
                             << channel << frames;
    };
    using sim::Channel;
    const auto command = int(Channel::Command);
    row("wired-500", "Orbe Magnetic 68", 0x0AF7, CloudFamily, 0, 0, command, Identity, "");
    row("wired-300", "Orbe Magnetic 75", 0x0EC3, CloudFamily, 0, 0, command, Identity, "");
    row("wired-2ff", "Orbe 7090", 0x0709, CloudFamily, 0, 0, command, Identity, "");
    row("bluetooth", "Orbe Magnetic 68", 0x0AF7, CloudFamily, 2, 0, int(Channel::Bluetooth), OverTheAir);
    row("receiver", "Orbe Magnetic 75", 0x0EC3, CloudFamily, 1, 0, command, throughReceiver(1, 1, 1), "");
    row("cloud", "Orbe Cloud 98", 0x0222, CloudFamily, 0, 0, command, Identity, "");
    row("cloud-mouse", "Orbe Cloud Mouse", 0x0333, CloudFamily, 0, 1, command, Identity, "");
    row("hitscreen", "Orbe Hit Box Screen", 0x0444, CloudFamily, 0, 3, int(Channel::HitScreen), Identity,
        "HitScreen");
    row("ws", "Orbe WS Keyboard", 0x51, WsFamily, 0, 0, int(Channel::Ws), WsIdentity);
    row("by", "Orbe BY Keyboard", 0x16, ByFamily, 0, 0, -1, ByIdentity, "000000123456");
    row("jm", "Orbe JM Keyboard", 0xFB29, JmFamily, 0, 0, int(Channel::Jm), QString());
}

void TestProbes::everyModel()
{
    QFETCH(DeviceSighting, found);
    QFETCH(int, channel);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug(QTest::currentDataTag());
    QVERIFY(scanner.scan());

    const DeviceEnumInfo *record = scanner.only();
    QVERIFY(record);
    QCOMPARE(record->displayName, found.displayName);
    QCOMPARE(record->deviceId, found.deviceId);
    QCOMPARE(int(record->family), int(found.family));
    QCOMPARE(int(record->connectionType), int(found.connection));
    QCOMPARE(int(record->deviceType), int(found.deviceType));
    QCOMPARE(record->vendorId, device->model().vendorId);
    QCOMPARE(record->productId, device->model().productId);
    // Without a path of its own for the vendor's driver, the HID path stands for it; a BY keyboard has its
    // serial number in place of both.
    const QString path =
        channel < 0 ? found.vendorPath : QString::fromStdString(device->path(sim::Channel(channel)));
    QCOMPARE(record->devicePath, path);
    QCOMPARE(record->vendorPath, found.vendorPath.isEmpty() ? path : found.vendorPath);

    QTEST(received(device), "frames");
    QVERIFY(device->frameFaults() == sim::FrameFaults{});
    const bool stays = record->family == WsFamily || record->connectionType == BluetoothConnection;
    QCOMPARE(scanner.bus.openHandles(), stays ? 1 : 0);
    QCOMPARE(scanner.bus.counters().listsAlive, 0u);
    QCOMPARE(scanner.bus.counters().misuses, 0u);
}

void TestProbes::receivers_data()
{
    QTest::addColumn<quint32>("ownId"); // of the receiver
    QTest::addColumn<sim::ReceiverScript>("script");
    QTest::addColumn<QString>("frames");
    QTest::addColumn<bool>("found");
    const auto row = [](const char *name, quint32 ownId, const sim::ReceiverScript &script,
                        const QString &frames,
                        bool found) { QTest::newRow(name) << ownId << script << frames << found; };
    row("keyboard wakes and answers late", 0x13151, {true, 3, 2}, throughReceiver(1, 4, 3), true);
    row("keyboard sleeps on", 0x13151, {true, 100, 0}, throughReceiver(1, 5, 1), true);
    row("receiver without an id of its own", 0, {}, throughReceiver(6, 1, 1), true);
    row("keyboard is gone", 0x13151, {false, 0, 0}, throughReceiver(1, 5, 1), false);
}

void TestProbes::receivers()
{
    QFETCH(quint32, ownId);
    QFETCH(sim::ReceiverScript, script);
    QFETCH(bool, found);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug("receiver", {.deviceId = ownId});
    device->setReceiver(script);
    QVERIFY(scanner.scan());
    QTEST(received(device), "frames");
    QCOMPARE(scanner.list.devices().size(), found ? 1 : 0);
}

void TestProbes::answers_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<FaultRule>("rule");
    QTest::addColumn<QString>("frames");
    QTest::addColumn<int>("id"); // 0: no card
    const QByteArray wired("wired-500");
    const QByteArray air("bluetooth");
    const auto lost = [](sim::Byte command, std::size_t count) {
        return FaultRule{.command = command, .times = count, .fault = Fault::lost()};
    };

    QTest::newRow("no id at first") << wired
                                    << FaultRule{.command = sim::Byte(0x8F),
                                                 .times = 5,
                                                 .fault = identityReply(0)}
                                    << times(Identity, 6) << 0x0AF7;
    QTest::newRow("short answer") << wired
                                  << FaultRule{.command = sim::Byte(0x8F), .fault = Fault::shortReply(2)}
                                  << times(Identity, 1) << 0xF7;
    QTest::newRow("largest id of a keyboard")
        << wired << always(0x8F, identityReply(0x1000)) << times(Identity, 1) << 0x1000;

    QTest::newRow("air: no answer") << air << lost(0x8F, 5) << times(OverTheAir, 5) << 0;
    QTest::newRow("air: the other answer")
        << air << FaultRule{.fault = Fault::wrongFirstByte(0x88)} << times(OverTheAir, 1) << 0x0AF7;
    QTest::newRow("air: notice ahead of the answer")
        << air << FaultRule{.fault = Fault::notice()} << times(OverTheAir, 2) << 0x0AF7;

    const QByteArray ws("ws");
    QTest::newRow("ws: no answer") << ws << FaultRule{.times = {}, .fault = Fault::lost()}
                                   << times(WsIdentity, 10) << 0;
    QTest::newRow("ws: answer without the id")
        << ws << FaultRule{.times = {}, .fault = Fault::shortReply(11)} << times(WsIdentity, 1) << 0;

    const QByteArray by("by");
    QTest::newRow("by: no answer leaves the zeros of the question")
        << by << FaultRule{.fault = Fault::lost()} << ByIdentity << 0x99;
}

void TestProbes::answers()
{
    QFETCH(QByteArray, model);
    QFETCH(FaultRule, rule);
    QFETCH(int, id);
    Scanner scanner;
    scanner.config.write("OrbeHubDevices.json",
                         R"([{"id":2807,"displayName":"A"},{"id":4096,"displayName":"B"},
                                                   {"id":247,"displayName":"C"}])");
    scanner.config.write("CustomDeviceList.json", "////CustomDeviceList////\n0x51,0x38EE,0x31,0x51,0,0,Ws\n"
                                                  "0x99,0x38EE,0x16,0,0,0,By\n0x51,0x38EE,0x31,0,0,0,None\n");
    const bool by =
        model == "by" && id == 0; // its text of zeros is an id of 0, which this list must not know
    if (by)
        scanner.config.remove("CustomDeviceList.json");
    const DevicePtr device = scanner.bus.plug(model.constData());
    device->addFault(rule);
    QVERIFY(scanner.scan());
    QTEST(received(device), "frames");
    QCOMPARE(scanner.list.devices().size(), id ? 1 : 0);
    if (id)
        QCOMPARE(int(scanner.only()->deviceId), id);
}

void TestProbes::idsChooseTheFamily()
{
    Scanner scanner;
    scanner.config.write("enumsetting.ini", "VIDset0=\"0x25A7, 9639\"\nVIDset1=\"0x3151\"");
    const auto frames = [&scanner](const char *model, quint16 vendor, quint16 product) {
        const DevicePtr device =
            scanner.bus.plug(model, {.vendorId = vendor, .productId = product, .deviceId = 0x0AF7});
        const bool done = scanner.scan();
        const auto count = done ? int(device->frameCount()) : -1;
        scanner.bus.unplug(device);
        return count;
    };
    for (const int product : {0x000A, 0x0051, 0x5150, 0x5153, 0x22B3, 0x22B6}) {
        QCOMPARE(frames("wired-500", 0x25A7, quint16(product)), 2); // the vendor is listed twice
        QCOMPARE(frames("ws", 0x320F, quint16(product)), 0);
    }
    for (const int product : {0x000B, 0x0050, 0x5151, 0x5152, 0x22B4, 0x22B5}) {
        QCOMPARE(frames("wired-500", 0x25A7, quint16(product)), 0);
        QCOMPARE(frames("ws", 0x320F, quint16(product)), 1);
    }
    QCOMPARE(frames("wired-500", 0x3151, 0x502F), 0); // not in the list
}

void TestProbes::pauses_data()
{
    QTest::addColumn<FaultRule>("rule");
    QTest::addColumn<QList<int>>("milliseconds"); // least time to the transfer after
    QTest::newRow("wired-500") << FaultRule{.command = sim::Byte(0x8F), .fault = identityReply(0)}
                               << QList<int>{150, 50, 150};
    QTest::newRow("receiver") << FaultRule{.frame = 1000}
                              << QList<int>{150, 0, 100, 0, 100, 0, 100, 0, 100, 0, 100};
    QTest::newRow("bluetooth") << FaultRule{.fault = Fault::wrongFirstByte(0x11)} << QList<int>{0, 100, 0};
    QTest::newRow("ws") << FaultRule{.fault = Fault::shortReply(2)} << QList<int>{20, 10, 20};
}

void TestProbes::pauses()
{
    QFETCH(FaultRule, rule);
    QFETCH(QList<int>, milliseconds);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug(QTest::currentDataTag());
    device->addFault(rule);
    QVERIFY(scanner.scan());
    const auto transfers = device->transfers();
    QCOMPARE(qsizetype(transfers.size()), milliseconds.size() + 1);
    for (qsizetype i = 0; i < milliseconds.size(); ++i) {
        const auto gap = transfers[std::size_t(i) + 1].when - transfers[std::size_t(i)].when;
        QVERIFY2(gap >= std::chrono::milliseconds(milliseconds[i]), qPrintable(QString::number(i)));
    }
}

void TestProbes::secondBrand()
{
    Scanner scanner(true);
    for (const char *model : {"wired-500", "ws", "by", "jm"})
        scanner.bus.plug(model);
    QVERIFY(scanner.scan());
    QCOMPARE(scanner.onlineNames(),
             (QStringList{QStringLiteral("Tarnwick Magnetic 68"), QStringLiteral("Orbe BY Keyboard")}));
}

void TestProbes::brokenInterfaceIsTriedAgain()
{
    Scanner scanner;
    const DevicePtr wired = scanner.bus.plug("wired-500");
    const DevicePtr ws = scanner.bus.plug("ws");
    scanner.bus.plug("jm");
    wired->failOpens(1);
    ws->failOpens(1);
    QVERIFY(scanner.scan());
    QCOMPARE(scanner.onlineNames(), QStringList{QStringLiteral("Orbe JM Keyboard")});
    QVERIFY(scanner.scan());
    QCOMPARE(scanner.list.onlineCount(), 3);
}

QTEST_GUILESS_MAIN(TestProbes)
#include "tst_probes.moc"
