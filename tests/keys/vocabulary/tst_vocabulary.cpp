#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "ModuleGenKeymapping.h"

#include <QFile>
#include <QTest>

/// The default matrices and the way from a position to a key code and back; names of keys, the lists of
/// functions, and the text of a key function. The .tsv files hold the rows as they are promised to the
/// keyboard and to the pickers.
class TestVocabulary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { factory = keys::defaultKeyMatrix(); }
    void cleanup() { QVERIFY(keys::SetDefaultKeyMap(factory)); }
    void factoryRowsReadAsOnTheBoard_data();
    void factoryRowsReadAsOnTheBoard();
    void keysWithoutPlainUsage();
    void everyKeyLeadsBackToItsPosition();
    void fnLayerStandsOneByteEarlyFromPosition15();
    void codesAndDefaultsFollowASavedMatrix();
    void entriesOutsideAMatrix_data();
    void entriesOutsideAMatrix();
    void keyNames();
    void functionLists();
    void entryText_data();
    void entryText();

private:
    QByteArray factory;
};

static QByteArray hexAt(const QByteArray &matrix, int position)
{
    return matrix.mid(position * KeyEntry::Size, KeyEntry::Size).toHex(' ').toUpper();
}

static KeyEntry entryOf(const QByteArray &hex)
{
    return keys::entryAt(QByteArray::fromHex(hex), 0);
}

void TestVocabulary::factoryRowsReadAsOnTheBoard_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("names"); // two blanks apart; -- for a hole or a key without a name
    QTest::newRow("function keys") << 0
                                   << "Esc  F1  F2  F3  F4  F5  F6  F7  F8  F9  F10  F11  F12  Delete  --";
    QTest::newRow("digits")
        << 1 << "` ~  1 !  2 @  3 #  4 $  5 %  6 ^  7 &  8 *  9 (  0 )  - _  = +  BackSpace  Home";
    QTest::newRow("upper letters") << 2 << "Tab  Q  W  E  R  T  Y  U  I  O  P  [ {  ] }  \\ |  Pgup";
    QTest::newRow("home letters") << 3 << "Caps-Lock  A  S  D  F  G  H  J  K  L  ; :  ' \"  --  Enter  Pgdn";
    QTest::newRow("lower letters") << 4 << "L-Shift  --  Z  X  C  V  B  N  M  , <  . >  / ?  R-Shift  ↑  End";
    QTest::newRow("thumb row")
        << 5 << "L-Ctrl  L-Win  L-Alt  --  --  --  Space  --  --  R-Alt  --  R-Ctrl  ←  ↓  →";
}

void TestVocabulary::factoryRowsReadAsOnTheBoard()
{
    QFETCH(int, row);
    QFETCH(QString, names);
    QStringList found;
    for (int position = row; position < 90; position += 6) {
        const QString name = keys::KeyNameByCode(keys::CodeOfPosition(quint8(position)));
        found += name.isEmpty() ? QStringLiteral("--") : name;
        if (!name.isEmpty())
            QCOMPARE(keys::defaultKeyMatrix().mid(position * KeyEntry::Size, 2).toHex(), QByteArray("0000"));
    }
    QCOMPARE(found.join(QStringLiteral("  ")), names);
}

void TestVocabulary::keysWithoutPlainUsage()
{
    const auto is = [](int position, int code, const char *entry) {
        return hexAt(keys::defaultKeyMatrix(), position) == entry &&
               keys::CodeOfPosition(quint8(position)) == code &&
               keys::PositionOfCode(quint8(code)) == position;
    };
    QVERIFY2(is(65, 0xFA, "0A 01 00 00"), "Fn");
    QVERIFY2(is(90, 0xEA, "03 00 EA 00"), "knob, volume down");
    QVERIFY2(is(91, 0xE9, "03 00 E9 00"), "knob, volume up");
    QVERIFY2(is(92, 0xFB, "0A 0E 00 00"), "knob press");
    QVERIFY2(is(96, 0xFC, "0D 02 02 00"), "backlight darker");
    QVERIFY2(is(97, 0xFD, "0D 02 01 00"), "backlight brighter");
}

void TestVocabulary::everyKeyLeadsBackToItsPosition()
{
    int found = 0;
    for (int position = 0; position <= 0xFF; ++position) {
        const quint8 code = keys::CodeOfPosition(quint8(position));
        if (code == 0)
            continue;
        ++found;
        QCOMPARE(int(keys::PositionOfCode(code)), position);
    }
    QCOMPARE(found, 87); // 81 plain keys, Fn, three parts of the knob, two lighting keys
    QCOMPARE(int(keys::PositionOfCode(0)), 10); // the first hole
    for (const quint8 code : {0x5F, 0xFE, 0xFF})
        QCOMPARE(keys::PositionOfCode(code), keys::NoPosition);
}

void TestVocabulary::fnLayerStandsOneByteEarlyFromPosition15()
{
    const QByteArray start =
        "00000000 0A020000 00000000 00000000 00000000 0D080000 03009401 00000000 00000000"
        "00000000 00000000 0A030000 03008A01 00000000 0A0A0000 0000000D 0801000D";
    const QByteArray &matrix = keys::defaultFnMatrix();
    QCOMPARE(matrix.size(), 512);
    QCOMPARE(matrix.left(17 * KeyEntry::Size), QByteArray::fromHex(start));
    QCOMPARE(matrix.mid(88 * KeyEntry::Size, 8), QByteArray::fromHex("0000000D 03020000")); // right arrow
    QCOMPARE(matrix.mid(93 * KeyEntry::Size), QByteArray(35 * KeyEntry::Size, '\0'));
}

void TestVocabulary::codesAndDefaultsFollowASavedMatrix()
{
    QByteArray board = factory;
    QVERIFY(keys::setEntryAt(board, 0, entryOf("00003500")));   // grave moves to the Esc position
    QVERIFY(keys::setEntryAt(board, 65, entryOf("00002900")));  // Esc under the Fn position
    QVERIFY(keys::setEntryAt(board, 127, entryOf("00005F00"))); // a key at the very end
    QVERIFY(keys::SetDefaultKeyMap(board + QByteArray("surplus")));

    QCOMPARE(keys::defaultKeyMatrix(), board);
    QCOMPARE(int(keys::PositionOfCode(0x35)), 0); // also still at 1: the first one wins
    QCOMPARE(int(keys::PositionOfCode(0x29)), 65);
    QCOMPARE(int(keys::CodeOfPosition(65)), 0xFA); // the own code stays
    QCOMPARE(int(keys::PositionOfCode(0x5F)), 127);
    QVERIFY(keys::DefaultEntryAt(0) == entryOf("00003500"));
    QVERIFY(keys::IsModifiedEntry(0, entryOf("00002900")));
    QVERIFY(!keys::IsModifiedEntry(0, entryOf("00003500")));
    QVERIFY(keys::IsModifiedEntry(0, entryOf("00350000"))); // the same key, but as a picker gives it
    QVERIFY(!keys::IsModifiedEntry(128, {}));               // past the matrix nothing is the default
    QVERIFY(keys::IsModifiedEntry(255, entryOf("00002900")));

    QVERIFY(!keys::SetDefaultKeyMap({}));
    QVERIFY(!keys::SetDefaultKeyMap(QByteArray(511, '\x04')));
    QCOMPARE(keys::defaultKeyMatrix(), board);
}

void TestVocabulary::entriesOutsideAMatrix_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("held");
    QTest::newRow("nothing read yet") << 0 << 0 << false;
    QTest::newRow("cut inside the entry") << 15 << 3 << false;
    QTest::newRow("last entry") << 16 << 3 << true;
    QTest::newRow("past the end") << 512 << 128 << false;
    QTest::newRow("negative") << 512 << -1 << false;
    QTest::newRow("far past any matrix") << 512 << 0x40000000 << false;
}

void TestVocabulary::entriesOutsideAMatrix()
{
    QFETCH(int, size);
    QFETCH(int, position);
    QFETCH(bool, held);
    const KeyEntry written = entryOf("09020500");
    QByteArray matrix(size, '\x07');
    QVERIFY(keys::entryAt(matrix, position) == (held ? entryOf("07070707") : KeyEntry{}));
    QCOMPARE(keys::setEntryAt(matrix, position, written), held);
    QVERIFY(keys::entryAt(matrix, position) == (held ? written : KeyEntry{}));
    QCOMPARE(matrix.size(), size);
}

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

void TestVocabulary::keyNames()
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

void TestVocabulary::functionLists()
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
            QVERIFY2(row->entry == entryOf(entry.toLatin1()), qPrintable(name));
            QCOMPARE(row->name(), name);
            if (!firstNames.contains(entry))
                firstNames.insert(entry, name);
            QCOMPARE(ModuleGenKeymapping::KeyEntryText(row->entry, false), group + firstNames.value(entry));
        }
        for (int past = int(rows.size()); past <= 0xFF; ++past)
            QVERIFY(!at(quint8(past)));
    }
}

void TestVocabulary::entryText_data()
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

void TestVocabulary::entryText()
{
    QFETCH(QString, group);
    QFETCH(QString, text);
    const KeyEntry entry = entryOf(QTest::currentDataTag());
    QCOMPARE(ModuleGenKeymapping::KeyEntryText(entry, true), group + text);
    QCOMPARE(ModuleGenKeymapping::KeyEntryText(entry, false), text);
}

QTEST_GUILESS_MAIN(TestVocabulary)
#include "tst_vocabulary.moc"
