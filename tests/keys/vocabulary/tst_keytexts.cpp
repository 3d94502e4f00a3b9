#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "ModuleGenKeymapping.h"

#include <QFile>
#include <QTest>

/// Names of keys, the lists of functions, and the text of a key function. The .tsv files hold the rows as
/// they are promised to the keyboard and to the pickers.
class TestKeyTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyNames();
    void functionLists();
    void firstRowWinsASearch();
    void entryText_data();
    void entryText();
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

void TestKeyTexts::functionLists()
{
    for (const bool mouse : {false, true}) {
        const auto at = mouse ? ModuleGenKeymapping::MouseEntryAt : ModuleGenKeymapping::FunctionEntryAt;
        const QString group = mouse ? QStringLiteral("鼠标: ") : QStringLiteral("功能: ");
        const auto rows = rowsOf(mouse ? QStringLiteral("mouse.tsv") : QStringLiteral("functions.tsv"));
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
}

void TestKeyTexts::firstRowWinsASearch()
{
    QCOMPARE(keys::KeyNameByCode(0x4A), QStringLiteral("Home"));
    QCOMPARE(keys::KeyNameByCode(0x50), QStringLiteral("←"));
    for (const int nameless : {0, int(keys::FnKeyCode), 0x104}) // 16 bits are compared
        QCOMPARE(keys::KeyNameByCode(quint16(nameless)), QString());
    const auto byScan = [](quint16 scan) {
        return QStringLiteral("%1 %2").arg(keys::KeyNameByScan(scan)).arg(keys::CodeByScan(scan), 0, 16);
    };
    QCOMPARE(byScan(0x47), QStringLiteral("Num-7 5f"));
    QCOMPARE(byScan(0x35), QStringLiteral("L-\\ 64")); // an extra key hides the slash
    QCOMPARE(byScan(0xE05C), QStringLiteral("R-Win e7"));
    QCOMPARE(byScan(0), QStringLiteral("_¥ 89"));
    QCOMPARE(byScan(0xFFFF), QStringLiteral(" 0"));
}

void TestKeyTexts::entryText_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *entry, const char *group, const char *text) {
        QTest::newRow(entry) << QString::fromUtf8(group) << QString::fromUtf8(text);
    };
    row("00000000", "", "");
    row("00002C00", "", ""); // a plain key in factory form
    row("002C0000", "组合: ", "Space");
    row("00E0E14C", "组合: ", "L-Ctrl + L-Shift + Delete");
    row("00E00004", "组合: ", "L-Ctrl + A");
    row("00E0FA04", "组合: ", "L-Ctrl + A"); // a key without a name is left out
    row("0000E304", "", "");
    row("00E02C00", "", "功能: 切换输入法"); // the list comes before the combination
    row("03002402", "", "功能: 后退");       // the first of two names
    row("09020500", "", "宏设置");
    row("0D290000", "组合: ", "Esc"); // an unlisted light entry reads as keys
    row("0300FFFF", "", "");
    row("00000001", "", "");
    row("FFFFFFFF", "", "");
}

void TestKeyTexts::entryText()
{
    QFETCH(QString, group);
    QFETCH(QString, text);
    const KeyEntry entry = entryOf(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(ModuleGenKeymapping::KeyEntryText(entry, true), group + text);
    QCOMPARE(ModuleGenKeymapping::KeyEntryText(entry, false), text);
}

QTEST_GUILESS_MAIN(TestKeyTexts)
#include "tst_keytexts.moc"
