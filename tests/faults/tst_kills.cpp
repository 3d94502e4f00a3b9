#include "UserWork.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace userwork;

namespace {

/// Long enough for several saves.
constexpr int LongestLifeMicroseconds = 60'000;

int kills()
{
    return qEnvironmentVariableIsSet("ORBE_KILLS") ? qEnvironmentVariableIntValue("ORBE_KILLS") : 20;
}

/// Saves one generation after the other, and says each that is saved, until it is killed.
int saveWithoutEnd(const Kind &kind, const QString &folder, int generation)
{
    for (;; ++generation) {
        kind.save(folder, generation);
        std::printf("%d\n", generation);
        std::fflush(stdout);
    }
}

} // namespace

/// The program killed while it saves a user's work.
class TestKills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oldOrNewIsThere_data();
    void oldOrNewIsThere();
};

void TestKills::oldOrNewIsThere_data()
{
    QTest::addColumn<int>("kind");
    for (size_t i = 0; i < std::size(Kinds); ++i)
        QTest::newRow(Kinds[i].name) << int(i);
}

void TestKills::oldOrNewIsThere()
{
    QFETCH(int, kind);
    const Kind &work = Kinds[kind];
    auto folder = std::make_unique<QTemporaryDir>();
    int losses = 0;
    int generation = 0;
    for (int kill = 0; kill < kills(); ++kill) {
        QProcess writer;
        writer.start(QCoreApplication::applicationFilePath(),
                     {QStringLiteral("--save"), QString::number(kind), folder->path(), text(generation + 1)});
        QVERIFY(writer.waitForReadyRead());
        QThread::usleep(QRandomGenerator::global()->bounded(LongestLifeMicroseconds));
        writer.kill();
        QVERIFY(writer.waitForFinished());
        const QList<QByteArray> said = writer.readAllStandardOutput().trimmed().split('\n');
        const int saved = said.last().toInt();
        const int found = work.load(folder->path());
        QVERIFY(saved > generation);
        generation = saved + 1;
        if (found == saved || found == saved + 1)
            continue;
        ++losses;
        folder = std::make_unique<QTemporaryDir>();
    }
    qInfo("%s: %d kills, %d losses; at the end %d files and %d saves", work.name, kills(), losses,
          int(QDir(folder->path()).entryList(QDir::Files).size()), generation);
    if (work.isSafe)
        QCOMPARE(losses, 0);
    else
        QVERIFY2(losses > 0, "The kills don't hit the writes");
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--save"))
        return saveWithoutEnd(Kinds[arguments.value(2).toInt()], arguments.value(3),
                              arguments.value(4).toInt());
    TestKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_kills.moc"
