#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The program as a whole: how many of it run, and how it ends.
class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void secondStartEndsAtOnce();
    void killedProgramLeavesNoTrace();

private:
    std::unique_ptr<QProcess> start(const QStringList &arguments = {});
    static bool waitForLog(QProcess &program, const QByteArray &text);

    std::unique_ptr<QTemporaryDir> home;
};

void TestProgram::init()
{
    home = std::make_unique<QTemporaryDir>();
}

std::unique_ptr<QProcess> TestProgram::start(const QStringList &arguments)
{
    auto program = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home->path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home->path());
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.debug=true;qt.*=false"));
    program->setProcessEnvironment(environment);
    program->setProcessChannelMode(QProcess::MergedChannels);
    program->start(qEnvironmentVariable("ORBE_DEMO"), arguments);
    return program;
}

bool TestProgram::waitForLog(QProcess &program, const QByteArray &text)
{
    QByteArray log;
    return QTest::qWaitFor(
        [&] {
            program.waitForReadyRead(10);
            log += program.readAll();
            return log.contains(text);
        },
        20000);
}

void TestProgram::secondStartEndsAtOnce()
{
    const auto first = start({QStringLiteral("--plug"), QStringLiteral("by")});
    QVERIFY(waitForLog(*first, "No program to start"));
    const auto second = start();
    QVERIFY(second->waitForFinished(5000));
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
    QCOMPARE(first->state(), QProcess::Running);
    first->kill();
    QVERIFY(first->waitForFinished());
}

void TestProgram::killedProgramLeavesNoTrace()
{
    for (int round = 0; round < 3; ++round) {
        const auto program = start({QStringLiteral("--plug"), QStringLiteral("by")});
        QVERIFY2(waitForLog(*program, "No program to start"), qPrintable(QString::number(round)));
        QCOMPARE(program->state(), QProcess::Running);
        program->kill();
        QVERIFY(program->waitForFinished());
    }
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
