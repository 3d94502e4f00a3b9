#include "ConnectedKeyboard.h"

#include <numeric>
#include <QTest>

using virtualhid::Fault;

namespace {

constexpr int Slots = sim::Pictures::Slots;
constexpr qsizetype ReadBytes = 384;

/// A colour map with no two neighbours alike, different for each seed.
QByteArray colourMap(qsizetype length, int seed)
{
    QByteArray map(length, '\0');
    std::iota(map.begin(), map.end(), char(seed * 41));
    return map;
}

} // namespace

/// Pictures on their way to the keyboard and back; most tests share a keyboard on the cable.
class TestPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init();
    void cleanup();

    void written_data();
    void written();
    void read();
    void lostAnswer_data();
    void lostAnswer();
    void oddAnswersArriveAsTheyCame_data();
    void oddAnswersArriveAsTheyCame();
    void overlappingReadsEndWithTheLast();
    void nothingWhileReading();
    void overTheAir();

private:
    QByteArray held(int slot) const { return bytesOf(shared->keyboard->state().pictures.bytes(slot)); }
    void hold(int slot, const QByteArray &map);

    std::unique_ptr<ConnectedKeyboard> shared;
};

void TestPictures::initTestCase()
{
    shared = std::make_unique<ConnectedKeyboard>("wired-2ff");
    QVERIFY(shared->readAll());
}

void TestPictures::init()
{
    shared->settle();
    shared->keyboard->clearLog();
}

void TestPictures::cleanup()
{
    QCOMPARE(shared->keyboard->frameFaults(), sim::FrameFaults{});
    shared->keyboard->clearFaults();
}

void TestPictures::hold(int slot, const QByteArray &map)
{
    shared->keyboard->edit([slot, &map](sim::KeyboardState &state) {
        for (int position = 0; position < int(ReadBytes) / 3; ++position) {
            sim::Colour colour{};
            std::copy_n(map.begin() + position * 3, colour.size(), colour.begin());
            state.pictures.setColour(slot, position, colour);
        }
    });
}

void TestPictures::written_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("length");
    QTest::newRow("as painted") << 2 << 500;
    QTest::newRow("exactly what is sent") << 0 << 392;
    QTest::newRow("as read") << 4 << 384;
    QTest::newRow("ends within a page") << 1 << 100;
    QTest::newRow("empty") << 3 << 0;
}

void TestPictures::written()
{
    QFETCH(int, slot);
    QFETCH(int, length);
    const QByteArray map = colourMap(length, slot + 1);
    const QByteArray lastRead = shared->connection.deviceCache().userPicture;
    shared->connection.DoSetLedEffect(22, 0);
    shared->connection.DoWriteUserPic(quint8(slot), map);
    QVERIFY(!shared->connection.isMusicOn());
    QVERIFY(shared->waitForFrames(9));
    shared->settle();

    QCOMPARE(shared->commands(1), QByteArray("07 0C 0C 0C 0C 0C 0C 0C"));
    const QByteArray slotText = QByteArray::number(slot, 16).rightJustified(2, '0');
    for (int page = 0; page < 7; ++page) {
        const QByteArray pageText = QByteArray::number(page);
        const QByteArray head =
            "0C " + slotText + " FF 0" + pageText + (page == 6 ? " 38 01 00" : " 38 00 00");
        QCOMPARE(shared->frame(size_t(page) + 2, 7), head);
    }
    QCOMPARE(held(slot), map.first(qMin(length, 392)) + QByteArray(qMax(0, 392 - length), '\0'));
    const sim::LedParams light = shared->keyboard->light().keys;
    QCOMPARE(light.effect, sim::PictureEffect);
    QCOMPARE(light.option, sim::Byte(slot * 16));
    QCOMPARE(shared->connection.deviceCache().userPicture, lastRead);
}

void TestPictures::read()
{
    const sim::LedParams light = shared->keyboard->light().keys;
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    for (int slot = 0; slot < Slots; ++slot) {
        hold(slot, colourMap(ReadBytes, slot + 7));
        shared->connection.DoReadUserPic(quint8(slot));
        QVERIFY(pictures.wait());
        shared->settle();
        QCOMPARE(pictures.takeFirst().at(0).toByteArray(), colourMap(ReadBytes, slot + 7));
        QVERIFY(pictures.isEmpty());
    }
    QCOMPARE(shared->frame(9), QByteArray("8C 01 FF 03 00 00 00 70"));
    QCOMPARE(shared->keyboard->light().keys, light);
}

void TestPictures::lostAnswer_data()
{
    QTest::addColumn<int>("lost");
    for (int page = 0; page < 6; ++page)
        QTest::addRow("page %d", page) << page;
}

void TestPictures::lostAnswer()
{
    QFETCH(int, lost);
    hold(1, colourMap(ReadBytes, 3));
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->keyboard->faultAtFrame(size_t(lost), Fault::lost());
    shared->connection.DoReadUserPic(1);
    QVERIFY(shared->waitForFrames(size_t(lost) + 1));
    shared->settle();
    QVERIFY(pictures.isEmpty());

    // What waited goes first; the picture that it ends is told to lack a page.
    shared->connection.DoReadUserPic(1);
    if (lost < 5) {
        QVERIFY(pictures.wait());
        pictures.clear();
        QVERIFY(shared->connection.deviceCache().pictureLacksPages);
    }
    QVERIFY(pictures.wait());
    QCOMPARE(pictures.takeFirst().at(0).toByteArray(), colourMap(ReadBytes, 3));
    QVERIFY(!shared->connection.deviceCache().pictureLacksPages);
}

void TestPictures::oddAnswersArriveAsTheyCame_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("expected");
    QTest::newRow("short") << 10 << 5 * 64 + 10;
    QTest::newRow("one byte") << 1 << 5 * 64 + 1;
}

void TestPictures::oddAnswersArriveAsTheyCame()
{
    QFETCH(int, length);
    QFETCH(int, expected);
    const QByteArray map = colourMap(ReadBytes, 5);
    hold(0, map);
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->keyboard->faultAtFrame(2, Fault::shortReply(size_t(length)));
    shared->connection.DoReadUserPic(0);
    QVERIFY(pictures.wait());
    const QByteArray came = pictures.takeFirst().at(0).toByteArray();
    QCOMPARE(came.size(), expected);
    QCOMPARE(came, map.first(128 + length) + map.mid(192));
    QVERIFY(!shared->connection.deviceCache().pictureLacksPages);
}

void TestPictures::overlappingReadsEndWithTheLast()
{
    hold(0, colourMap(ReadBytes, 1));
    hold(1, colourMap(ReadBytes, 2));
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    shared->connection.DoReadUserPic(0);
    QVERIFY(shared->waitForFrames(3));
    {
        const DialogDeviceConnect::WriteGroup group(shared->connection);
        shared->connection.DoReadUserPic(1);
    }
    shared->settle();
    QCOMPARE(pictures.last().at(0).toByteArray(), colourMap(ReadBytes, 2));
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

void TestPictures::overTheAir()
{
    shared.reset();
    shared = std::make_unique<ConnectedKeyboard>("bluetooth");
    QVERIFY(shared->readAll());
    QSignalSpy pictures(&shared->connection, &DialogDeviceConnect::onGetPictrue);
    const QByteArray map = colourMap(500, 4);
    {
        const DialogDeviceConnect::WriteGroup group(shared->connection);
        shared->connection.DoWriteUserPic(3, map);
        shared->connection.DoReadUserPic(3);
    }
    QVERIFY(pictures.wait());
    QCOMPARE(held(3), map.first(392));
    QCOMPARE(pictures.takeFirst().at(0).toByteArray(), map.first(ReadBytes));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
