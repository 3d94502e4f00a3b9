#include "FrameDeviceShow.h"
#include "VirtualBus.h"

#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QPixmapCache>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

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

    void pictureFitsTheCard_data();
    void pictureFitsTheCard();
    void pictureIsFoundByName_data();
    void pictureIsFoundByName();
    void nameIsShownAsItStands_data();
    void nameIsShownAsItStands();
    void chargeIsShown_data();
    void chargeIsShown();
    void cloudRoundsEndWhenTheKeyboardIsThere_data();
    void cloudRoundsEndWhenTheKeyboardIsThere();
    void wsRoundsEndAtASoundValue();
    void nothingIsShownForADeviceThatCantBeAsked();
    void pooledCardsAreReused();
    void pointerAndPressColourTheCard();
    void pressOpensTheDevice_data();
    void pressOpensTheDevice();
    void wheelScrollsSideways();
    void everyPictureLoads();

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

void TestCards::pictureFitsTheCard_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<int>("cardWidth");
    QTest::newRow("a keyboard reaches the full height") << 0 << QSize(1000, 400) << QSize(525, 210) << 605;
    QTest::newRow("a wide one the full width") << 0 << QSize(1860, 201) << QSize(930, 100) << 1010;
    QTest::newRow("fractions are cut off") << 0 << QSize(997, 333) << QSize(628, 210) << 708;
    QTest::newRow("a mouse has the smallest card") << 1 << QSize(420, 600) << QSize(147, 210) << 290;
    QTest::newRow("a wide mouse its own width") << 1 << QSize(480, 240) << QSize(240, 120) << 320;
    QTest::newRow("a hit box keeps the card's width") << 3 << QSize(1080, 610) << QSize(371, 210) << 451;
    QTest::newRow("a line") << 0 << QSize(4000, 1) << QSize(930, 0) << 1010;
    QTest::newRow("an upright line") << 0 << QSize(1, 4000) << QSize(0, 210) << 290;
}

void TestCards::pictureFitsTheCard()
{
    QFETCH(int, type);
    QFETCH(QSize, picture);
    const QString path = imagePath(QStringLiteral("fitted.png"));
    writePicture(path, picture);
    card->setImage(path, type);
    QTEST(label("labelImage")->size(), "shown");
    QTEST(card->width(), "cardWidth");
    QFile::remove(path);
}

void TestCards::pictureIsFoundByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *title, const QString &name, int type, const char *file) {
        QTest::newRow(title) << name << type << QString(QLatin1String(file));
    };
    row("blanks may be dashes", QStringLiteral("Orbe 7090"), 0, "Orbe-7090.png");
    row("blanks come first", QStringLiteral("Two Words"), 0, "Two Words.png");
    row("an unknown keyboard", QStringLiteral("Orbe 1"), 0, "default0.png");
    row("an unknown hit box", QStringLiteral("Orbe 1"), 3, "default3.png");
    row("a kind without a default", QStringLiteral("Orbe 1"), 77, "default77.png");
    row("a path upwards", QStringLiteral("../outside"), 0, "default0.png");
    row("a path downwards", QStringLiteral("deeper/hidden"), 0, "default0.png");
    row("a whole path", images.absoluteFilePath(QStringLiteral("../outside")), 0, "default0.png");
    row("10,000 characters", QString(10000, u'x'), 0, "default0.png");
    row("a null character", QStringLiteral("Orbe-7090.png") + QChar(0), 0, "default0.png");
}

void TestCards::pictureIsFoundByName()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(QString, file);
    device.displayName = name;
    device.deviceType = quint8(type);
    card->setDevice(&device);
    QSignalSpy clicked(card, &FrameDeviceShow::onClicked);
    QTest::mouseClick(card, Qt::LeftButton);
    QVERIFY(clicked.wait());
    QCOMPARE(clicked[0][1].toString(), imagePath(file));
    QCOMPARE(label("labelImage")->pixmap(Qt::ReturnByValue).isNull(), !images.exists(file));
}

void TestCards::nameIsShownAsItStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("whole");
    QTest::newRow("English") << QStringLiteral("Orbe 7090") << true;
    QTest::newRow("Chinese") << QStringLiteral("磁轴键盘 七零九零") << true;
    QTest::newRow("markup") << QStringLiteral("<b>Orbe</b> & <img src='x'>") << true;
    QTest::newRow("10,000 characters") << QString(10000, u'W') << false;
}

void TestCards::nameIsShownAsItStands()
{
    QFETCH(QString, name);
    device.displayName = name;
    card->setDevice(&device);
    const QLabel *shown = label("labelDeviceName");
    QTEST(shown->text() == name, "whole");
    QCOMPARE(shown->textFormat(), Qt::PlainText);
    QVERIFY(shown->sizeHint().width() + 2 * 25 < card->width());
    QCOMPARE(card->accessibleName(), name);
    QVERIFY(!shown->toolTip().contains(QStringLiteral("<b>")));
}

void TestCards::chargeIsShown_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("charge");
    QTest::addColumn<QString>("picture");
    const auto row = [](const char *title, DeviceFamilies family, int charge, const char *picture) {
        QTest::newRow(title) << int(family) << charge
                             << QStringLiteral(":/images/dev/") + QLatin1String(picture);
    };
    row("20 percent", CloudFamily, 20, "batt-low.png");
    row("21 percent", CloudFamily, 21, "batt-25.png");
    row("40 percent", CloudFamily, 40, "batt-25.png");
    row("61 percent", CloudFamily, 61, "batt-75.png");
    row("80 percent", CloudFamily, 80, "batt-75.png");
    row("81 percent", CloudFamily, 81, "batt-full.png");
    row("WS, 41 percent", WsFamily, 41, "batt-50.png");
    row("WS, nonsense to the end", WsFamily, 255, "batt-full.png");
    row("BY has no query", ByFamily, 0, "batt-low.png");
    row("JM has no query", JmFamily, 0, "batt-low.png");
}

void TestCards::chargeIsShown()
{
    QFETCH(int, family);
    QFETCH(int, charge);
    QFETCH(QString, picture);
    const bool ws = family == WsFamily;
    const auto keyboard = plug(ws ? "ws" : "receiver", charge, ws ? sim::Channel::Ws : sim::Channel::Command);
    device.family = quint8(family);
    card->setDevice(&device);
    QVERIFY(!label("labelPower")->isHidden());
    QSignalSpy reported(card, &FrameDeviceShow::onReport);
    card->report();
    QCOMPARE(reported.count(), 1);
    const QVariantList &told = reported[0];
    QCOMPARE(told[0].value<DeviceEnumInfo *>(), &device);
    QCOMPARE(told[1].toString(), picture);
    QCOMPARE(told[2].toString(), QStringLiteral(":/images/dev/2.4g.png"));
    QCOMPARE(told[3].toString(), QStringLiteral("剩余电量: %1%").arg(charge));
    QCOMPARE(label("labelPower")->toolTip(), told[3].toString());
    QCOMPARE(label("labelPower")->styleSheet(), told[4].toString());
    QCOMPARE(keyboard->frameCount(), family > WsFamily ? 0u : charge > 100 ? 5u : 1u);
    QCOMPARE(keyboard->openHandles(), 0);
}

void TestCards::cloudRoundsEndWhenTheKeyboardIsThere_data()
{
    QTest::addColumn<int>("offlinePolls");
    QTest::addColumn<int>("rounds");
    QTest::addColumn<int>("charge");
    QTest::newRow("at the first poll") << 0 << 1 << 64;
    QTest::newRow("at the fourth") << 3 << 4 << 64;
    QTest::newRow("never: the last answer counts") << 99 << 5 << 0;
}

void TestCards::cloudRoundsEndWhenTheKeyboardIsThere()
{
    QFETCH(int, offlinePolls);
    QFETCH(int, rounds);
    QFETCH(int, charge);
    const auto receiver = plug("receiver", 64, sim::Channel::Command);
    receiver->setReceiver({.pollsUntilOnline = unsigned(offlinePolls)});
    card->setDevice(&device);
    card->report();
    const auto frames = receiver->frames();
    QCOMPARE(int(frames.size()), rounds);
    sim::Bytes request(65);
    request[1] = 0xF7;
    request[8] = 0x08;
    for (size_t i = 0; i < frames.size(); ++i) {
        QVERIFY(frames[i].report == request);
        QVERIFY(i == 0 || frames[i].when - frames[i - 1].when >= std::chrono::milliseconds(100));
    }
    QVERIFY(label("labelPower")->toolTip().endsWith(QStringLiteral(": %1%").arg(charge)));
}

void TestCards::wsRoundsEndAtASoundValue()
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
    QVERIFY(label("labelPower")->toolTip().endsWith(QStringLiteral(": 33%")));
}

void TestCards::nothingIsShownForADeviceThatCantBeAsked()
{
    const auto receiver = plug("receiver", 64, sim::Channel::Command);
    card->setDevice(&device);
    card->report();
    const QString before = label("labelPower")->toolTip();
    QSignalSpy reported(card, &FrameDeviceShow::onReport);
    receiver->failOpens(1);
    card->report();
    QCOMPARE(label("labelPower")->toolTip(), before);
    device.connectionType = UsbConnection;
    receiver->clearLog();
    card->setDevice(&device);
    card->report();
    QVERIFY(label("labelPower")->isHidden());
    QCOMPARE(receiver->frameCount(), 0u);
    QCOMPARE(reported.count(), 0);
}

void TestCards::pooledCardsAreReused()
{
    QCOMPARE(FrameDeviceShow::acquire(0, nullptr), card);
    QVERIFY(!FrameDeviceShow::acquire(256, &window));
    QVERIFY(!FrameDeviceShow::acquire(-1, &window));
    FrameDeviceShow *second = FrameDeviceShow::acquire(1, &window);
    card->setSignalsConnected(true);
    plug("receiver", 10, sim::Channel::Command);
    card->setDevice(&device);
    card->report();

    DeviceEnumInfo other = device;
    other.displayName = QStringLiteral("Two Words");
    card->setDevice(&other);
    QCOMPARE(label("labelDeviceName")->text(), other.displayName);
    QVERIFY(label("labelPower")->toolTip().isEmpty());
    QVERIFY(card->signalsConnected() && !second->signalsConnected());

    card->show();
    second->show();
    FrameDeviceShow::hideFrom(1);
    QVERIFY(!card->isHidden() && second->isHidden());
}

void TestCards::pointerAndPressColourTheCard()
{
    FrameDeviceShow *other = FrameDeviceShow::acquire(1, &window);
    const QString normal = card->styleSheet();
    QEvent leave(QEvent::Leave);
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(card, &enter);
    const QString hover = card->styleSheet();
    QVERIFY(normal != hover);
    QApplication::sendEvent(card, &leave);
    QCOMPARE(card->styleSheet(), normal);
    QTest::mousePress(card, Qt::LeftButton);
    QCOMPARE(card->styleSheet(), hover);
    QTest::mousePress(other, Qt::LeftButton);
    QCOMPARE(card->styleSheet(), normal);
    QCOMPARE(other->styleSheet(), hover);
}

void TestCards::pressOpensTheDevice_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("mouse") << 0;
    QTest::newRow("Enter") << int(Qt::Key_Return);
}

void TestCards::pressOpensTheDevice()
{
    QFETCH(int, key);
    const auto receiver = plug("receiver", 50, sim::Channel::Command);
    card->setDevice(&device);
    QSignalSpy clicked(card, &FrameDeviceShow::onClicked);
    QSignalSpy reported(card, &FrameDeviceShow::onReport);
    if (key == 0)
        QTest::mousePress(label("labelImage"), Qt::LeftButton); // a label lets it through
    else
        QTest::keyPress(card, Qt::Key(key));
    QCOMPARE(clicked.count(), 0);
    QVERIFY(clicked.wait());
    QCOMPARE(clicked[0][0].value<DeviceEnumInfo *>(), &device);
    QTRY_COMPARE(reported.count(), 1);
}

void TestCards::wheelScrollsSideways()
{
    QScrollArea area;
    auto *content = new QWidget;
    content->resize(3000, 100);
    area.setWidget(content);
    area.resize(400, 120);
    area.show();
    card->setScrollArea(&area);
    const auto turn = [this](int delta) {
        QWheelEvent event({}, {}, {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(card, &event);
        return event.isAccepted();
    };
    QVERIFY(turn(-240));
    QCOMPARE(area.horizontalScrollBar()->value(), 240);
    QVERIFY(turn(120));
    QCOMPARE(area.horizontalScrollBar()->value(), 120);
}

void TestCards::everyPictureLoads()
{
    int pictures = 0;
    QDirIterator walk(QStringLiteral(":/images"), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (path.contains(u'@'))
            continue;
        const QImage plain(path);
        const QImage sharp(QString(path).replace(QStringLiteral(".png"), QStringLiteral("@2x.png")));
        QVERIFY2(!plain.isNull() && sharp.size() == 2 * plain.size(), qPrintable(path));
        ++pictures;
    }
    QVERIFY(pictures > 30);
}

QTEST_MAIN(TestCards)
#include "tst_cards.moc"
