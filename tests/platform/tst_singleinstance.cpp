#include "SingleInstance.h"

#include <cstdio>
#include <memory>
#include <QCoreApplication>
#include <QProcess>
#include <QSharedMemory>
#include <QTemporaryDir>
#include <QTest>
#include <thread>
#include <vector>

namespace {

constexpr int SegmentSize = 1024;

/// Command line of this program as one start of a program that is to run once.
constexpr auto StartArgument = "--start";

/// Says "first" and, whenever another start calls it, "summoned"; or says "second" and ends. The first one
/// ends with its input.
int startOnce(const QString &key)
{
    const auto say = [](const char *line) {
        std::puts(line);
        std::fflush(stdout);
    };
    platform::SingleInstance instance(key);
    QObject::connect(&instance, &platform::SingleInstance::summoned, qApp, [say] { say("summoned"); });
    const bool first = instance.acquire();
    say(first ? "first" : "second");
    if (!first)
        return 0;
    std::thread([] {
        while (std::getchar() != EOF) {
        }
        QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
    }).detach();
    return QCoreApplication::exec();
}

/// The content of the segment as text, and nothing behind it.
QByteArray textIn(QSharedMemory &segment)
{
    segment.lock();
    const QByteArray content(static_cast<const char *>(segment.constData()), SegmentSize);
    segment.unlock();
    const qsizetype end = std::max<qsizetype>(0, content.indexOf('\0'));
    return content.mid(end).count('\0') == SegmentSize - end ? content.left(end) : content;
}

void write(QSharedMemory &segment, const QByteArray &text)
{
    segment.lock();
    memcpy(segment.data(), text.constData(), size_t(text.size()));
    segment.unlock();
}

} // namespace

/// Starts of one program by processes of their own.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void segmentCarriesTheWord();
    void startsAgainAfterItsEnd_data();
    void startsAgainAfterItsEnd();
    void oneOfManyStartsWins();

private:
    using Start = std::unique_ptr<QProcess>;
    Start start() const;
    static QByteArray nextLine(QProcess &process);
    static void close(QProcess &process);

    QTemporaryDir runtimeFolder;
    QString key;
};

void TestSingleInstance::initTestCase()
{
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toLocal8Bit());
}

void TestSingleInstance::init()
{
    static int count = 0;
    key = QStringLiteral("OrbeTest_%1_%2").arg(QCoreApplication::applicationPid()).arg(++count);
}

TestSingleInstance::Start TestSingleInstance::start() const
{
    auto process = std::make_unique<QProcess>();
    process->start(QCoreApplication::applicationFilePath(), {QLatin1String(StartArgument), key});
    return process;
}

QByteArray TestSingleInstance::nextLine(QProcess &process)
{
    return QTest::qWaitFor([&process] { return process.canReadLine(); }, 20000) ? process.readLine().trimmed()
                                                                                : QByteArray("nothing");
}

void TestSingleInstance::close(QProcess &process)
{
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
}

/// The segment is what other programs use, whose names and sizes are fixed.
void TestSingleInstance::segmentCarriesTheWord()
{
    const Start first = start();
    QCOMPARE(nextLine(*first), "first");
    QSharedMemory segment(key);
    QVERIFY2(segment.attach(), qPrintable(segment.errorString()));
    QVERIFY(segment.size() >= SegmentSize);
    QCOMPARE(textIn(segment), QByteArray());
    for (const char *word : {"12345678", " 12345678 \n"}) {
        write(segment, word);
        QCOMPARE(nextLine(*first), "summoned");
        QTRY_COMPARE(textIn(segment), QByteArray());
    }
    for (const QByteArray &other : {QByteArray("123456789"), QByteArray(SegmentSize, 'x')}) {
        write(segment, other);
        const Start second = start();
        QCOMPARE(nextLine(*second), "second");
        QCOMPARE(nextLine(*first), "summoned"); // by the second start, whose word replaces all that was there
        QTRY_COMPARE(textIn(segment), QByteArray());
        QTRY_COMPARE(second->state(), QProcess::NotRunning);
        QCOMPARE(second->exitCode(), 0);
    }
    QVERIFY(!first->canReadLine());
    close(*first);
}

void TestSingleInstance::startsAgainAfterItsEnd_data()
{
    QTest::addColumn<bool>("killed");
    QTest::newRow("closed") << false;
    QTest::newRow("killed while its segment is in use") << true;
}

void TestSingleInstance::startsAgainAfterItsEnd()
{
    QFETCH(bool, killed);
    for (int round = 0; round < 3; ++round) {
        const Start process = start();
        QCOMPARE(nextLine(*process), "first");
        const Start second = start();
        QCOMPARE(nextLine(*second), "second");
        QCOMPARE(nextLine(*process), "summoned");
        QSharedMemory segment(key);
        if (killed) {
            QVERIFY(segment.attach());
            process->kill();
            QVERIFY(process->waitForFinished());
        } else {
            close(*process);
        }
        const Start next = start();
        QCOMPARE(nextLine(*next), "first");
        const Start nextSecond = start();
        QCOMPARE(nextLine(*nextSecond), "second");
        QCOMPARE(nextLine(*next), "summoned");
        close(*next);
    }
}

void TestSingleInstance::oneOfManyStartsWins()
{
    constexpr int Starts = 50;
    {
        const Start killed = start();
        QCOMPARE(nextLine(*killed), "first");
        killed->kill();
        QVERIFY(killed->waitForFinished());
    }
    std::vector<Start> starts;
    starts.reserve(Starts);
    for (int i = 0; i < Starts; ++i)
        starts.push_back(start());
    QProcess *first = nullptr;
    for (const Start &process : starts) {
        const QByteArray line = nextLine(*process);
        if (line == "first") {
            QVERIFY(!first);
            first = process.get();
        } else {
            QCOMPARE(line, "second");
        }
    }
    QVERIFY(first);
    QCOMPARE(nextLine(*first), "summoned");
    close(*first);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == StartArgument)
        return startOnce(QString::fromLocal8Bit(argv[2]));
    TestSingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleinstance.moc"
