#include "AutostartEntry.h"

#include "Autostart.h"
#include "HubSettings.h"
#include "SiblingOperations.h"
#include "StandIn.h"

#include <QGuiApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/// What the hub keeps for the user, and what it shares with its drivers.
class TestSharedValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void brandsHaveTheirOwn();
    void driverAndHubSeeEachOther();
    void autostartStartsTheProgram_data();
    void autostartStartsTheProgram();
    void autostartSwitchedOffByTheDesktop();
};

void TestSharedValues::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestSharedValues::cleanup()
{
    platform::hubSettings(false).clear();
    platform::hubSettings(true).clear();
    autostart::disable();
}

void TestSharedValues::brandsHaveTheirOwn()
{
    QSettings &orbe = platform::hubSettings(false);
    QSettings &tarnwick = platform::hubSettings(true);
    QCOMPARE(&platform::hubSettings(false), &orbe);
    orbe.setValue(QStringLiteral("lastlang"), 3);
    QVERIFY(!tarnwick.contains(QStringLiteral("lastlang")));
    QVERIFY(orbe.fileName().contains(QLatin1String("Orbe")));
    QVERIFY(tarnwick.fileName().contains(QLatin1String("Tarnwick")));
    QVERIFY2(orbe.fileName().contains(QCoreApplication::applicationName()),
             "tests don't touch the user's values nor each other's");
}

void TestSharedValues::driverAndHubSeeEachOther()
{
    const QTemporaryDir folder;
    QSettings &settings = platform::hubSettings(false);
    const auto operations = SiblingOperations::create(settings);
    const QString path = QStringLiteral(R"(\\?\hid#vid_38ee&pid_0016&mi_01#7&1a2b, "x"; 键%)");
    operations->setValue(QStringLiteral("OrbeReturn"), 0);
    StandIn driver(folder.path(), QStringLiteral("Orbe-Values.exe"),
                   {{QStringLiteral("hidden"), true},
                    {QStringLiteral("handle"), true},
                    {QStringLiteral("settings"), settings.fileName()},
                    {QStringLiteral("returnAfter"), true}});
    operations->startProgram(driver.path());
    QTRY_VERIFY(operations->value(QStringLiteral("OrbeWnd"), 0).toUInt() != 0);

    operations->setValue(QStringLiteral("DeviceId"), 2807);
    operations->setValue(QStringLiteral("DevicePath"), path);
    QTRY_VERIFY(driver.report().contains(QStringLiteral("DevicePath=") + path));
    QVERIFY(driver.report().contains(QStringLiteral("DeviceId=2807")));
    QTRY_COMPARE(operations->value(QStringLiteral("OrbeReturn"), 0).toInt(), 1);
    QCOMPARE(operations->value(QStringLiteral("DevicePath"), {}).toString(), path);

    operations->setValue(QStringLiteral("DevicePath"), QString());
    QTRY_COMPARE(driver.report().last(), QStringLiteral("DevicePath="));
}

void TestSharedValues::autostartStartsTheProgram_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("what shells and desktop entries expand")
        << QStringLiteral("/home/$HOME/`id`/100%u/it's;#/Orbe");
    QTest::newRow("other scripts") << QStringLiteral("/home/用户/клавиатура/OrbeHub");
}

void TestSharedValues::autostartStartsTheProgram()
{
    QFETCH(QString, program);
    QVERIFY(!autostart::isEnabled());
    autostart::enable(QStringLiteral("/somewhere/else"));
    autostart::enable(program);
    QVERIFY(autostart::isEnabled());
    QCOMPARE(autostartedProgram(), program);
    autostart::disable();
    QVERIFY(!autostart::isEnabled());
    QCOMPARE(autostartedProgram(), QString());
}

void TestSharedValues::autostartSwitchedOffByTheDesktop()
{
    autostart::enable(QStringLiteral("/opt/orbehub/OrbeHub"));
    switchOffInTheDesktop();
    QVERIFY(!autostart::isEnabled());
    autostart::enable(QStringLiteral("/opt/orbehub/OrbeHub"));
    QVERIFY(autostart::isEnabled());
}

QTEST_GUILESS_MAIN(TestSharedValues)
#include "tst_sharedvalues.moc"
