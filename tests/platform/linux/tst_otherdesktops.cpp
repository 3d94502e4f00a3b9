#include "Session.h"
#include "SiblingOperations.h"
#include "Topmost.h"

#include <chrono>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

using namespace std::chrono_literals;

namespace {

QStringList toldLines;

void keepPlatformLines(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "orbe.platform") == 0)
        toldLines.append(text);
}

/// The part of the session service that tells whether the session is locked.
class SessionService : public QDBusVirtualObject
{
public:
    bool locked = false;
    bool silent = false; ///< takes questions and never answers

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() != QLatin1String("Get") ||
            message.arguments().value(1).toString() != QLatin1String("LockedHint"))
            return false;
        if (!silent)
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(locked))));
        return true;
    }
};

} // namespace

/// Desktops other than X11, where windows of other programs can't be had and services tell of the session.
class TestOtherDesktops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void foreignWindowsAreLeftAloneAndToldOnce();
    void lockIsFollowed();
    void silentServiceHoldsNothingUp();

private:
    void becomeService();

    QProcess bus;
    SessionService service;
    QDBusConnection servicesBus{QString()};
};

void TestOtherDesktops::initTestCase()
{
    bus.start(QStringLiteral("dbus-daemon"),
              {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY2(bus.waitForReadyRead(), "dbus-daemon doesn't start");
    const QByteArray address = bus.readLine().trimmed();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    servicesBus = QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("services"));
    QVERIFY(
        servicesBus.registerVirtualObject(QStringLiteral("/org/freedesktop/login1/session/auto"), &service));
}

void TestOtherDesktops::cleanupTestCase()
{
    bus.terminate();
    bus.waitForFinished();
}

void TestOtherDesktops::foreignWindowsAreLeftAloneAndToldOnce()
{
    const QTemporaryDir folder;
    QSettings values(folder.filePath(QStringLiteral("values.ini")), QSettings::IniFormat);
    const auto operations = SiblingOperations::create(values);
    const QtMessageHandler before = qInstallMessageHandler(keepPlatformLines);
    for (int round = 0; round < 3; ++round) {
        QCOMPARE(operations->findWindow(QStringLiteral("Orbe")), SiblingOperations::Window(0));
        operations->setStyles(7, 0xD60A0000, 0x00080000);
        operations->setParent(7, 8);
        operations->place(7, SiblingOperations::Order::Bottom, {0, 0, 10, 10}, SiblingOperations::ShowWindow);
        operations->hide(7);
        operations->show(7);
        operations->bringToTop(7);
        operations->move(7, {0, 0, 10, 10});
        operations->setForeground(7);
        operations->redraw(7, 0x300);
        operations->shapeRoundBottom(7, {10, 10}, 32, 32);
        operations->postClose(7);
        QVERIFY(operations->rect(7).isNull());
    }
    qInstallMessageHandler(before);
    QCOMPARE(toldLines.size(), 13);
    QCOMPARE(QSet<QString>(toldLines.cbegin(), toldLines.cend()).size(), 13);

    QWidget own;
    own.show();
    platform::setTopmost(&own, true);
    QVERIFY(own.isVisible());
}

void TestOtherDesktops::lockIsFollowed()
{
    QVERIFY(!platform::isSessionLocked()); // nobody offers the service
    QVERIFY(servicesBus.registerService(QStringLiteral("org.freedesktop.login1")));
    service.locked = true;
    QTRY_VERIFY(platform::isSessionLocked());
    QTRY_VERIFY(platform::idleTime() >= 100ms);
    service.locked = false;
    QTRY_VERIFY(!platform::isSessionLocked());
    QCOMPARE(platform::idleTime(), 0ms);

    service.locked = true;
    QTRY_VERIFY(platform::isSessionLocked());
    QVERIFY(servicesBus.unregisterService(QStringLiteral("org.freedesktop.login1")));
    QTRY_VERIFY(!platform::isSessionLocked());
}

void TestOtherDesktops::silentServiceHoldsNothingUp()
{
    QVERIFY(servicesBus.registerService(QStringLiteral("org.freedesktop.login1")));
    service.locked = true;
    QTRY_VERIFY(platform::isSessionLocked());
    service.silent = true;
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < 100; ++round)
        QVERIFY(platform::isSessionLocked());
    QVERIFY2(timer.elapsed() < 500, "the question is waited for");
}

QTEST_MAIN(TestOtherDesktops)
#include "tst_otherdesktops.moc"
