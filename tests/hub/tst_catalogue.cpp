#include "ConfigFolder.h"
#include "DeviceEnumInfo.h"
#include "EnumSettings.h"
#include "ModelCatalog.h"
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
        text += "{\"id\":" + QByteArray::number(100000 + i) + ",\"displayName\":\"Board\"},";
    return text + "{\"id\":2807,\"displayName\":\"Last\"}]}";
}

} // namespace

/// What the catalogue, the custom list and the settings of the search make of their files.
class TestCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { config = std::make_unique<ConfigFolder>(); }
    void cleanup() { config.reset(); }

    void brandsHaveTheSameDevices();
    void catalogueFiles_data();
    void catalogueFiles();
    void customListFiles_data();
    void customListFiles();
    void customListById();
    void folderInPlaceOfAFile();
    void vendors_data();
    void vendors();

private:
    std::unique_ptr<ConfigFolder> config;
};

void TestCatalogue::brandsHaveTheSameDevices()
{
    for (const sim::Model &model : sim::Models) {
        quint16 first = 0;
        quint16 second = 0;
        const bool known = !OrbeDeviceBase::lookupName(model.deviceId, first, 0).isEmpty();
        const QString name = OrbeDeviceBase::lookupName(model.deviceId, second, 1);
        QCOMPARE(name.startsWith(QLatin1String("Tarnwick")), known);
        QCOMPARE(second, first);
    }
}

void TestCatalogue::catalogueFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type"); // 65535: left as it was
    const QString none;
    const auto board = QStringLiteral("Board");

    QTest::newRow("in an object") << QByteArray(R"({"mouse":[{"id":2807,"displayName":" Board "}]})") << board
                                  << 1;
    QTest::newRow("first array wins")
        << QByteArray(
               R"({"mouse":[{"id":2807,"displayName":"M"}],"keyboard":[{"id":2807,"displayName":"Board"}]})")
        << board << 0;
    QTest::newRow("hit box keyboard")
        << QByteArray(R"({"hitBoxKeyboard":[{"id":2807,"displayName":"Board"}]})") << board << 3;
    QTest::newRow("hit box screen") << QByteArray(R"({"hitBoxScreen":[{"id":2807,"displayName":"Board"}]})")
                                    << board << 3;
    QTest::newRow("in a plain array")
        << QByteArray(R"([{"id":1},{"id":2807,"displayName":"Board"}])") << board << 65535;
    QTest::newRow("plain array without it")
        << QByteArray(R"([{"id":1,"displayName":"Board"}])") << none << 255;
    QTest::newRow("other key") << QByteArray(R"({"pad":[{"id":2807,"displayName":"Board"}]})") << none << 255;
    QTest::newRow("id as text") << QByteArray(R"({"keyboard":[{"id":"2807","displayName":"Board"}]})") << none
                                << 255;
    QTest::newRow("id with a fraction")
        << QByteArray(R"({"keyboard":[{"id":2807.5,"displayName":"Board"}]})") << none << 255;
    QTest::newRow("name is a number")
        << QByteArray(R"({"keyboard":[{"id":2807,"displayName":5}]})") << none << 0;
    QTest::newRow("elements are no objects")
        << QByteArray(R"({"keyboard":[1,"x",null,[]],"mouse":7})") << none << 255;
    QTest::newRow("byte order mark")
        << QByteArray("\xEF\xBB\xBF{\"keyboard\":[{\"id\":2807,\"displayName\":\"Board\"}]}") << board << 0;
    QTest::newRow("foreign encoding spoils only the name")
        << QByteArray("{\"keyboard\":[{\"id\":1,\"displayName\":\"\xBC\xFC\xC5\xCC\"},"
                      "{\"id\":2807,\"displayName\":\"Board\"}]}")
        << board << 0;
    QTest::newRow("two-byte encoding")
        << utf16(R"({"keyboard":[{"id":2807,"displayName":"Board"}]})") << none << 255;
    QTest::newRow("empty") << QByteArray() << none << 255;
    QTest::newRow("cut short") << QByteArray(R"({"keyboard":[{"id":2807,"displayName":"Boa)") << none << 255;
    QTest::newRow("binary") << junk(100000) << none << 255;
    QTest::newRow("deeply nested") << QByteArray(100000, '[') << none << 255;
    QTest::newRow("100,000 devices") << largeCatalogue(100000) << QStringLiteral("Last") << 0;
    QTest::newRow("beyond all measure") << QByteArray(33 * 1024 * 1024, ' ') << none << 255;
    QTest::newRow("name of 10,000 characters with markup")
        << QByteArray("[{\"id\":2807,\"displayName\":\"<b>/\\\\ " + QByteArray(10000, 'x') + "\"}]")
        << QString(QStringLiteral("<b>/\\ ") + QString(10000, u'x')) << 65535;
}

void TestCatalogue::catalogueFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, name);
    QFETCH(int, type);
    config->write(Catalogue, content);

    quint16 found = 65535;
    QCOMPARE(OrbeDeviceBase::lookupName(2807, found, OrbeDeviceBase::FirstBrand), name);
    QCOMPARE(int(found), type);

    config->remove(Catalogue);
    found = 65535;
    QVERIFY(OrbeDeviceBase::lookupName(2807, found, OrbeDeviceBase::FirstBrand).isEmpty());
    QCOMPARE(int(found), 255);
}

void TestCatalogue::customListFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("reported"); // 0: not in the list
    QTest::addColumn<QString>("name");
    const QString none;
    const auto board = QStringLiteral("Board");
    const QByteArray marker("text\n ////CustomDeviceList//// \n");
    const QByteArray record("0x51,0x38EE,0x31,0x51,1,2,Board\n");

    QTest::newRow("plain") << QByteArray(marker + record) << 0x51 << board;
    QTest::newRow("decimal and hexadecimal alike")
        << QByteArray(marker + "81,14574,0X0031,0x0051,0x1,2,Board") << 0x51 << board;
    QTest::newRow("braces, quotes and blanks")
        << QByteArray(marker +
                      "\r\n { \"0x51\" , \" 0x38ee\", \"0x31\",\"0x51 \", \"1\", \"2\", \" Board \" },\r\n")
        << 0x51 << board;
    QTest::newRow("first match wins")
        << QByteArray(marker + record + "0x52,0x38EE,0x31,0x51,1,2,Other") << 0x51 << board;
    QTest::newRow("ids of 16 bits are cut, the probed id is not")
        << QByteArray(marker + "9,0x38EE,0x31,0x10051,0,0,Wrong\n0x10051,0x138EE,0x10031,0x51,1,2,Board")
        << 0x51 << board;
    QTest::newRow("no marker") << record << 0 << none;
    QTest::newRow("marker in other letters")
        << QByteArray("////customdevicelist////\n" + record) << 0 << none;
    QTest::newRow("records above the marker only") << QByteArray(record + marker) << 0 << none;
    QTest::newRow("marker twice") << QByteArray(marker + marker + record) << 0x51 << board;
    QTest::newRow("six fields have no name")
        << QByteArray(marker + "0x51,0x38EE,0x31,0x51,1,2") << 0x51 << none;
    QTest::newRow("five fields are no record")
        << QByteArray(marker + "0x50,0x38EE,0x31,0x51,1\n{}\n\n" + record) << 0x51 << board;
    QTest::newRow("no numbers") << QByteArray(marker + "a,b,c,d,e,f,Board\n-1,1.5,0xZZ,12 0x1,,,Board") << 0
                                << none;
    QTest::newRow("two-byte encoding")
        << utf16("////CustomDeviceList////\n0x51,0x38EE,0x31,0x51,1,2,Board\n") << 0x51 << board;
    QTest::newRow("empty") << QByteArray() << 0 << none;
    QTest::newRow("binary") << QByteArray(marker + junk(100000)) << 0 << none;
    QTest::newRow("one line of 8 MiB")
        << QByteArray(marker + QByteArray(8 << 20, ',') + "\n" + record) << 0x51 << board;
}

void TestCatalogue::customListFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(int, reported);
    QFETCH(QString, name);
    config->write(CustomListFile, content);

    QString found;
    quint16 type = 77;
    quint16 connection = 88;
    const quint64 id = OrbeDeviceBase::lookupCustom(0x38EE, 0x31, 0x51, found, type, connection);
    QCOMPARE(id, quint64(reported));
    QCOMPARE(found, name);
    QCOMPARE(int(type), reported ? 1 : 77);
    QCOMPARE(int(connection), reported ? 2 : 88);
}

void TestCatalogue::customListById()
{
    quint16 type = 77;
    QCOMPARE(OrbeDeviceBase::lookupName(0xFB29, type, OrbeDeviceBase::CustomList),
             QStringLiteral("Orbe JM Keyboard"));
    QCOMPARE(int(type), 0);
    QVERIFY(OrbeDeviceBase::lookupName(0x1234, type, OrbeDeviceBase::CustomList).isEmpty());
    QCOMPARE(int(type), 255);
}

void TestCatalogue::folderInPlaceOfAFile()
{
    for (const char *file : {Catalogue, CustomListFile, SettingsFile}) {
        config->remove(file);
        QVERIFY(QDir().mkpath(config->path(file)));
    }
    QString name;
    quint16 type = 0;
    QVERIFY(OrbeDeviceBase::lookupName(2807, type, OrbeDeviceBase::FirstBrand).isEmpty());
    QCOMPARE(OrbeDeviceBase::lookupCustom(0x3554, 0xFA09, 0xFB29, name, type, type), quint64(0));
    QCOMPARE(enumsettings::cloudVendors().size(), std::size_t(5));
}

void TestCatalogue::vendors_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QList<int>>("vendors");
    const QList<int> standard{0x3151, 0x38EE, 0x25A7, 0x05AC, 0x0461};

    QTest::newRow("empty file") << QByteArray() << standard;
    QTest::newRow("other keys") << QByteArray("VIDset1=\"0x1\"\n") << standard;
    QTest::newRow("quoted") << QByteArray("VIDset0=\"0x3151, 1121\"\n") << QList<int>{0x3151, 0x461};
    QTest::newRow("without quotes") << QByteArray("VIDset0=0x3151, 1121\n") << QList<int>{0x3151, 0x461};
    QTest::newRow("one") << QByteArray("VIDset0=0X05ac") << QList<int>{0x5AC};
    QTest::newRow("twice, and more than 16 bits")
        << QByteArray("VIDset0=\"0x3151,0x13151\"") << QList<int>{0x3151, 0x3151};
    QTest::newRow("no numbers") << QByteArray("VIDset0=\"abc,\"") << QList<int>{0, 0};
    QTest::newRow("other type") << QByteArray("VIDset0=@Rect(0 0 1 1)") << standard;
    QTest::newRow("binary") << junk(5000) << standard;
    QTest::newRow("two-byte encoding") << utf16("VIDset0=\"0x3151\"\n") << standard;
    QTest::newRow("beyond all measure") << QByteArray("VIDset0=1\n;" + QByteArray(1 << 20, 'x')) << standard;
}

void TestCatalogue::vendors()
{
    QFETCH(QByteArray, content);
    QFETCH(QList<int>, vendors);
    config->write(SettingsFile, content);
    const auto found = enumsettings::cloudVendors();
    QCOMPARE(QList<int>(found.begin(), found.end()), vendors);

    config->remove(SettingsFile);
    QCOMPARE(enumsettings::cloudVendors().size(), std::size_t(5));
}

QTEST_GUILESS_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
