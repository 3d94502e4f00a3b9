#include "WholeFile.h"

#include <algorithm>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using platform::WholeFile;

namespace {

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Files that hold a user's work.
class TestWholeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatWasNotUnderstood();
    void heldTarget();
    void leavesCopiesOfTheUser();
    void placeOfWork();
};

void TestWholeFile::keepsWhatWasNotUnderstood()
{
    for (const auto &content : {QByteArray("{ half"), QByteArray(WholeFile::UsualLimit + 1, 'x')}) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("work.txt"));
        for (const char *aside : {"work.txt.broken1", "work.txt.broken2"}) {
            put(path, content);
            WholeFile file(path);
            QCOMPARE(file.read().has_value(), content.size() < WholeFile::UsualLimit);
            file.setAside();
            QVERIFY(file.write("new"));
            QCOMPARE(contentOf(folder.filePath(QLatin1String(aside))), content);
            QCOMPARE(contentOf(path), QByteArray("new"));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 3);
    }
}

void TestWholeFile::heldTarget()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("work.txt"));
    QVERIFY(QDir().mkpath(path)); // what stands in the way can't be replaced, as a file that is held
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!WholeFile(path).write("new"));
    QVERIFY(clock.elapsed() < 2000);
    QVERIFY(QDir(path).exists());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

void TestWholeFile::leavesCopiesOfTheUser()
{
    const QTemporaryDir folder;
    const QStringList kept{QStringLiteral("event1.txt"), QStringLiteral("event1.txt.Backup"),
                           QStringLiteral("event1.txt.broken1"), QStringLiteral("event1.txt.former"),
                           QStringLiteral("other.txt.aBcDeF")};
    for (const QString &name : kept)
        put(folder.filePath(name), "x");
    put(folder.filePath(QStringLiteral("event1.txt.aBcDeF")), "x");
    put(folder.filePath(QStringLiteral("event1.txt.broken1.aBcDeF")), "x");
    platform::removeLeftovers(folder.path(), {QStringLiteral("event*.txt")});
    QStringList left = QDir(folder.path()).entryList(QDir::Files);
    std::ranges::sort(left);
    QCOMPARE(left, kept);
}

void TestWholeFile::placeOfWork()
{
    QStandardPaths::setTestModeEnabled(true);
    // Two runs of this test may meet in these folders.
    const QString name = QStringLiteral("placeofwork%1").arg(QCoreApplication::applicationPid());
    const QString beside = QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
    QDir(beside).removeRecursively();
    QCOMPARE(platform::workFolder(name), beside);
    QVERIFY(QDir(beside).exists() &&
            QDir(beside).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QVERIFY(QDir().rmdir(beside));
    put(beside, "no folder"); // what an administrator, too, can't make files in

    const QString elsewhere = platform::workFolder(name);
    QVERIFY(elsewhere != beside);
    QVERIFY(WholeFile(elsewhere + QStringLiteral("/work.txt")).write("kept"));
    QVERIFY(QDir(elsewhere).removeRecursively());
    QVERIFY(QFile::remove(beside));
}

QTEST_GUILESS_MAIN(TestWholeFile)
#include "tst_wholefile.moc"
