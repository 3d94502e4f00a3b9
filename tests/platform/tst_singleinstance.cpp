#include <memory>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSharedMemory>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

namespace {

constexpr int SegmentSize = 1024;

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

    void secondStartCallsTheFirst();
    void segmentCarriesTheWord_data();
    void segmentCarriesTheWord();
    void startsAgainAfterItsEnd_data();
    void startsAgainAfterItsEnd();
    void oneOfManyStartsWins_data();
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
    process->start(QStringLiteral(PROBE_PROGRAM), {key});
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

void TestSingleInstance::secondStartCallsTheFirst()
{
    const Start first = start();
    QCOMPARE(nextLine(*first), "first");
    for (int round = 0; round < 3; ++round) {
        const Start second = start();
        QCOMPARE(nextLine(*second), "second");
        QCOMPARE(nextLine(*first), "summoned");
        QTRY_COMPARE(second->state(), QProcess::NotRunning);
        QCOMPARE(second->exitCode(), 0);
    }
    close(*first);
}

void TestSingleInstance::segmentCarriesTheWord_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("calls");
    QTest::newRow("the word") << QByteArray("12345678") << true;
    QTest::newRow("with blanks around it") << QByteArray(" 12345678 \n") << true;
    QTest::newRow("another word") << QByteArray("1234567") << false;
    QTest::newRow("more than the word") << QByteArray("123456789") << false;
    QTest::newRow("no end at all") << QByteArray(SegmentSize, 'x') << false;
}

/// The segment is what other programs use, whose names and sizes are fixed.
void TestSingleInstance::segmentCarriesTheWord()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, calls);
    const Start first = start();
    QCOMPARE(nextLine(*first), "first");
    QSharedMemory segment(key);
    QVERIFY2(segment.attach(), qPrintable(segment.errorString()));
    QVERIFY(segment.size() >= SegmentSize);
    QCOMPARE(textIn(segment), QByteArray());

    write(segment, text);
    if (calls) {
        QCOMPARE(nextLine(*first), "summoned");
        QTRY_COMPARE(textIn(segment), QByteArray());
    } else {
        const Start second = start();
        QCOMPARE(nextLine(*second), "second");
        QCOMPARE(nextLine(*first), "summoned"); // by the second start, whose word replaces all that was there
        QTRY_COMPARE(textIn(segment), QByteArray());
    }
    close(*first);
}

void TestSingleInstance::startsAgainAfterItsEnd_data()
{
    QTest::addColumn<bool>("killed");
    QTest::addColumn<bool>("attachedElsewhere");
    QTest::newRow("closed") << false << false;
    QTest::newRow("killed") << true << false;
    QTest::newRow("killed while its segment is in use") << true << true;
}

void TestSingleInstance::startsAgainAfterItsEnd()
{
    QFETCH(bool, killed);
    QFETCH(bool, attachedElsewhere);
    for (int round = 0; round < 3; ++round) {
        const Start process = start();
        QCOMPARE(nextLine(*process), "first");
        const Start second = start();
        QCOMPARE(nextLine(*second), "second");
        QCOMPARE(nextLine(*process), "summoned");
        QSharedMemory segment(key);
        if (attachedElsewhere)
            QVERIFY(segment.attach());
        if (killed) {
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

void TestSingleInstance::oneOfManyStartsWins_data()
{
    QTest::addColumn<bool>("afterKill");
    QTest::newRow("from nothing") << false;
    QTest::newRow("over the segment of a killed one") << true;
}

void TestSingleInstance::oneOfManyStartsWins()
{
    constexpr int Starts = 50;
    QFETCH(bool, afterKill);
    if (afterKill) {
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

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
