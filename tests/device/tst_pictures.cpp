#include "ConnectedKeyboard.h"

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

} // namespace

/// Pictures on their way to the keyboard and back, on one keyboard that is shared.
class TestPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();

    void writtenAndRead_data();
    void writtenAndRead();
    void lostAnswer_data();
    void lostAnswer();
    void shortAnswerArrivesAsItCame();
    void overlappingReadsEndWithTheLast();
    void nothingWhileReading();

private:
    std::unique_ptr<ConnectedKeyboard> shared;
};

void TestPictures::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
    for (const quint8 slot : {0, 1}) {
        shared->connection.DoWriteUserPic(slot, colourMap(ReadBytes, slot));
        shared->settle();
    }
}

void TestPictures::init()
{
    shared->settle();
    shared->keyboard->clearLog();
}

void TestPictures::writtenAndRead_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("length");
    QTest::newRow("as painted") << 2 << 500;
    QTest::newRow("exactly what is sent") << 3 << 392;
    QTest::newRow("as read") << 4 << ReadBytes;
    QTest::newRow("ends within a page") << 2 << 100;
}

void TestPictures::writtenAndRead()
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

void TestPictures::lostAnswer_data()
{
    QTest::addColumn<int>("lost");
    QTest::newRow("first page") << 0;
    QTest::newRow("page in the middle") << 2;
}

void TestPictures::lostAnswer()
{
    QFETCH(int, lost);
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->keyboard->faultAtFrame(size_t(lost), Fault::lost());
    shared->connection.DoReadUserPic(1);
    shared->settle();
    QVERIFY(pictures.isEmpty());

    // What waited goes first; the picture that it ends is told to lack a page.
    shared->connection.DoReadUserPic(1);
    QVERIFY(pictures.wait());
    QVERIFY(shared->connection.deviceCache().pictureLacksPages);
    QVERIFY(pictures.wait());
    QVERIFY(!shared->connection.deviceCache().pictureLacksPages);
    QCOMPARE(pictures.last().at(0).toByteArray(), colourMap(ReadBytes, 1));
}

void TestPictures::shortAnswerArrivesAsItCame()
{
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->keyboard->faultAtFrame(2, Fault::shortReply(10));
    shared->connection.DoReadUserPic(0);
    QVERIFY(pictures.wait());
    const QByteArray map = colourMap(ReadBytes, 0);
    QCOMPARE(pictures.last().at(0).toByteArray(), map.first(138) + map.mid(192));
}

void TestPictures::overlappingReadsEndWithTheLast()
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

void TestPictures::nothingWhileReading()
{
    shared->readDone.clear();
    shared->connection.DoReadAll();
    shared->connection.DoWriteUserPic(0, colourMap(500, 9));
    shared->connection.DoReadUserPic(0);
    QVERIFY(shared->readDone.wait(20000));
    QVERIFY(!shared->commands().contains("0C"));
    QVERIFY(!shared->commands().contains("8C"));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
