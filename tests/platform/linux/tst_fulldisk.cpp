#include "WholeFile.h"

#include <csignal>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <sys/resource.h>

/// A disk that is full in the middle of a write: the system takes what fits and says so by the count alone.
class TestFullDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOldContent();
};

void TestFullDisk::keepsTheOldContent()
{
    const QTemporaryDir folder;
    platform::WholeFile file(folder.filePath(QStringLiteral("work.txt")));
    QVERIFY(file.write("old"));

    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{100'000, RLIM_INFINITY};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
    const bool isWritten = file.write(QByteArray(150'000, 'n'));
    const rlimit free{RLIM_INFINITY, RLIM_INFINITY};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &free), 0);

    QVERIFY(!isWritten);
    QCOMPARE(file.read(), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    QVERIFY(file.write(QByteArray(150'000, 'n')));
}

QTEST_GUILESS_MAIN(TestFullDisk)
#include "tst_fulldisk.moc"
