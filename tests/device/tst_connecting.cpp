#include "ConnectedKeyboard.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using virtualhid::Fault;
using virtualhid::VirtualBus;

/// How the connection opens its keyboard, loses it and finds it again.
class TestConnecting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wiredOpensThreeHandlesAndIdentifies();
    void sameDeviceConnectsOnce();
    void unusableIds();
    void failedOpens_data();
    void failedOpens();
    void burstOfChangesIsOneRefresh();
    void idsAreKept();
    void unwritableIdsDontStopIt();
};

void TestConnecting::wiredOpensThreeHandlesAndIdentifies()
{
    ConnectedKeyboard link("wired-500");
    QSignalSpy connected(&link.connection, &DialogDeviceConnect::onConnect);
    QSignalSpy layer(&link.connection, &DialogDeviceConnect::onUpdataLayer);
    link.connectDevice();
    QCOMPARE(connected.size(), 1);
    QCOMPARE(link.keyboard->openHandles(), 3);
    QVERIFY(layer.wait());
    // Two kicks make two reads, so a command of the chain may go out twice; their order is what counts.
    QByteArrayList order;
    for (const QByteArray &command : link.commands().split(' ')) {
        if (order.isEmpty() || order.last() != command)
            order.append(command);
    }
    QCOMPARE(order.join(' '), QByteArray("1B 8F 89 84 04"));
    QCOMPARE(link.frame(0), QByteArray("1B 01 00 00 00 00 00 E3"));
    QCOMPARE(link.control<QLabel>("labelVersion")->text(), QStringLiteral("Ver:0x512 Id:2807[AF7]"));
    QCOMPARE(link.connection.deviceCache().deviceId, 0x0AF7u);
}

void TestConnecting::sameDeviceConnectsOnce()
{
    ConnectedKeyboard link("wired-500");
    link.connectDevice();
    link.connectDevice();
    QCOMPARE(VirtualBus::instance().counters().opens, 3u);
    const sim::Model &model = link.keyboard->model();
    link.connection.DoConnectDevice(model.vendorId, model.productId, false, QStringLiteral("another"),
                                    QString::fromStdString(link.keyboard->path(sim::Channel::Command)));
    QCOMPARE(VirtualBus::instance().counters().opens, 6u);
    QCOMPARE(link.keyboard->openHandles(), 3);
}

void TestConnecting::failedOpens_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<bool>("denied");
    QTest::addColumn<int>("connects");
    QTest::addColumn<int>("disconnects");
    QTest::addColumn<QString>("cause");
#ifdef Q_OS_LINUX
    const QString permission = QStringLiteral("70-orbehub.rules");
#else
    const QString permission = QStringLiteral("Can't open");
#endif
    QTest::newRow("wired, no permission") << QByteArray("wired-500") << true << 0 << 1 << permission;
    QTest::newRow("wireless, no permission") << QByteArray("bluetooth") << true << 1 << 0 << permission;
    QTest::newRow("wired, broken node")
        << QByteArray("wired-500") << false << 0 << 1 << QStringLiteral("Can't open");
}

void TestConnecting::failedOpens()
{
    QFETCH(QByteArray, model);
    QFETCH(bool, denied);
    QFETCH(QString, cause);
    ConnectedKeyboard link(model);
    if (denied)
        link.keyboard->denyOpens(true);
    else
        link.keyboard->failOpens(3);
    QSignalSpy connected(&link.connection, &DialogDeviceConnect::onConnect);
    QSignalSpy disconnected(&link.connection, &DialogDeviceConnect::onDisconnect);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(cause));
    link.connectDevice();
    QTEST(int(connected.size()), "connects");
    QTEST(int(disconnected.size()), "disconnects");
    QTest::qWait(300);
    QCOMPARE(link.keyboard->frameCount(), size_t(0));
    QVERIFY(!link.connection.isConnected());
}

void TestConnecting::unusableIds()
{
    ConnectedKeyboard link("wired-500");
    QSignalSpy disconnected(&link.connection, &DialogDeviceConnect::onDisconnect);
    for (const auto &[vid, pid] : {std::pair{"", ""},
                                   {"keyboard", "502F"},
                                   {"3151", "502F502F"},
                                   {"0000", "0"}}) { // zeros would mean any device
        disconnected.clear();
        link.control<QLineEdit>("lineEditVID")->setText(QLatin1String(vid));
        link.control<QLineEdit>("lineEditPID")->setText(QLatin1String(pid));
        link.control<QPushButton>("pushButtonConnect")->click();
        QCOMPARE(disconnected.size(), 1);
        QCOMPARE(link.keyboard->openHandles(), 0);
    }
}

void TestConnecting::burstOfChangesIsOneRefresh()
{
    ConnectedKeyboard link("wired-500");
    link.connectDevice();
    QSignalSpy connected(&link.connection, &DialogDeviceConnect::onConnect);
    QElapsedTimer sinceLast;
    for (int i = 0; i < 20; ++i) {
        link.connection.deviceChanged();
        sinceLast.start();
        QTest::qWait(10);
    }
    QVERIFY(connected.wait());
    QVERIFY(sinceLast.elapsed() >= 799);
    QCOMPARE(connected.size(), 1);
}

void TestConnecting::idsAreKept()
{
    {
        ConnectedKeyboard link("wired-300");
        link.connectDevice();
    }
    const DialogDeviceConnect again;
    QCOMPARE(again.findChild<QLineEdit *>(QStringLiteral("lineEditPID"))->text(), QStringLiteral("5030"));
}

void TestConnecting::unwritableIdsDontStopIt()
{
    // A folder in the place of the file can't be written even by an administrator.
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/config/device.ini");
    QFile::remove(path);
    QVERIFY(QDir().mkpath(path + QStringLiteral("/x")));
    {
        ConnectedKeyboard link("wired-500");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Can't keep the ids")));
        link.connectDevice();
        QVERIFY(link.connection.isConnected());
    }
    QVERIFY(QDir(path).removeRecursively());
}

QTEST_MAIN(TestConnecting)
#include "tst_connecting.moc"
