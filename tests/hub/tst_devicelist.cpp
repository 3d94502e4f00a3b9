#include "DeviceList.h"

#include <functional>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr qint64 Now = 1'700'000'000;

DeviceSighting sighting(const char *path, quint64 id = 0x0AF7, qint64 seenAt = Now)
{
    return {.vendorId = 0x3151,
            .productId = 0x502F,
            .deviceId = id,
            .deviceType = 0xFFFF,
            .connection = 0x102,
            .family = CloudFamily,
            .seenAt = seenAt,
            .displayName = QStringLiteral("Board"),
            .vendorPath = QStringLiteral("v"),
            .devicePath = QLatin1String(path)};
}

ScanResult pass(std::vector<DeviceSighting> sightings, qint64 finishedAt = Now)
{
    ScanResult result;
    result.sightings = std::move(sightings);
    result.finishedAt = finishedAt;
    for (const DeviceSighting &device : result.sightings)
        result.seenPaths.insert(device.devicePath);
    return result;
}

} // namespace

/// What becomes of the records when passes bring their sightings.
class TestDeviceList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knownDeviceKeepsAllButItsId();
    void pathOfAnother_data();
    void pathOfAnother();
    void ageing_data();
    void ageing();
    void clearedRecordsStayUsable();
};

void TestDeviceList::knownDeviceKeepsAllButItsId()
{
    DeviceList list;
    list.applyPass(pass({sighting("a")}));
    list.applyPass(pass({}, Now + 30));
    DeviceSighting again = sighting("a", 0x0EC3, Now + 60);
    again.displayName = QStringLiteral("Other");
    again.deviceType = MouseType;
    const DeviceEnumInfo *device = list.devices().constFirst();
    QVERIFY(!device->online);
    list.applyPass(pass({again}, Now + 60));

    QCOMPARE(list.devices(), QList<DeviceEnumInfo *>{const_cast<DeviceEnumInfo *>(device)});
    QVERIFY(device->online);
    QCOMPARE(device->deviceId, quint64(0x0EC3));
    QCOMPARE(device->lastSeen, quint32(Now + 60));
    QCOMPARE(device->displayName, QStringLiteral("Board"));
    QCOMPARE(device->deviceType, 255);
}

void TestDeviceList::pathOfAnother_data()
{
    QTest::addColumn<DeviceSighting>("other");
    const auto row = [](const char *name, const std::function<void(DeviceSighting &)> &change) {
        DeviceSighting other = sighting("a", 0x0EC3, Now + 1);
        other.displayName = QStringLiteral("Other");
        change(other);
        QTest::newRow(name) << other;
    };
    row("product", [](DeviceSighting &other) { other.productId = 0x5030; });
    row("family", [](DeviceSighting &other) { other.family = JmFamily; });
}

/// Another keyboard at the path of one that is gone, which a page still shows.
void TestDeviceList::pathOfAnother()
{
    QFETCH(DeviceSighting, other);
    DeviceList list;
    list.applyPass(pass({sighting("a"), sighting("b")}));
    const DeviceEnumInfo *shown = list.devices().constFirst();
    list.setCurrentDevice(shown);
    QSignalSpy lost(&list, &DeviceList::currentDeviceLost);
    list.applyPass(pass({other, sighting("b")}, Now + 1));

    QCOMPARE(lost.count(), 1);
    QCOMPARE(list.devices().size(), 2);
    const DeviceEnumInfo &device = *list.devices().constLast();
    QCOMPARE(device.displayName, QStringLiteral("Other"));
    QCOMPARE(device.productId, other.productId);
    QCOMPARE(device.connectionType, quint8(other.connection));
    QVERIFY(device.online);
    QCOMPARE(shown->displayName, QStringLiteral("Board"));
    QCOMPARE(shown->vendorId, 0x3151);
}

void TestDeviceList::ageing_data()
{
    QTest::addColumn<bool>("seen"); // its path was met, though it gave no id
    QTest::addColumn<int>("seconds");
    QTest::addColumn<bool>("online");
    QTest::newRow("gone at once") << false << 0 << false;
    QTest::newRow("silent for a minute") << true << 60 << true;
    QTest::newRow("silent for longer") << true << 61 << false;
    QTest::newRow("clock set back") << true << -100000 << true;
}

void TestDeviceList::ageing()
{
    QFETCH(bool, seen);
    QFETCH(int, seconds);
    DeviceList list;
    list.applyPass(pass({sighting("a")}));

    ScanResult later = pass({}, Now + seconds);
    if (seen)
        later.seenPaths.insert(QStringLiteral("a"));
    list.applyPass(later);
    QTEST(list.devices().constFirst()->online, "online");
}

void TestDeviceList::clearedRecordsStayUsable()
{
    DeviceList list;
    list.applyPass(pass({sighting("a"), sighting("b")}));
    const DeviceEnumInfo *held = list.devices().constFirst();
    list.setCurrentDevice(held);
    list.clear();
    QVERIFY(list.devices().isEmpty());
    QCOMPARE(list.onlineCount(), 0);

    QSignalSpy lost(&list, &DeviceList::currentDeviceLost);
    list.applyPass(pass({sighting("a", 0x0EC3)}));
    QCOMPARE(list.devices().size(), 1);
    QVERIFY(list.devices().constFirst() != held);
    QCOMPARE(held->deviceId, quint64(0x0AF7));
    list.applyPass(pass({}));
    QCOMPARE(lost.count(), 0); // the page's record is no longer in the list

    // Whoever goes back to the cards may do anything to the list.
    connect(&list, &DeviceList::currentDeviceLost, &list, &DeviceList::clear);
    list.applyPass(pass({sighting("a"), sighting("b")}));
    list.setCurrentDevice(list.devices().constFirst());
    list.applyPass(pass({}));
    QCOMPARE(lost.count(), 1);
}

QTEST_GUILESS_MAIN(TestDeviceList)
#include "tst_devicelist.moc"
