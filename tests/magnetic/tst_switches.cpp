#include "ModuleLinear.h"
#include "PageOnKeyboard.h"
#include "SwitchTypes.h"

#include <memory>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>

namespace {

constexpr quint8 KeyA = 4;
constexpr quint8 KeyS = 22;
constexpr quint8 KeyW = 26;
constexpr quint8 TopZone = 0x06;
constexpr quint8 BottomZone = 0xFB;
constexpr quint8 TypeTable = 0xFC;
constexpr size_t ProtectionByte = 3;
constexpr size_t LevelByte = 4;

} // namespace

/// Dead zones, switch types, and the two options that hold for the whole keyboard.
class TestSwitches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase() { shared.reset(); }

    void deadZonesAreSet();
    void everyTypeHasItsOwnRow();
    void offeredTypes_data();
    void offeredTypes();
    void heldTypesShow_data();
    void heldTypesShow();
    void keysAreForSomePages_data();
    void keysAreForSomePages();
    void optionsAreSet_data();
    void optionsAreSet();
    void optionsAreRead_data();
    void optionsAreRead();
    void thePageWorksWithoutAConnection();

private:
    QColor borderOf(quint8 code) const;
    QByteArray levels() const;

    std::unique_ptr<PageOnKeyboard> shared; // read once for all tests
};

void TestSwitches::initTestCase()
{
    shared = std::make_unique<PageOnKeyboard>();
    QVERIFY(shared->device.readAll());
}

void TestSwitches::init()
{
    shared->beginLog();
}

QColor TestSwitches::borderOf(quint8 code) const
{
    const KeyboardButton *key = shared->key(code);
    return shared->keyboard->grab().toImage().pixelColor(key->pos() + QPoint(key->width() / 2, 1));
}

/// Which of the five levels is picked, as a row of digits.
QByteArray TestSwitches::levels() const
{
    QByteArray row;
    for (int level = 0; level < 5; ++level)
        row += shared->find<QRadioButton>("radioButtonStab" + QByteArray::number(level))->isChecked() ? '1'
                                                                                                      : '0';
    return row;
}

void TestSwitches::deadZonesAreSet()
{
    shared->click("pushButtonSet1");
    shared->click("pushButtonSetDeathzone"); // no key is selected
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(0));
    shared->clickKeys({"\x04\x16\x1A", 3});
    QCOMPARE(shared->find<QLabel>("labelSelectDZKey")->text(), QStringLiteral("已选中按键的数量: 3"));
    auto *zones = shared->find<ModuleLinear>("frameDead");
    zones->findChild<QLineEdit *>(QStringLiteral("lineEditValue1"))->setText(QStringLiteral("0.2"));
    zones->findChild<QLineEdit *>(QStringLiteral("lineEditValue2"))->setText(QStringLiteral("1.5"));
    shared->click("pushButtonSetDeathzone");
    const QStringList set{QStringLiteral("0.20"), QStringLiteral("1.500")};
    QCOMPARE(shared->key(KeyW)->captions(), set);
    shared->device.settle();
    const QStringList writes = shared->writes();
    QCOMPARE(writes.size(), 6);
    QCOMPARE(writes.filter(QStringLiteral(":1:")), QStringList{writes.last()}); // the commit
    for (const quint8 code : {KeyA, KeyS, KeyW}) {
        QCOMPARE(shared->held(TopZone, code), 40U);
        QCOMPARE(shared->held(BottomZone, code), 300U); // whole, though pages of the table carry a byte
    }
    // Coming back, the bottom zone stands above, and what a byte holds of it.
    shared->click("pushButtonSet1");
    QCOMPARE(shared->key(KeyW)->captions(), (QStringList{QStringLiteral("0.22"), QStringLiteral("0.200")}));
}

void TestSwitches::everyTypeHasItsOwnRow()
{
    QSet<int> ids;
    QSet<QRgb> colors;
    for (const switchtypes::SwitchType &type : switchtypes::All) {
        ids.insert(type.id);
        colors.insert(type.color);
        QCOMPARE(&switchtypes::shownFor(type.id), &type);
    }
    QCOMPARE(ids.size(), 16);
    QCOMPARE(colors.size(), 16);
    QCOMPARE(&switchtypes::shownFor(6), &switchtypes::All.front());
}

void TestSwitches::offeredTypes_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    int place = 0;
    QTest::newRow("first") << place++ << 25 << QStringLiteral("炫光");
    QTest::newRow("second") << place++ << 31 << QStringLiteral("闪电");
    QTest::newRow("third, by another's name") << place++ << 95 << QStringLiteral("星芒磁轴");
    QTest::newRow("fourth") << place++ << 1 << QStringLiteral("磁玉");
    QTest::newRow("fifth") << place++ << 2 << QStringLiteral("磁玉Pro");
    QTest::newRow("sixth") << place++ << 3 << QStringLiteral("磁玉Gaming");
    QTest::newRow("seventh") << place++ << 4 << QStringLiteral("天王");
    QTest::newRow("eighth") << place++ << 5 << QStringLiteral("万磁王");
}

void TestSwitches::offeredTypes()
{
    QFETCH(int, place);
    QFETCH(int, type);
    const QByteArray number = QByteArray::number(place);
    QTEST(shared->find<QLabel>("labelName" + number)->text(), "name");
    shared->click("pushButtonSet2");
    if (place == 0)
        QVERIFY(shared->find("pushButtonMT0")->isChecked()); // picked from the start
    shared->click("pushButtonMT" + number);
    shared->clickKeys({"\x04", 1});
    const QColor color(switchtypes::shownFor(quint8(type)).color);
    QCOMPARE(borderOf(KeyA), QColor(color.blue(), color.green(), color.red())); // as keys paint it
    shared->device.settle();
    const QString write = QStringLiteral("fc:%1:1:%2").arg(keys::PositionOfCode(KeyA)).arg(type);
    QCOMPARE(shared->writes(), QStringList{write});

    shared->click("pushButtonSet1");
    shared->clickKeys({"\x16", 1}); // selects
    shared->device.settle();
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(1));
    QVERIFY(shared->key(KeyA)->toolTip().isEmpty());
}

void TestSwitches::heldTypesShow_data()
{
    QTest::addColumn<int>("held");
    QTest::addColumn<QRgb>("color");
    QTest::addColumn<QString>("name");
    QTest::newRow("offered") << 25 << QRgb(0x2FC1FF) << QStringLiteral("炫光");
    QTest::newRow("known") << 71 << QRgb(0xFF6D6B) << QStringLiteral("矮磁轴");
    QTest::newRow("unknown") << 6 << QRgb(0x9B9B9B) << QString();
}

void TestSwitches::heldTypesShow()
{
    QFETCH(int, held);
    QFETCH(QRgb, color);
    shared->device.connection.SetMagnetism(TypeTable, keys::PositionOfCode(KeyS), quint32(held));
    shared->click("pushButtonSet2");
    QCOMPARE(borderOf(KeyS), QColor(qBlue(color), qGreen(color), qRed(color)));
    QTEST(shared->key(KeyS)->toolTip(), "name");
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(0));
}

void TestSwitches::keysAreForSomePages_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("travel") << QByteArray("pushButtonSet0") << true;
    QTest::newRow("dead zones") << QByteArray("pushButtonSet1") << true;
    QTest::newRow("types") << QByteArray("pushButtonSet2") << true;
    QTest::newRow("stabilisation") << QByteArray("pushButtonSet3") << false;
    QTest::newRow("tests") << QByteArray("pushButtonSet4") << false;
}

void TestSwitches::keysAreForSomePages()
{
    QFETCH(QByteArray, button);
    shared->click("pushButtonSet0");
    shared->clickKeys({"\x04", 1});
    shared->click(button);
    QByteArray codes;
    QCOMPARE(shared->keyboard->selectedCodes(codes), 0);
    shared->clickKeys({"\x16", 1});
    QTEST(shared->keyboard->selectedCodes(codes) == 1, "enabled");
    QTEST(shared->key(KeyA)->isEnabled(), "enabled");
}

void TestSwitches::optionsAreSet_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<size_t>("byte");
    QTest::addColumn<int>("value");
    for (int level = 4; level >= 0; --level)
        QTest::addRow("level %d", level)
            << QByteArray("radioButtonStab") + QByteArray::number(level) << LevelByte << level;
    QTest::newRow("protection on") << QByteArray("checkBoxTouch") << ProtectionByte << 1;
    QTest::newRow("protection off") << QByteArray("checkBoxTouch") << ProtectionByte << 0;
}

void TestSwitches::optionsAreSet()
{
    QFETCH(QByteArray, button);
    QFETCH(size_t, byte);
    shared->click("pushButtonSet3");
    shared->click(button);
    shared->device.settle();
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(1));
    QTEST(int(shared->device.keyboard->state().settings.options[byte]), "value");
    QCOMPARE(shared->find<QLabel>("labelTunch")->text(), shared->find("checkBoxTouch")->isChecked()
                                                             ? QStringLiteral("已开启")
                                                             : QStringLiteral("已关闭"));
}

void TestSwitches::optionsAreRead_data()
{
    QTest::addColumn<int>("protection");
    QTest::addColumn<int>("level");
    QTest::addColumn<QByteArray>("levels");
    QTest::newRow("on, middle") << 5 << 2 << QByteArray("00100");
    QTest::newRow("off, a level that isn't there") << 0 << 5 << QByteArray("00100"); // stays
}

void TestSwitches::optionsAreRead()
{
    QFETCH(int, protection);
    QFETCH(int, level);
    shared->device.keyboard->edit([protection, level](sim::KeyboardState &state) {
        state.settings.options[ProtectionByte] = sim::Byte(protection);
        state.settings.options[LevelByte] = sim::Byte(level);
    });
    shared->click("pushButtonSet3");
    shared->device.connection.deviceChanged(); // the options are read at a connect
    shared->device.readDone.clear();
    QVERIFY(shared->device.readDone.wait(20000));
    QTEST(levels(), "levels");
    QCOMPARE(shared->find("checkBoxTouch")->isChecked(), protection != 0);
    QCOMPARE(shared->find<QLabel>("labelTunch")->text(),
             protection ? QStringLiteral("已开启") : QStringLiteral("已关闭"));
    QVERIFY(shared->find("pushButtonSet0")->isChecked()); // a read leads back to the travels
    QVERIFY(shared->find<QWidget>("page0")->isVisibleTo(&shared->page));
    for (const QByteArray &command : shared->device.commands().split(' '))
        QVERIFY(command != "09"); // what is read isn't sent back
}

void TestSwitches::thePageWorksWithoutAConnection()
{
    shared.reset();
    FrameMagic page;
    auto *keyboard = page.findChild<ModuleKeyboard *>();
    const char *applies[] = {"pushButtonSetRT", "pushButtonSetDeathzone", "pushButtonMT1", "radioButtonStab1",
                             "checkBoxTouch"};
    for (int i = 0; i < 5; ++i) {
        page.findChild<QAbstractButton *>(QStringLiteral("pushButtonSet%1").arg(i))->click();
        keyboard->selectAll(true);
        QTest::mouseClick(keyboard->keyButton(KeyA), Qt::LeftButton);
        page.findChild<QAbstractButton *>(QLatin1String(applies[i]))->click();
    }
    QCOMPARE(page.findChild<QLabel *>(QStringLiteral("labelTunch"))->text(), QStringLiteral("已开启"));
}

QTEST_MAIN(TestSwitches)
#include "tst_switches.moc"
