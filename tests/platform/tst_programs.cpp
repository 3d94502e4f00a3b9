#include "AutostartEntry.h"

#include "Autostart.h"
#include "HubSettings.h"
#include "Processes.h"
#include "SiblingOperations.h"
#include "StandIn.h"

#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/// The programs that the hub starts, looks for and ends, what it shares with them, and what it keeps for the
/// user.
class TestPrograms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void startedAndEnded_data();
    void startedAndEnded();
    void notedWhateverStartsOrEndsIt();
    void brandsHaveTheirOwn();
    void driverAndHubSeeEachOther();
    void autostartStartsTheProgram_data();
    void autostartStartsTheProgram();
    void autostartSwitchedOffByTheDesktop();

private:
    QTemporaryDir folder;
};

void TestPrograms::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestPrograms::cleanup()
{
    platform::hubSettings(false).clear();
    platform::hubSettings(true).clear();
    autostart::disable();
}

void TestPrograms::startedAndEnded_data()
{
    QTest::addColumn<QString>("folderName");
    QTest::addColumn<QString>("program");
    QTest::newRow("blanks, which must not start C:\\Program")
        << QStringLiteral("Program Files (x86)") << QStringLiteral("Orbe With Blanks.exe");
    QTest::newRow("characters of other scripts")
        << QStringLiteral("键盘 ключ") << QStringLiteral("Orbe-Script.exe");
    QTest::newRow("a name longer than the kernel keeps")
        << QStringLiteral("JmExe") << QStringLiteral("Orbe-Gaming-Bub-With-A-Long-Name.exe");
}

void TestPrograms::startedAndEnded()
{
    QFETCH(QString, folderName);
    QFETCH(QString, program);
    StandIn driver(folder.filePath(folderName), program, {{QStringLiteral("hidden"), true}});
    Processes processes;
    QVERIFY(!processes.isRunning(program));
    QVERIFY(processes.start(driver.path()));
    QTRY_VERIFY(processes.isRunning(program.toUpper()));
    QTRY_VERIFY(driver.report().contains(QStringLiteral("started")));
    processes.end(program.toUpper());
    QTRY_VERIFY(!processes.isRunning(program));
}

void TestPrograms::notedWhateverStartsOrEndsIt()
{
    StandIn driver(folder.filePath(QStringLiteral("by others")), QStringLiteral("Orbe-Others.exe"),
                   {{QStringLiteral("hidden"), true}});
    Processes processes;
    QVERIFY(!processes.isRunning(driver.name()));
    QProcess other;
    other.start(driver.path(), QStringList());
    QVERIFY(other.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(processes.isRunning(driver.name()), 2500);
    other.kill();
    QVERIFY(other.waitForFinished());
    QVERIFY(!processes.isRunning(driver.name()));
}

void TestPrograms::brandsHaveTheirOwn()
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

void TestPrograms::driverAndHubSeeEachOther()
{
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

void TestPrograms::autostartStartsTheProgram_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("what shells and desktop entries expand")
        << QStringLiteral("/home/$HOME/`id`/100%u/it's;#/Orbe");
    QTest::newRow("other scripts") << QStringLiteral("/home/用户/клавиатура/OrbeHub");
}

void TestPrograms::autostartStartsTheProgram()
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

void TestPrograms::autostartSwitchedOffByTheDesktop()
{
    autostart::enable(QStringLiteral("/opt/orbehub/OrbeHub"));
    switchOffInTheDesktop();
    QVERIFY(!autostart::isEnabled());
    autostart::enable(QStringLiteral("/opt/orbehub/OrbeHub"));
    QVERIFY(autostart::isEnabled());
}

QTEST_GUILESS_MAIN(TestPrograms)
#include "tst_programs.moc"
