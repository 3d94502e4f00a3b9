#include "ModuleMacroManager.h"

#include <memory>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using Ids = QList<int>;

/// The user's macros and their files.
class TestMacroStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsWithEight();
    void fillsGapsUpToFifty();
    void comesBackAsItWas();
    void readsHeaders_data();
    void readsHeaders();
    void readsEvents_data();
    void readsEvents();
    void survivesTruncation();
    void brokenListKeepsTheSteps();
    void packs_data();
    void packs();

private:
    void restart() { store = std::make_unique<ModuleMacroManager>(folder->path()); }
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    void put(const char *name, const QByteArray &content) const;
    QByteArray content(const char *name) const;
    Ids ids() const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<ModuleMacroManager> store;
};

void TestMacroStore::init()
{
    store.reset();
    folder = std::make_unique<QTemporaryDir>();
}

void TestMacroStore::put(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray TestMacroStore::content(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Ids TestMacroStore::ids() const
{
    Ids result;
    for (const Macro *macro : store->macros())
        result.append(macro->id);
    return result;
}

void TestMacroStore::startsWithEight()
{
    const Ids eight{0, 1, 2, 3, 4, 5, 6, 7};
    restart();
    QCOMPARE(ids(), eight);
    QCOMPARE(store->macros().last()->name, QStringLiteral("新建宏7"));
    while (!store->macros().isEmpty())
        store->RemoveMacro(store->macros().first());
    QCOMPARE(ids(), Ids());
    restart();
    QCOMPARE(ids(), eight);
}

void TestMacroStore::fillsGapsUpToFifty()
{
    restart();
    store->RemoveMacro(store->FindMacro(2));
    QCOMPARE(store->AddMacro()->id, quint8(2));
    while (store->macros().size() < 50)
        QVERIFY(store->AddMacro());
    QVERIFY(!store->AddMacro());
    QCOMPARE(store->macros().size(), 50);
    QVERIFY(!store->FindMacro(50));
}

void TestMacroStore::comesBackAsItWas()
{
    restart();
    Macro *macro = store->FindMacro(3);
    macro->name = QStringLiteral("<b>连招</b> & \"combo\"");
    macro->repeat = 200;
    macro->mode = 2;
    QVERIFY(store->AddEvent(macro, MacroType::Key, 0xE0, true, QStringLiteral("L-Ctrl")));
    QVERIFY(store->AddEvent(macro, MacroType::Delay, 65535, false, QStringLiteral("延迟")));
    QVERIFY(store->AddEvent(macro, MacroType::Position, 256 * 127 + 127, false, {}));
    QVERIFY(!store->AddEvent(nullptr, MacroType::Key, 4, true, {}));
    store->SaveHeader();
    store->SaveEvents(macro);
    const QByteArray header = content("macroheader.txt");
    QVERIFY(header.contains("\"version\": \"20260109\"") && header.contains("\"count\": 8"));

    restart();
    const Macro *loaded = store->FindMacro(3);
    QCOMPARE(loaded->name, QStringLiteral("<b>连招</b> & \"combo\""));
    QCOMPARE(int(loaded->repeat), 200);
    QCOMPARE(int(loaded->mode), 2);
    QCOMPARE(loaded->events.size(), 3);
    QCOMPARE(loaded->events.at(0)->down, true);
    QCOMPARE(loaded->events.at(0)->text, QStringLiteral("L-Ctrl"));
    QCOMPARE(loaded->events.at(1)->value, quint16(65535));
    QCOMPARE(loaded->events.at(2)->value, quint16(32639));
    QVERIFY(store->FindMacro(7)->events.isEmpty());
}

void TestMacroStore::readsHeaders_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<Ids>("loaded");
    QTest::addColumn<bool>("isKept");
    const Ids eight{0, 1, 2, 3, 4, 5, 6, 7};
    const auto row = [](const char *name, const char *macros, const Ids &ids, bool kept) {
        QTest::newRow(name) << QByteArray("{\"version\":\"9\",\"macro\":[").append(macros).append("]}") << ids
                            << kept;
    };
    row("id out of range", R"({"id":50},{"id":-1},{"id":4,"mode":0,"name":"a","repeat":1})", {4}, true);
    row("same id twice", R"({"id":6,"mode":0,"name":"a","repeat":1},{"id":6,"mode":0,"name":"b","repeat":1})",
        {6}, true);
    row("other values of other types", R"({"id":5,"mode":256,"name":7,"repeat":-3})", {5}, true);
    row("entries that are no objects", R"(1,"x",null,[])", eight, true);
    QTest::newRow("no JSON") << QByteArray("\xff\x00\x80{", 4) << eight << true;
    QTest::newRow("an array") << QByteArray("[1, 2]") << eight << true;
    QTest::newRow("nested without end") << QByteArray(5'000'000, '[') << eight << true;
}

void TestMacroStore::readsHeaders()
{
    QFETCH(QByteArray, header);
    put("macroheader.txt", header);
    restart();
    QTEST(ids(), "loaded");
    for (const Macro *macro : store->macros())
        QVERIFY(!macro->name.contains(QLatin1Char('\n')) && macro->repeat == 1 && macro->mode == 0);
    store->SaveHeader();
    QTEST(QFile::exists(path("macroheader.txt.broken1")), "isKept");
    QFETCH(bool, isKept);
    QCOMPARE(content("macroheader.txt.broken1"), isKept ? header : QByteArray());
}

void TestMacroStore::readsEvents_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("loaded");
    QTest::addColumn<bool>("isKept");
    const QByteArray press = R"({"type":0,"value":4,"down":true,"text":"A"})";
    const QByteArray delay = R"({"type":3,"value":50,"down":false,"text":"x"})";
    const auto row = [](const char *name, const QByteArrayList &events, int loaded, bool isKept) {
        QTest::newRow(name) << QByteArray("{\"data\":[" + events.join(',') + "]}") << loaded << isKept;
    };
    row("a pair and a half", {press, delay, press}, 3, false);
    row("unknown type", {R"({"type":4,"value":4,"down":true,"text":""})", delay, press, delay}, 2, true);
    row("value out of range", {press, R"({"type":3,"value":65536,"down":false,"text":""})"}, 0, true);
    row("wrong types", {R"({"type":"0","value":[],"down":1,"text":{}})", delay, press, delay}, 2, true);
    row("more than a macro holds", QByteArrayList(10'001, press + ',' + delay),
        ModuleMacroManager::MostEvents, true);
    row("a million", QByteArrayList(500'000, press + ',' + delay), 0, true);
    QTest::newRow("no list") << QByteArray(R"({"data":5})") << 0 << true;
}

void TestMacroStore::readsEvents()
{
    QFETCH(QByteArray, file);
    put("macroevent3.txt", file);
    put("macroheader.txt", R"({"macro":[{"id":3,"mode":0,"name":"a","repeat":1}]})");
    restart();
    Macro *macro = store->FindMacro(3);
    QTEST(int(macro->events.size()), "loaded");
    while (store->AddEvent(macro, MacroType::Key, 4, true, QString(500, QLatin1Char('\n')))) {
    }
    store->SaveEvents(macro);
    QFETCH(bool, isKept);
    QCOMPARE(content("macroevent3.txt.broken1"), isKept ? file : QByteArray());
    restart(); // the largest macro with the longest texts can be read again
    QCOMPARE(store->FindMacro(3)->events.size(), ModuleMacroManager::MostEvents);
}

void TestMacroStore::survivesTruncation()
{
    restart();
    Macro *macro = store->FindMacro(0);
    store->AddEvent(macro, MacroType::Key, 4, true, QStringLiteral("A"));
    store->AddEvent(macro, MacroType::Delay, 50, false, QStringLiteral("延迟"));
    store->SaveEvents(macro);
    const QByteArray header = content("macroheader.txt");
    const QByteArray events = content("macroevent0.txt");
    QVERIFY(header.size() > 100 && events.size() > 100);
    // The last byte is a line end that the document doesn't need.
    for (qsizetype length = 0; length < events.size() - 1; ++length) {
        put("macroevent0.txt", events.first(length));
        restart();
        QVERIFY(store->FindMacro(0)->events.isEmpty());
        store->SaveEvents(store->FindMacro(0));
        QCOMPARE(content("macroevent0.txt.broken1"), events.first(length));
        QVERIFY(QFile::remove(path("macroevent0.txt.broken1")));
    }
    for (qsizetype length = 0; length < header.size() - 1; ++length) {
        put("macroheader.txt", header.first(length));
        restart();
        QCOMPARE(store->macros().size(), 8);
        QCOMPARE(content("macroheader.txt.broken1"), header.first(length));
        QVERIFY(QFile::remove(path("macroheader.txt.broken1")));
    }
}

void TestMacroStore::brokenListKeepsTheSteps()
{
    restart();
    store->AddEvent(store->FindMacro(5), MacroType::Key, 4, true, QStringLiteral("A"));
    store->SaveEvents(store->FindMacro(5));
    const QByteArray steps = content("macroevent5.txt");
    put("macroheader.txt", "{");
    restart();
    store->SaveEvents(store->FindMacro(5));
    QCOMPARE(content("macroevent5.txt.broken1"), steps);
}

void TestMacroStore::packs_data()
{
    using Pair = std::pair<MacroEvent, quint16>;
    QTest::addColumn<QList<MacroEvent>>("events");
    QTest::addColumn<QByteArray>("stream");
    const auto row = [](const char *name, const QList<Pair> &pairs, const char *stream) {
        QList<MacroEvent> events;
        for (const Pair &pair : pairs)
            events << pair.first << MacroEvent{MacroType::Delay, false, pair.second, {}};
        QTest::newRow(name) << events << QByteArray(stream);
    };
    const MacroEvent press{MacroType::Key, true, 0x04, {}};
    const MacroEvent release{MacroType::Key, false, 0x04, {}};
    const MacroEvent left{MacroType::Button, true, MacroButton::Left, {}};
    const MacroEvent position{MacroType::Position, false, 256 * 10 + 20, {}};
    const MacroEvent wide{MacroType::Delay, false, 0x1234, {}};
    row("empty", {}, "");
    row("longest short delay", {{press, 127}, {release, 127}}, "04 FF 04 7F");
    row("shortest long delay", {{press, 128}, {release, 128}}, "04 80 80 00 04 00 80 00");
    row("no delay", {{press, 0}, {release, 0}}, "04 80 04 00");
    row("mouse button", {{left, 300}}, "F0 80 2C 01");
    row("mouse position loses all", {{position, 50}}, "00 00");
    row("delay as an action", {{wide, 127}, {wide, 300}}, "F9 7F 34 12 F9 00 34 12 2C 01");
    QTest::newRow("action without its delay")
        << QList<MacroEvent>{press, wide, release} << QByteArray("04 80 34 12");
}

void TestMacroStore::packs()
{
    QFETCH(QList<MacroEvent>, events);
    Macro macro;
    for (const MacroEvent &event : events)
        macro.events.append(new MacroEvent(event));
    QTEST(PackMacro(&macro).toHex(' ').toUpper(), "stream");
    QCOMPARE(PackMacro(nullptr), QByteArray());
}

QTEST_GUILESS_MAIN(TestMacroStore)
#include "tst_macrostore.moc"
