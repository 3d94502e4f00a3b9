#include "FrameDeviceShow.h"
#include "VirtualBus.h"

#include <QDir>
#include <QLabel>
#include <QPixmapCache>
#include <QSignalSpy>
#include <QTest>

using virtualhid::Fault;
using virtualhid::VirtualBus;

/// The cards of the hub: pictures, names and charge of whatever device they are given.
class TestCards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { VirtualBus::instance().reset(); }

    void pictureFitsTheCard();
    void nameChoosesThePicture_data();
    void nameChoosesThePicture();
    void chargeIsShown_data();
    void chargeIsShown();
    void cloudRoundsEndWhenTheKeyboardIsThere();
    void roundsOfOtherDevices();

private:
    QLabel *label(const char *name) const { return card->findChild<QLabel *>(QLatin1String(name)); }
    QString imagePath(const QString &file) const { return images.filePath(file); }
    virtualhid::DevicePtr plug(const char *model, int battery, sim::Channel channel);

    QWidget window;
    QDir images{QCoreApplication::applicationDirPath() + QStringLiteral("/images")};
    FrameDeviceShow *card = nullptr;
    DeviceEnumInfo device;
};

static void writePicture(const QString &path, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    QVERIFY2(image.save(path), qPrintable(path));
}

void TestCards::initTestCase()
{
    QVERIFY(images.removeRecursively() && images.mkpath(QStringLiteral("deeper")));
    for (const char *file :
         {"default0", "default1", "default3", "Orbe-7090", "Two Words", "Two-Words", "deeper/hidden"})
        writePicture(imagePath(QLatin1String(file) + QStringLiteral(".png")), {500, 200});
    writePicture(images.filePath(QStringLiteral("../outside.png")), {500, 200});
    window.resize(1200, 500);
}

void TestCards::init()
{
    QPixmapCache::clear(); // it tells files apart by second and size, and tests write many in a second
    delete card;           // the pool makes a new one
    card = FrameDeviceShow::acquire(0, &window);
    device = {};
    device.deviceType = KeyboardType;
    device.displayName = QStringLiteral("Orbe 7090");
}

/// A wireless device of the model, which the card's record points to.
virtualhid::DevicePtr TestCards::plug(const char *model, int battery, sim::Channel channel)
{
    auto plugged = VirtualBus::instance().plug(model, {.battery = sim::Byte(battery)});
    device.connectionType = ReceiverConnection;
    device.devicePath = QString::fromStdString(plugged->path(channel));
    return plugged;
}

void TestCards::pictureFitsTheCard()
{
    const auto fits = [this](int type, QSize picture, QSize shown, int cardWidth) {
        const QString path = imagePath(QStringLiteral("fitted.png"));
        QPixmapCache::clear();
        writePicture(path, picture);
        card->setImage(path, type);
        QFile::remove(path);
        return label("labelImage")->size() == shown && card->width() == cardWidth;
    };
    QVERIFY2(fits(KeyboardType, {1000, 400}, {525, 210}, 605), "the full height");
    QVERIFY2(fits(KeyboardType, {1860, 201}, {930, 100}, 1010), "the full width");
    QVERIFY2(fits(MouseType, {420, 600}, {147, 210}, 290), "the smallest card");
    QVERIFY2(fits(KeyboardType, {4000, 1}, {930, 0}, 1010), "a line");
    QVERIFY2(fits(KeyboardType, {1, 4000}, {0, 210}, 290), "an upright line");
}

void TestCards::nameChoosesThePicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    const auto row = [](const QString &name, const char *file) {
        QTest::newRow(qPrintable(name.left(30))) << name << QString(QLatin1String(file));
    };
    row(QStringLiteral("Orbe 7090"), "Orbe-7090.png");
    row(QStringLiteral("Two Words"), "Two Words.png");
    row(QStringLiteral("磁轴键盘 七零九零"), "default0.png");
    row(QStringLiteral("<b>Orbe</b> & <img src='x'>"), "default0.png");
    row(QStringLiteral("../outside"), "default0.png");
    row(images.absoluteFilePath(QStringLiteral("../outside")), "default0.png");
    row(QString(10000, u'W'), "default0.png");
    row(QStringLiteral("Orbe-7090.png") + QChar(0), "default0.png");
}

void TestCards::nameChoosesThePicture()
{
    QFETCH(QString, name);
    QFETCH(QString, file);
    device.displayName = name;
    card->setDevice(&device);
    QVERIFY(!label("labelImage")->pixmap(Qt::ReturnByValue).isNull());
    const QLabel *shown = label("labelDeviceName");
    QVERIFY(name.startsWith(shown->text().chopped(1))); // a long one ends with dots
    QVERIFY(!shown->text().isEmpty());
    QCOMPARE(shown->textFormat(), Qt::PlainText);
    QVERIFY(shown->sizeHint().width() + 2 * 25 < card->width());
    QCOMPARE(card->accessibleName(), name);

    QSignalSpy clicked(card, &FrameDeviceShow::onClicked);
    QTest::keyPress(card, Qt::Key_Return);
    QVERIFY(clicked.wait());
    QCOMPARE(clicked[0][1].toString(), imagePath(file));
}

void TestCards::chargeIsShown_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("charge");
    QTest::addColumn<QByteArray>("picture");
    QTest::newRow("21 percent") << int(CloudFamily) << 21 << QByteArray("batt-25.png");
    QTest::newRow("80 percent") << int(CloudFamily) << 80 << QByteArray("batt-75.png");
    QTest::newRow("WS, 41 percent") << int(WsFamily) << 41 << QByteArray("batt-50.png");
    QTest::newRow("WS, nonsense to the end") << int(WsFamily) << 255 << QByteArray("batt-full.png");
    QTest::newRow("BY has no query") << int(ByFamily) << 0 << QByteArray("batt-low.png");
}

void TestCards::chargeIsShown()
{
    QFETCH(int, family);
    QFETCH(int, charge);
    QFETCH(QByteArray, picture);
    const bool ws = family == WsFamily;
    const auto keyboard = plug(ws ? "ws" : "receiver", charge, ws ? sim::Channel::Ws : sim::Channel::Command);
    device.family = quint8(family);
    card->setDevice(&device);
    QVERIFY(!label("labelPower")->isHidden());
    QSignalSpy reported(card, &FrameDeviceShow::onReport);
    card->report();
    QCOMPARE(reported.count(), 1);
    QCOMPARE(reported[0][0].value<DeviceEnumInfo *>(), &device);
    QCOMPARE(reported[0][1].toString(), QStringLiteral(":/images/dev/") + QLatin1String(picture));
    QCOMPARE(reported[0][3].toString(), QStringLiteral("剩余电量: %1%").arg(charge));
    QCOMPARE(label("labelPower")->toolTip(), reported[0][3].toString());
    QCOMPARE(keyboard->frameCount(), family > WsFamily ? 0u : charge > 100 ? 5u : 1u);
    QCOMPARE(keyboard->openHandles(), 0);
}

void TestCards::cloudRoundsEndWhenTheKeyboardIsThere()
{
    const auto receiver = plug("receiver", 64, sim::Channel::Command);
    card->setDevice(&device);
    for (const auto &[offlinePolls, rounds] : {std::pair{0u, 1u}, std::pair{3u, 4u}, std::pair{99u, 5u}}) {
        receiver->setReceiver({.pollsUntilOnline = offlinePolls});
        receiver->clearLog();
        card->report();
        const auto frames = receiver->frames();
        QCOMPARE(frames.size(), size_t(rounds));
        for (size_t i = 1; i < frames.size(); ++i)
            QVERIFY(frames[i].when - frames[i - 1].when >= std::chrono::milliseconds(100));
        const QString charge = offlinePolls < 5 ? QStringLiteral(": 64%") : QStringLiteral(": 0%");
        QVERIFY(label("labelPower")->toolTip().endsWith(charge));
    }
    sim::Bytes request(65);
    request[1] = 0xF7;
    request[8] = 0x08;
    QVERIFY(receiver->frames().front().report == request);
}

void TestCards::roundsOfOtherDevices()
{
    const auto keyboard = plug("ws", 33, sim::Channel::Ws);
    device.family = WsFamily;
    sim::Bytes unsure(16);
    unsure[0] = 4;
    unsure[8] = 101;
    keyboard->addFault({.times = 2, .fault = Fault::reply(unsure)});
    card->setDevice(&device);
    card->report();
    QCOMPARE(keyboard->frameCount(), 3u);
    for (const auto &frame : keyboard->frames())
        QVERIFY((frame.report == sim::Bytes{0x04, 0x00, 0x00, 0x1A, 0x06, 0x00, 0x00, 0x00}));
    const QString before = label("labelPower")->toolTip();
    QVERIFY(before.endsWith(QStringLiteral(": 33%")));

    QSignalSpy reported(card, &FrameDeviceShow::onReport);
    keyboard->failOpens(1);
    card->report();
    QCOMPARE(label("labelPower")->toolTip(), before);
    device.connectionType = UsbConnection; // a cable needs no charge
    card->setDevice(&device);
    card->report();
    QVERIFY(label("labelPower")->isHidden());
    QCOMPARE(keyboard->frameCount(), 3u);
    QCOMPARE(reported.count(), 0);
}

QTEST_MAIN(TestCards)
#include "tst_cards.moc"
