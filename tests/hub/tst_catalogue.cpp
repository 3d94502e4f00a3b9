#include "ConfigFolder.h"
#include "DeviceEnumInfo.h"
#include "EnumSettings.h"
#include "OrbeDeviceBase.h"

#include <QDir>
#include <QStringConverter>
#include <QTest>

namespace {

constexpr auto Catalogue = "OrbeHubDevices.json";
constexpr auto CustomListFile = "CustomDeviceList.json";
constexpr auto SettingsFile = "enumsetting.ini";

QByteArray utf16(const char *text)
{
    QStringEncoder encoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
    return encoder(QString::fromUtf8(text));
}

QByteArray junk(int size)
{
    QByteArray bytes(size, '\0');
    quint32 state = 1;
    for (char &byte : bytes)
        byte = char((state = state * 1664525u + 1013904223u) >> 24);
    return bytes;
}

QByteArray largeCatalogue(int devices)
{
    QByteArray text("{\"keyboard\":[");
    for (int i = 0; i < devices; ++i)
        text += "{\"id\":" + QByteArray::number(100000 + i) + ",\"displayName\":\"Other\"},";
    return text + "{\"id\":2807,\"displayName\":\"Board\"}]}";
}

} // namespace

/// What the catalogue, the custom list and the settings of the search make of their files.
class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogueFiles_data();
    void catalogueFiles();
    void customListFiles_data();
    void customListFiles();
    void vendors_data();
    void vendors();
    void folderInPlaceOfAFile();

private:
    ConfigFolder config;
};

void TestCatalogue::catalogueFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("type"); // 65535: left as it was
    const auto row = [](const char *title, const QByteArray &content, bool found, int type) {
        QTest::newRow(title) << content << found << type;
    };
    row("in an object", R"({"mouse":[{"id":2807,"displayName":" Board "}]})", true, MouseType);
    row("first array wins",
        R"({"mouse":[{"id":2807,"displayName":"M"}],"keyboard":[{"id":2807,"displayName":"Board"}]})", true,
        KeyboardType);
    row("hit box", R"({"hitBoxKeyboard":[{"id":2807,"displayName":"Board"}]})", true, 3);
    row("in a plain array", R"([{"id":1},{"id":2807,"displayName":"Board"}])", true, 65535);
    row("plain array without it", R"([{"id":1,"displayName":"Board"}])", false, 255);
    row("id as text", R"({"keyboard":[{"id":"2807","displayName":"Board"}]})", false, 255);
    row("id with a fraction", R"({"keyboard":[{"id":2807.5,"displayName":"Board"}]})", false, 255);
    row("name is a number", R"({"keyboard":[{"id":2807,"displayName":5}]})", false, KeyboardType);
    row("elements are no objects", R"({"keyboard":[1,"x",null,[]],"mouse":7})", false, 255);
    row("byte order mark", "\xEF\xBB\xBF{\"keyboard\":[{\"id\":2807,\"displayName\":\"Board\"}]}", true,
        KeyboardType);
    row("foreign encoding spoils only the name",
        "{\"keyboard\":[{\"displayName\":\"\xBC\xFC\xC5\xCC\"},{\"id\":2807,\"displayName\":\"Board\"}]}",
        true, KeyboardType);
    row("two-byte encoding", utf16(R"({"keyboard":[{"id":2807,"displayName":"Board"}]})"), false, 255);
    row("empty", {}, false, 255);
    row("cut short", R"({"keyboard":[{"id":2807,"displayName":"Boa)", false, 255);
    row("binary", junk(100000), false, 255);
    row("deeply nested", QByteArray(100000, '['), false, 255);
    row("100,000 devices", largeCatalogue(100000), true, KeyboardType);
    row("beyond all measure", QByteArray(33 * 1024 * 1024, ' '), false, 255);
}

void TestCatalogue::catalogueFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, found);
    config.write(Catalogue, content);
    quint16 type = 65535;
    QCOMPARE(OrbeDeviceBase::lookupName(2807, type, OrbeDeviceBase::FirstBrand),
             found ? QStringLiteral("Board") : QString());
    QTEST(int(type), "type");
}

void TestCatalogue::customListFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("reported"); // 0: not in the list
    const QByteArray marker("text\n ////CustomDeviceList//// \n");
    const QByteArray record("0x51,0x38EE,0x31,0x51,1,2,Board\n");
    const auto row = [](const char *title, const QByteArray &content, int reported) {
        QTest::newRow(title) << content << reported;
    };
    row("plain, the first match wins", marker + record + "0x52,0x38EE,0x31,0x51,1,2,Other", 0x51);
    row("decimal and hexadecimal alike", marker + "81,14574,0X0031,0x0051,0x1,2,Board", 0x51);
    row("braces, quotes and blanks",
        marker + "\r\n { \"0x51\" , \" 0x38ee\", \"0x31\",\"0x51 \", \"1\", \"2\", \" Board \" },\r\n", 0x51);
    row("ids of 16 bits are cut, the probed id is not",
        marker + "9,0x38EE,0x31,0x10051,0,0,Wrong\n0x10051,0x138EE,0x10031,0x51,1,2,Board", 0x51);
    row("no marker", record, 0);
    row("records above the marker only", record + marker, 0);
    row("five fields are no record", marker + "0x50,0x38EE,0x31,0x51,1\n{}\n\n" + record, 0x51);
    row("no numbers", marker + "a,b,c,d,e,f,Board\n-1,1.5,0xZZ,12 0x1,,,Board", 0);
    row("two-byte encoding", utf16("////CustomDeviceList////\n0x51,0x38EE,0x31,0x51,1,2,Board\n"), 0x51);
    row("empty", {}, 0);
    row("binary", marker + junk(100000), 0);
    row("one line of 8 MiB", marker + QByteArray(8 << 20, ',') + "\n" + record, 0x51);
}

void TestCatalogue::customListFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(int, reported);
    config.write(CustomListFile, content);
    QString found;
    quint16 type = 77;
    quint16 connection = 88;
    QCOMPARE(OrbeDeviceBase::lookupCustom(0x38EE, 0x31, 0x51, found, type, connection), quint64(reported));
    QCOMPARE(found, reported ? QStringLiteral("Board") : QString());
    QCOMPARE(int(type), reported ? 1 : 77);
    QCOMPARE(int(connection), reported ? 2 : 88);
}

void TestCatalogue::vendors_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QList<int>>("vendors");
    const QList<int> standard{0x3151, 0x38EE, 0x25A7, 0x05AC, 0x0461};
    QTest::newRow("empty file") << QByteArray() << standard;
    QTest::newRow("quoted") << QByteArray("VIDset0=\"0x3151, 1121\"\n") << QList<int>{0x3151, 0x461};
    QTest::newRow("one") << QByteArray("VIDset0=0X05ac") << QList<int>{0x5AC};
    QTest::newRow("twice, and more than 16 bits")
        << QByteArray("VIDset0=0x3151,0x13151") << QList<int>{0x3151, 0x3151};
    QTest::newRow("no numbers") << QByteArray("VIDset0=\"abc,\"") << QList<int>{0, 0};
    QTest::newRow("other type") << QByteArray("VIDset0=@Rect(0 0 1 1)") << standard;
    QTest::newRow("binary") << junk(5000) << standard;
    QTest::newRow("beyond all measure") << QByteArray("VIDset0=1\n;" + QByteArray(1 << 20, 'x')) << standard;
}

void TestCatalogue::vendors()
{
    QFETCH(QByteArray, content);
    config.write(SettingsFile, content);
    const auto found = enumsettings::cloudVendors();
    QTEST(QList<int>(found.begin(), found.end()), "vendors");
}

void TestCatalogue::folderInPlaceOfAFile()
{
    QString name;
    quint16 type = 0;
    for (const bool isFolder : {false, true}) { // missing at first
        for (const char *file : {Catalogue, CustomListFile, SettingsFile}) {
            config.remove(file);
            QVERIFY(!isFolder || QDir().mkpath(config.path(file)));
        }
        QVERIFY(OrbeDeviceBase::lookupName(2807, type, OrbeDeviceBase::FirstBrand).isEmpty());
        QCOMPARE(OrbeDeviceBase::lookupCustom(0x3554, 0xFA09, 0xFB29, name, type, type), quint64(0));
        QCOMPARE(enumsettings::cloudVendors().size(), std::size_t(5));
    }
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
