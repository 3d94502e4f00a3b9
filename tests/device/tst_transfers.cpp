#include "ConnectedKeyboard.h"
#include "KeyMatrix.h"

#include <numeric>
#include <QTest>

using virtualhid::Fault;

namespace {

constexpr int ReadBytes = 384;

/// A colour map with no two neighbours alike, different for each seed.
QByteArray colourMap(qsizetype length, int seed)
{
    QByteArray map(length, '\0');
    std::iota(map.begin(), map.end(), char(seed * 41));
    return map;
}

constexpr quint8 KeyA = 0x04;

QByteArray stream(qsizetype length)
{
    QByteArray bytes(length, '\0');
    for (qsizetype i = 0; i < length; ++i)
        bytes[i] = char(i + 1);
    return bytes;
}

} // namespace

/// Pictures and macros on their way to the keyboard and back, on one keyboard that is shared.
class TestTransfers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();
    void writtenAndRead_data();
    void writtenAndRead();
    void overlappingReadsEndWithTheLast();
    void arrives_data();
    void arrives();
    void waitsForARead();
    void keyboardVanishes();

private:
    std::unique_ptr<ConnectedKeyboard> shared;
};

void TestTransfers::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
    for (const quint8 slot : {0, 1}) {
        shared->connection.DoWriteUserPic(slot, colourMap(ReadBytes, slot));
        shared->settle();
    }
}

void TestTransfers::init()
{
    shared->settle();
    shared->keyboard->clearLog();
}

void TestTransfers::writtenAndRead_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("length");
    QTest::newRow("as painted") << 2 << 500;
    QTest::newRow("exactly what is sent") << 3 << 392;
    QTest::newRow("as read") << 4 << ReadBytes;
    QTest::newRow("ends within a page") << 2 << 100;
}

void TestTransfers::writtenAndRead()
{
    QFETCH(int, slot);
    QFETCH(int, length);
    const QByteArray map = colourMap(length, slot + 1);
    shared->connection.DoSetLedEffect(22, 0);
    shared->connection.DoWriteUserPic(quint8(slot), map);
    QVERIFY(!shared->connection.isMusicOn());
    shared->settle();
    QCOMPARE(shared->commands(1), QByteArray("07 0C 0C 0C 0C 0C 0C 0C"));
    for (int page = 0; page < 7; ++page) {
        const QString head = QString::asprintf("0C %02X FF %02X 38 %02X 00", slot, page, page == 6);
        QCOMPARE(shared->frame(size_t(page) + 2, 7), head.toLatin1());
    }
    const QByteArray held = (map + QByteArray(392, '\0')).first(392);
    QCOMPARE(bytesOf(shared->keyboard->state().pictures.bytes(slot)), held);
    const sim::LedParams light = shared->keyboard->light().keys;
    QCOMPARE(light.effect, sim::PictureEffect);
    QCOMPARE(light.option, sim::Byte(slot * 16));

    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->connection.DoReadUserPic(quint8(slot));
    QVERIFY(pictures.wait());
    QCOMPARE(pictures.takeFirst().at(0).toByteArray(), held.first(ReadBytes));
    QCOMPARE(shared->keyboard->light().keys, light);
    QCOMPARE(shared->keyboard->frameFaults(), sim::FrameFaults{});
}

void TestTransfers::overlappingReadsEndWithTheLast()
{
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->connection.DoReadUserPic(0);
    QVERIFY(shared->waitForFrames(3));
    {
        const DialogDeviceConnect::WriteGroup group(shared->connection);
        shared->connection.DoReadUserPic(1);
    }
    shared->settle();
    QCOMPARE(pictures.last().at(0).toByteArray(), colourMap(ReadBytes, 1));
}

void TestTransfers::arrives_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("pages");
    QTest::newRow("empty macro") << 0 << 1;
    QTest::newRow("one page to the last byte") << 54 << 1;
    QTest::newRow("one byte more") << 55 << 2;
    QTest::newRow("all of the keyboard's room") << 254 << 5;
}

void TestTransfers::arrives()
{
    QFETCH(int, length);
    QFETCH(int, pages);
    ConnectedKeyboard &device = *shared;
    device.connection.DoSetMacro(KeyA, 300, 2, 49, stream(length));
    QVERIFY(device.waitForFrames(size_t(pages) + 1));
    device.settle();

    QCOMPARE(device.commands(), QByteArray("0B ").repeated(pages) + "0A");
    const sim::KeyboardState state = device.keyboard->state();
    const sim::Macro *macro = state.macros.find(49);
    QVERIFY(macro && macro->complete);
    QCOMPARE(int(macro->repeat()), 300);
    QCOMPARE(int(macro->blob.size()), pages * 56);
    QCOMPARE(bytesOf(macro->events()).first(length), stream(length));
    QCOMPARE(bytesOf(macro->events()).mid(length).count('\0'), pages * 56 - 2 - length);
    const quint8 position = keys::PositionOfCode(KeyA);
    KeyEntry entry;
    device.connection.GetKeyEntry(entry, position, 0);
    QCOMPARE(bytesOf(entry.bytes).toHex(), QByteArray("09023100"));
    QCOMPARE(bytesOf(state.keys.key(state.profile, 0, position)), bytesOf(entry.bytes));
    QCOMPARE(device.keyboard->frameFaults(), sim::FrameFaults{});
}

void TestTransfers::keyboardVanishes()
{
    shared.reset();
    ConnectedKeyboard device("wired-2ff");
    QVERIFY(device.readAll());
    device.settle();
    device.keyboard->clearLog();
    device.keyboard->faultAtFrame(3, virtualhid::Fault::unplugged());
    device.connection.DoSetMacro(KeyA, 1, 0, 7, stream(5000));
    QVERIFY(device.waitForFrames(3));
    device.settle();
    QVERIFY(device.keyboard->frameCount() <= 4);

    // The next keyboard gets its macro whole, without rests of the one before it.
    device.readDone.clear();
    device.keyboard = virtualhid::VirtualBus::instance().plug("wired-2ff");
    device.connection.deviceChanged();
    QTRY_VERIFY_WITH_TIMEOUT(device.connection.isConnected() && !device.connection.isReadingAll() &&
                                 !device.readDone.isEmpty(),
                             20000);
    device.settle();
    device.keyboard->clearLog();
    device.connection.DoSetMacro(KeyA, 1, 0, 7, stream(200));
    QVERIFY(device.waitForFrames(5));
    device.settle();
    QCOMPARE(device.commands(), QByteArray("0B 0B 0B 0B 0A"));
    QVERIFY(device.keyboard->state().macros.find(7)->complete);
}

void TestTransfers::waitsForARead()
{
    ConnectedKeyboard &device = *shared;
    device.readDone.clear();
    device.connection.DoReadAll();
    device.connection.DoSetMacro(KeyA, 1, 0, 1, stream(100));
    QVERIFY(device.readDone.wait(20000));
    device.settle();
    QVERIFY(device.keyboard->state().macros.find(1)->complete);
    QVERIFY(!device.commands().contains("0A")); // the key keeps its function
    QCOMPARE(device.commands().split(' ').count("0B"), 2);
}

QTEST_MAIN(TestTransfers)
#include "tst_transfers.moc"
