#include <algorithm>
#include <memory>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

namespace {

/// Longer than a start takes, so that some are killed in it and some behind it.
constexpr int LongestLife = 800;

int countOf(const char *variable, int usual)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : usual;
}

} // namespace

/// Starts of the hub itself: of any number one stays, however the last one ended.
class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oneStaysAfterAKill();
    void oneOfManyStays();

private:
    using Start = std::unique_ptr<QProcess>;
    Start start() const;
    /// Starts so many at once; gives the one that stays when all others have ended, or null.
    Start startAtOnce(int count) const;

    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

void TestProgram::initTestCase()
{
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
        environment.insert(QLatin1String(variable), home.path());
}

TestProgram::Start TestProgram::start() const
{
    auto program = std::make_unique<QProcess>();
    program->setProcessEnvironment(environment);
    program->setProcessChannelMode(QProcess::MergedChannels);
    program->start(qEnvironmentVariable("ORBE_HUB"), QStringList());
    return program;
}

TestProgram::Start TestProgram::startAtOnce(int count) const
{
    std::vector<Start> starts;
    for (int i = 0; i < count; ++i)
        starts.push_back(start());
    const auto isRunning = [](const Start &program) { return program->state() != QProcess::NotRunning; };
    const bool oneIsLeft =
        QTest::qWaitFor([&] { return std::ranges::count_if(starts, isRunning) <= 1; }, 10000 + 5000 * count);
    const bool othersEndedWell = std::ranges::all_of(starts, [&](const Start &program) {
        return isRunning(program) ||
               (program->exitStatus() == QProcess::NormalExit && program->exitCode() == 0);
    });
    const auto last = std::ranges::find_if(starts, isRunning);
    return oneIsLeft && othersEndedWell && last != starts.end() ? std::move(*last) : nullptr;
}

void TestProgram::oneStaysAfterAKill()
{
    const int cycles = countOf("ORBE_CYCLES", 5);
    for (int cycle = 0; cycle < cycles; ++cycle) {
        const Start hub = startAtOnce(2);
        QVERIFY2(hub, qPrintable(QString::number(cycle)));
        const bool endedByItself = hub->waitForFinished(QRandomGenerator::global()->bounded(LongestLife));
        QVERIFY2(!endedByItself, hub->readAll());
        hub->kill();
        QVERIFY(hub->waitForFinished());
    }
    qInfo("%d kills and starts: one instance each time", cycles);
}

void TestProgram::oneOfManyStays()
{
    const int starts = countOf("ORBE_STARTS", 10);
    const Start hub = startAtOnce(starts);
    QVERIFY(hub);
    QVERIFY(!hub->waitForFinished(LongestLife));
    qInfo("%d simultaneous starts: one instance", starts);
    hub->kill();
    QVERIFY(hub->waitForFinished());
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
