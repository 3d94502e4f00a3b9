#include "Processes.h"
#include "SiblingOperations.h"
#include "StandIn.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

QStringList toldPrograms;

void keepPlatformLines(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "orbe.platform") == 0)
        toldPrograms.append(text);
}

} // namespace

/// Programs that the hub starts, looks for and ends.
class TestProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startedAndEnded_data();
    void startedAndEnded();
    void endingTakesOne();
    void notedWhateverStartsOrEndsIt();
    void missingProgramIsToldOnce();

private:
    QTemporaryDir folder;
};

void TestProcesses::startedAndEnded_data()
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

void TestProcesses::startedAndEnded()
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

void TestProcesses::endingTakesOne()
{
    StandIn driver(folder.filePath(QStringLiteral("twice")), QStringLiteral("Orbe-Twice.exe"),
                   {{QStringLiteral("hidden"), true}});
    Processes processes;
    processes.start(driver.path());
    processes.start(driver.path());
    QTRY_COMPARE(driver.report().count(QStringLiteral("started")), 2);
    processes.end(driver.name());
    QTRY_VERIFY(processes.isRunning(driver.name()));
    processes.end(driver.name());
    QTRY_VERIFY(!processes.isRunning(driver.name()));
}

void TestProcesses::notedWhateverStartsOrEndsIt()
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

void TestProcesses::missingProgramIsToldOnce()
{
    QSettings values(folder.filePath(QStringLiteral("values.ini")), QSettings::IniFormat);
    const auto operations = SiblingOperations::create(values);
    const QtMessageHandler before = qInstallMessageHandler(keepPlatformLines);
    for (int round = 0; round < 3; ++round) {
        operations->startProgram(folder.filePath(QStringLiteral("WsExe/Orbe-WS.exe")));
        operations->startProgram(folder.path()); // a folder is no program
    }
    operations->endProcess(QStringLiteral("Orbe-Missing.exe"));
    qInstallMessageHandler(before);
    QCOMPARE(toldPrograms.size(), 2);
    QVERIFY(!operations->isRunning(QStringLiteral("Orbe-WS.exe")));
}

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_processes.moc"
