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
    void products_data();
    void products();
    void vendors_data();
    void vendors();
    void pauses_data();
    void pauses();
    void secondBrand();
    void brokenInterfaceIsTriedAgain();
};

void TestProbes::everyModel_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("connection");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("vendorPath"); // empty: the HID path
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("frames");
    const auto null = QStringLiteral("null");
    const auto path = QString();
    const auto command = int(sim::Channel::Command);

    QTest::newRow("wired-500") << QStringLiteral("Orbe Magnetic 68") << 0x0AF7 << 0 << 0 << 0 << path
                               << command << Identity;
    QTest::newRow("wired-300") << QStringLiteral("Orbe Magnetic 75") << 0x0EC3 << 0 << 0 << 0 << path
                               << command << Identity;
    QTest::newRow("wired-2ff") << QStringLiteral("Orbe 7090") << 0x0709 << 0 << 0 << 0 << path << command
                               << Identity;
    QTest::newRow("bluetooth") << QStringLiteral("Orbe Magnetic 68") << 0x0AF7 << 0 << 2 << 0 << null
                               << int(sim::Channel::Bluetooth) << OverTheAir;
    QTest::newRow("receiver") << QStringLiteral("Orbe Magnetic 75") << 0x0EC3 << 0 << 1 << 0 << path
                              << command << throughReceiver(1, 1, 1);
    QTest::newRow("cloud") << QStringLiteral("Orbe Cloud 98") << 0x0222 << 0 << 0 << 0 << path << command
                           << Identity;
    QTest::newRow("cloud-mouse") << QStringLiteral("Orbe Cloud Mouse") << 0x0333 << 0 << 0 << 1 << path
                                 << command << Identity;
    QTest::newRow("hitscreen") << QStringLiteral("Orbe Hit Box Screen") << 0x0444 << 0 << 0 << 3
                               << QStringLiteral("HitScreen") << int(sim::Channel::HitScreen) << Identity;
    QTest::newRow("ws") << QStringLiteral("Orbe WS Keyboard") << 0x51 << 1 << 0 << 0 << null
                        << int(sim::Channel::Ws) << WsIdentity;
    QTest::newRow("by") << QStringLiteral("Orbe BY Keyboard") << 0x16 << 2 << 0 << 0
                        << QStringLiteral("000000123456") << -1 << ByIdentity;
    QTest::newRow("jm") << QStringLiteral("Orbe JM Keyboard") << 0xFB29 << 3 << 0 << 0 << null
                        << int(sim::Channel::Jm) << QString();
}

void TestProbes::everyModel()
{
    QFETCH(QString, vendorPath);
    QFETCH(int, channel);
    QFETCH(int, connection);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug(QTest::currentDataTag());
    QVERIFY(scanner.scan());

    const DeviceEnumInfo *record = scanner.only();
    QVERIFY(record);
    QTEST(record->displayName, "name");
    QTEST(int(record->deviceId), "id");
    QTEST(int(record->family), "family");
    QCOMPARE(int(record->connectionType), connection);
    QTEST(int(record->deviceType), "type");
    QCOMPARE(record->vendorId, device->model().vendorId);
    QCOMPARE(record->productId, device->model().productId);
    const QString path =
        channel < 0 ? vendorPath : QString::fromStdString(device->path(sim::Channel(channel)));
    QCOMPARE(record->devicePath, path);
    QCOMPARE(record->vendorPath, vendorPath.isEmpty() ? path : vendorPath);

    QTEST(received(device), "frames");
    QVERIFY(device->frameFaults() == sim::FrameFaults{});
    const bool stays = record->family == WsFamily || connection == BluetoothConnection;
    QCOMPARE(scanner.bus.openHandles(), stays ? 1 : 0);
    QCOMPARE(scanner.bus.counters().listsAlive, 0u);
    QCOMPARE(scanner.bus.counters().misuses, 0u);
}

void TestProbes::receivers_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<sim::DeviceOptions>("options");
    QTest::addColumn<sim::ReceiverScript>("script");
    QTest::addColumn<QString>("frames");
    QTest::addColumn<bool>("found");
    const QByteArray receiver("receiver");

    QTest::newRow("keyboard wakes and answers late")
        << receiver << sim::DeviceOptions{} << sim::ReceiverScript{true, 3, 2} << throughReceiver(1, 4, 3)
        << true;
    QTest::newRow("keyboard sleeps on")
        << receiver << sim::DeviceOptions{} << sim::ReceiverScript{true, 100, 0} << throughReceiver(1, 5, 1)
        << true;
    QTest::newRow("receiver without an id of its own")
        << receiver << sim::DeviceOptions{.deviceId = 0} << sim::ReceiverScript{} << throughReceiver(6, 1, 1)
        << true;
    QTest::newRow("keyboard is gone") << receiver << sim::DeviceOptions{} << sim::ReceiverScript{false, 0, 0}
                                      << throughReceiver(1, 5, 1) << false;
    QTest::newRow("never had one") << QByteArray("receiver-unpaired") << sim::DeviceOptions{}
                                   << sim::ReceiverScript{false, 0, 0} << throughReceiver(1, 5, 1) << false;
}

void TestProbes::receivers()
{
    QFETCH(QByteArray, model);
    QFETCH(sim::DeviceOptions, options);
    QFETCH(sim::ReceiverScript, script);
    QFETCH(bool, found);
    Scanner scanner;
    const DevicePtr device = scanner.bus.plug(model.constData(), options);
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

    QTest::newRow("silent rounds aren't counted") << wired << lost(0x8F, 8) << times(Identity, 9) << 0x0AF7;
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
    QTest::newRow("id that no catalogue knows")
        << wired << always(0x8F, identityReply(0x0FFF)) << times(Identity, 1) << 0;

    QTest::newRow("air: answer to the last question")
        << air << lost(0x8F, 4) << times(OverTheAir, 5) << 0x0AF7;
    QTest::newRow("air: no answer") << air << lost(0x8F, 5) << times(OverTheAir, 5) << 0;
    QTest::newRow("air: the other answer")
        << air << FaultRule{.fault = Fault::wrongFirstByte(0x88)} << times(OverTheAir, 1) << 0x0AF7;
    QTest::newRow("air: notice ahead of the answer")
        << air << FaultRule{.fault = Fault::notice()} << times(OverTheAir, 2) << 0x0AF7;

    const QByteArray ws("ws");
    QTest::newRow("ws: answer to the last question")
        << ws << FaultRule{.times = 9, .fault = Fault::lost()} << times(WsIdentity, 10) << 0x51;
    QTest::newRow("ws: no answer") << ws << FaultRule{.times = {}, .fault = Fault::lost()}
                                   << times(WsIdentity, 10) << 0;
    QTest::newRow("ws: answer without the id")
        << ws << FaultRule{.times = {}, .fault = Fault::shortReply(11)} << times(WsIdentity, 1) << 0;

    const QByteArray by("by");
    QTest::newRow("by: no answer leaves the zeros of the question")
        << by << FaultRule{.fault = Fault::lost()} << ByIdentity << 0x99;
    QTest::newRow("by: letter among the digits")
        << by << FaultRule{.fault = Fault::reply({9, 0x82, 1, 0, 1, 0, 6, 0, 0, 0, 0xA1, 0x23, 0x45})}
        << ByIdentity << 0x99;
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

void TestProbes::products_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<bool>("sibling"); // left to the WS and BY families
    for (const int product : {0x000A, 0x0051, 0x5150, 0x5153, 0x22B3, 0x22B6})
        QTest::addRow("%04X", unsigned(product)) << product << false;
    for (const int product : {0x000B, 0x0050, 0x5151, 0x5152, 0x22B4, 0x22B5})
        QTest::addRow("%04X", unsigned(product)) << product << true;
}

void TestProbes::products()
{
    QFETCH(int, product);
    QFETCH(bool, sibling);
    Scanner scanner;
    const DevicePtr cloud = scanner.bus.plug("wired-500", {.productId = quint16(product)});
    const DevicePtr ws = scanner.bus.plug("ws", {.productId = quint16(product)});
    QVERIFY(scanner.scan());
    QCOMPARE(cloud->frameCount() == 0, sibling);
    QCOMPARE(ws->frameCount() == 0, !sibling);
}

void TestProbes::vendors_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("cloudFrames"); // 0x25A7
    QTest::addColumn<int>("wsFrames");    // 0x320F
    QTest::newRow("none") << QByteArray() << 1 << 1;
    QTest::newRow("listed twice") << QByteArray("VIDset0=\"0x25A7, 9639\"") << 2 << 1;
    QTest::newRow("left out") << QByteArray("VIDset0=\"0x3151\"") << 0 << 1;
    QTest::newRow("the second list has no effect") << QByteArray("VIDset1=\"0x25A7\"") << 1 << 1;
}

void TestProbes::vendors()
{
    QFETCH(QByteArray, settings);
    Scanner scanner;
    scanner.config.write("enumsetting.ini", settings);
    const DevicePtr cloud = scanner.bus.plug("cloud");
    const DevicePtr ws = scanner.bus.plug("ws", {.vendorId = 0x320F});
    QVERIFY(scanner.scan());
    QTEST(int(cloud->frameCount()), "cloudFrames");
    QTEST(int(ws->frameCount()), "wsFrames");
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
