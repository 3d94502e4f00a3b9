#include "ModuleLinear.h"
#include "PageOnKeyboard.h"
#include "SwitchTypes.h"

#include <memory>
#include <QLabel>
#include <QLineEdit>

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
    void heldTypesShow();
    void optionsAreSet();
    void optionsAreRead();
    void thePageWorksWithoutAConnection();

private:
    QColor borderOf(quint8 code) const;

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

void TestSwitches::heldTypesShow()
{
    const auto shows = [this](quint32 held, const QColor &color, const QString &name) {
        shared->device.connection.SetMagnetism(TypeTable, keys::PositionOfCode(KeyS), held);
        shared->click("pushButtonSet2");
        return borderOf(KeyS) == color && shared->key(KeyS)->toolTip() == name;
    };
    QVERIFY(shows(25, QColor(0xFF, 0xC1, 0x2F), QStringLiteral("炫光"))); // offered
    QVERIFY(shows(71, QColor(0x6B, 0x6D, 0xFF), QStringLiteral("矮磁轴")));
    QVERIFY(shows(6, QColor(0x9B, 0x9B, 0x9B), QString())); // unknown
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(0));
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

void TestSwitches::optionsAreRead()
{
    shared->device.keyboard->edit([](sim::KeyboardState &state) {
        state.settings.options[ProtectionByte] = 5;
        state.settings.options[LevelByte] = 2;
    });
    shared->click("pushButtonSet3");
    shared->device.connection.deviceChanged(); // the options are read at a connect
    shared->device.readDone.clear();
    QVERIFY(shared->device.readDone.wait(20000));
    QVERIFY(shared->find("radioButtonStab2")->isChecked());
    QVERIFY(shared->find("checkBoxTouch")->isChecked());
    QCOMPARE(shared->find<QLabel>("labelTunch")->text(), QStringLiteral("已开启"));
    QVERIFY(shared->find("pushButtonSet0")->isChecked()); // a read leads back to the travels
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
