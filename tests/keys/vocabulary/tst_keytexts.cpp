#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "ModuleGenKeymapping.h"

#include <QFile>
#include <QTest>
#include <QTranslator>

/// Names of keys, the lists of functions, and the text of a key function. The .tsv files hold the rows as
/// they are promised to the keyboard and to the pickers.
class TestKeyTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyNames();
    void functionLists_data();
    void functionLists();
    void firstRowWinsASearch_data();
    void firstRowWinsASearch();
    void entryText_data();
    void entryText();
    void textsFollowTheLanguage();
};

/// Rows of a table file, each as its fields.
static QList<QStringList> rowsOf(const QString &file)
{
    QList<QStringList> rows;
    QFile tsv(u':' + file);
    if (!tsv.open(QIODevice::ReadOnly | QIODevice::Text))
        return rows;
    while (!tsv.atEnd())
        rows += QString::fromUtf8(tsv.readLine()).chopped(1).split(u'\t');
    return rows;
}

static KeyEntry entryOf(const QString &hex)
{
    return keys::entryAt(QByteArray::fromHex(hex.toLatin1()), 0);
}

void TestKeyTexts::keyNames()
{
    const QList<QStringList> rows = rowsOf(QStringLiteral("keynames.tsv")); // name, usage, scan code
    QCOMPARE(rows.size(), qsizetype(keys::KeyNameTable.size()));
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const KeyName &key = keys::KeyNameTable[size_t(i)];
        QCOMPARE(key.name.toString(), rows[i][0]);
        QCOMPARE(uint(key.usage), rows[i][1].toUInt(nullptr, 16));
        QCOMPARE(uint(key.scan), rows[i][2].toUInt(nullptr, 16));
    }
}

void TestKeyTexts::functionLists_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("mouse");
    QTest::newRow("functions") << "functions.tsv"
                               << "功能: " << false;
    QTest::newRow("mouse") << "mouse.tsv"
                           << "鼠标: " << true;
}

void TestKeyTexts::functionLists()
{
    QFETCH(QString, file);
    QFETCH(QString, group);
    QFETCH(bool, mouse);
    const auto at = mouse ? ModuleGenKeymapping::MouseEntryAt : ModuleGenKeymapping::FunctionEntryAt;

    const QList<QStringList> rows = rowsOf(file); // entry, name
    QCOMPARE(rows.size(), mouse ? 15 : 98);
    QHash<QString, QString> firstNames;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString entry = rows[i][0];
        const QString name = rows[i][1];
        const KeyFunction *row = at(quint8(i));
        QVERIFY(row);
        QVERIFY2(row->entry == entryOf(entry), qPrintable(name));
        QCOMPARE(row->name(), name);
        if (!firstNames.contains(entry))
            firstNames.insert(entry, name);
        QCOMPARE(ModuleGenKeymapping::KeyEntryText(row->entry, false), group + firstNames.value(entry));
    }
    for (int past = int(rows.size()); past <= 0xFF; ++past)
        QVERIFY(!at(quint8(past)));
}

void TestKeyTexts::firstRowWinsASearch_data()
{
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("name");
    const auto byUsage = [](quint16 usage) { return keys::KeyNameByCode(usage); };
    const auto byScan = [](quint16 scan) -> QString {
        return keys::KeyNameByScan(scan) + QStringLiteral(" %1").arg(keys::CodeByScan(scan), 0, 16);
    };
    QTest::newRow("usage of Home") << byUsage(0x4A) << "Home";
    QTest::newRow("usage of the left arrow") << byUsage(0x50) << "←";
    QTest::newRow("usage 0") << byUsage(0) << "";
    QTest::newRow("Fn has no name") << byUsage(keys::FnKeyCode) << "";
    QTest::newRow("16 bits are compared") << byUsage(0x104) << "";
    QTest::newRow("number block by scan code") << byScan(0x47) << "Num-7 5f";
    QTest::newRow("backslash by scan code") << byScan(0x2B) << "\\ | 31";
    QTest::newRow("slash finds the extra key") << byScan(0x35) << "L-\\ 64";
    QTest::newRow("R-Win hides Print-Screen") << byScan(0xE05C) << "R-Win e7";
    QTest::newRow("no scan code") << byScan(0) << "_¥ 89";
    QTest::newRow("unknown scan code") << byScan(0xFFFF) << " 0";
}

void TestKeyTexts::firstRowWinsASearch()
{
    QFETCH(QString, found);
    QFETCH(QString, name);
    QCOMPARE(found, name);
}

void TestKeyTexts::entryText_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("prefixed");
    QTest::addColumn<QString>("bare");
    QTest::newRow("no function") << "00000000"
                                 << ""
                                 << "";
    QTest::newRow("plain key, factory form") << "00002C00"
                                             << ""
                                             << "";
    QTest::newRow("one key") << "002C0000"
                             << "组合: Space"
                             << "Space";
    QTest::newRow("two keys") << "00E00400"
                              << "组合: L-Ctrl + A"
                              << "L-Ctrl + A";
    QTest::newRow("three keys") << "00E0E14C"
                                << "组合: L-Ctrl + L-Shift + Delete"
                                << "L-Ctrl + L-Shift + Delete";
    QTest::newRow("middle place free") << "00E00004"
                                       << "组合: L-Ctrl + A"
                                       << "L-Ctrl + A";
    QTest::newRow("a key without a name is left out") << "00E0FA04"
                                                      << "组合: L-Ctrl + A"
                                                      << "L-Ctrl + A";
    QTest::newRow("first place free") << "0000E304"
                                      << ""
                                      << "";
    QTest::newRow("list before combination") << "00E02C00"
                                             << "功能: 切换输入法"
                                             << "功能: 切换输入法";
    QTest::newRow("first of two names") << "03002402"
                                        << "功能: 后退"
                                        << "功能: 后退";
    QTest::newRow("macro") << "09020500"
                           << "宏设置"
                           << "宏设置";
    QTest::newRow("macro, slot 0") << "09000000"
                                   << "宏设置"
                                   << "宏设置";
    QTest::newRow("unlisted light entry reads as keys") << "0D290000"
                                                        << "组合: Esc"
                                                        << "Esc";
    QTest::newRow("unlisted consumer usage") << "0300FFFF"
                                             << ""
                                             << "";
    QTest::newRow("disabled on the Fn layer") << "00000001"
                                              << ""
                                              << "";
    QTest::newRow("unknown kind") << "FFFFFFFF"
                                  << ""
                                  << "";
}

void TestKeyTexts::entryText()
{
    QFETCH(QString, entry);
    QFETCH(QString, prefixed);
    QFETCH(QString, bare);
    QCOMPARE(ModuleGenKeymapping::KeyEntryText(entryOf(entry), true), prefixed);
    QCOMPARE(ModuleGenKeymapping::KeyEntryText(entryOf(entry), false), bare);
}

/// Puts brackets around every text of the key vocabulary.
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "ModuleGenKeymapping") == 0 ? u'[' + QString::fromUtf8(source) + u']'
                                                            : QString();
    }
};

void TestKeyTexts::textsFollowTheLanguage()
{
    const auto text = [](const char *hex) {
        return ModuleGenKeymapping::KeyEntryText(entryOf(QString::fromLatin1(hex)), true);
    };
    BracketTranslator other;
    QCoreApplication::installTranslator(&other);
    QCOMPARE(text("0300E200"), QStringLiteral("[功能]: [静音]"));
    QCOMPARE(text("0100F000"), QStringLiteral("[鼠标]: [左键单击]"));
    QCOMPARE(text("002C0000"), QStringLiteral("[组合]: Space"));
    QCOMPARE(text("09000000"), QStringLiteral("[宏设置]"));
    QCoreApplication::removeTranslator(&other);
    QCOMPARE(text("0300E200"), QStringLiteral("功能: 静音"));
}

QTEST_GUILESS_MAIN(TestKeyTexts)
#include "tst_keytexts.moc"
