#include "ModuleLinear.h"
#include "PageOnKeyboard.h"
#include "SwitchTypes.h"

#include <memory>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

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
    void offeredTypes();
    void heldTypesShow_data();
    void heldTypesShow();
    void keysAreForSomePages();
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

void TestSwitches::offeredTypes()
{
    constexpr std::array Types{25, 31, 95, 1, 2, 3, 4, 5}; // by place
    shared->click("pushButtonSet2");
    QVERIFY(shared->find("pushButtonMT0")->isChecked()); // picked from the start
    QStringList expected;
    for (size_t place = 0; place < Types.size(); ++place) {
        if (place > 0)
            shared->click("pushButtonMT" + QByteArray::number(place));
        shared->clickKeys({"\x04", 1});
        const QColor color(switchtypes::shownFor(quint8(Types[place])).color);
        QCOMPARE(borderOf(KeyA), QColor(color.blue(), color.green(), color.red())); // as keys paint it
        expected += QStringLiteral("fc:%1:1:%2").arg(keys::PositionOfCode(KeyA)).arg(Types[place]);
    }
    QCOMPARE(shared->find<QLabel>("labelName2")->text(), QStringLiteral("星芒磁轴")); // another type's name
    shared->click("pushButtonSet1");
    shared->clickKeys({"\x04", 1}); // selects
    shared->device.settle();
    QCOMPARE(shared->writes(), expected);
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

void TestSwitches::keysAreForSomePages()
{
    constexpr std::array Enabled{true, true, true, false, false}; // by sub-page
    for (size_t index = 0; index < Enabled.size(); ++index) {
        shared->keyboard->selectAll(true);
        shared->click("pushButtonSet" + QByteArray::number(index));
        QByteArray codes;
        QCOMPARE(shared->keyboard->selectedCodes(codes), 0);
        QCOMPARE(shared->key(KeyA)->isEnabled(), Enabled[index]);
    }
}

void TestSwitches::optionsAreSet()
{
    shared->click("pushButtonSet3");
    const auto held = [this](size_t byte) {
        return int(shared->device.keyboard->state().settings.options[byte]);
    };
    for (int level = 4; level >= 0; --level) {
        shared->click("radioButtonStab" + QByteArray::number(level));
        QTRY_COMPARE(held(LevelByte), level);
    }
    for (const bool on : {true, false}) {
        shared->click("checkBoxTouch");
        QTRY_COMPARE(held(ProtectionByte), int(on));
        QCOMPARE(shared->find<QLabel>("labelTunch")->text(),
                 on ? QStringLiteral("已开启") : QStringLiteral("已关闭"));
    }
    shared->device.settle();
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(7));
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
