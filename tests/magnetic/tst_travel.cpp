#include "ModuleLinear.h"
#include "PageOnKeyboard.h"

#include <memory>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>

namespace {

constexpr quint8 KeyA = 4;
constexpr quint8 KeyW = 26;
constexpr quint8 KeyS = 22;
constexpr int FramesOfAllKeys = 82 * 5;
constexpr int AtOnce = 500; ///< milliseconds; sending all takes twelve seconds

QLineEdit *boxOf(const ModuleLinear *linear, bool left)
{
    return linear->findChild<QLineEdit *>(left ? QStringLiteral("lineEditValue1")
                                               : QStringLiteral("lineEditValue2"));
}

QSlider *sliderOf(const ModuleLinear *linear, bool left)
{
    return linear->findChild<QSlider *>(left ? QStringLiteral("verticalSlider1")
                                             : QStringLiteral("verticalSlider2"));
}

} // namespace

/// How travels are set, and what then reaches the keyboard.
class TestTravel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase() { shared.reset(); }

    void panesShowTheirSliders_data();
    void panesShowTheirSliders();
    void anyTextIsATravel_data();
    void anyTextIsATravel();
    void theRightPaneFollowsWhatIsUsedFirst();
    void aReleaseMovesTheHandle();
    void typedRapidTravels_data();
    void typedRapidTravels();
    void slidersGoBelowWhatCanBeTyped();
    void switchesDecideWhatCanBeSet();
    void selectedKeysAreSet_data();
    void selectedKeysAreSet();
    void aReadShowsWhatTheKeyboardHolds();
    void nothingIsSentWithoutASelection();
    void aKeyWithoutAPlaceIsLeftAlone();
    void settingAllKeysReturnsAtOnce();

private:
    std::unique_ptr<PageOnKeyboard> shared; // read once for all tests
};

void TestTravel::initTestCase()
{
    shared = std::make_unique<PageOnKeyboard>();
    QVERIFY(shared->device.readAll());
}

void TestTravel::init()
{
    shared->beginLog();
    shared->click("pushButtonSet0");
    if (shared->find("checkBoxFullRT")->isChecked())
        shared->click("checkBoxFullRT");
}

void TestTravel::panesShowTheirSliders_data()
{
    QTest::addColumn<bool>("left");
    QTest::addColumn<int>("slider");
    QTest::addColumn<QString>("text");
    QTest::newRow("left, bottom") << true << 0 << QStringLiteral("4.00");
    QTest::newRow("left, between two tenths") << true << 2799 << QStringLiteral("1.30");
    QTest::newRow("right, top") << false << 4000 << QStringLiteral("4.000");
    QTest::newRow("right, between two steps") << false << 1304 << QStringLiteral("1.300");
}

void TestTravel::panesShowTheirSliders()
{
    QFETCH(bool, left);
    QFETCH(QString, text);
    ModuleLinear linear;
    QCOMPARE(boxOf(&linear, true)->text(), QStringLiteral("0.30"));
    QCOMPARE(boxOf(&linear, false)->text(), QStringLiteral("0.400"));
    const QSignalSpy set(&linear, &ModuleLinear::onSetValue);
    QFETCH(int, slider);
    sliderOf(&linear, left)->setValue(slider);
    QCOMPARE(boxOf(&linear, left)->text(), text);
    QCOMPARE(set.size(), 1);
    QCOMPARE(set.first().at(0).toFloat(), text.toFloat());
    QCOMPARE(set.first().at(1).toInt(), left ? 0 : 1);
}

void TestTravel::anyTextIsATravel_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("millimetres");
    QTest::addColumn<int>("slider"); // of the right pane
    QTest::newRow("a number") << QStringLiteral("1.3") << 1.3F << 1300;
    QTest::newRow("with a unit") << QStringLiteral(" 2.5 mm") << 2.5F << 2500;
    QTest::newRow("past the slider") << QStringLiteral("9") << 9.0F << 4000;
    QTest::newRow("negative") << QStringLiteral("-1") << 0.0F << 0;
    QTest::newRow("no number") << QStringLiteral("毫米") << 0.0F << 0;
    QTest::newRow("a lone point") << QStringLiteral(".") << 0.0F << 0;
    QTest::newRow("two points") << QStringLiteral("1.2.3") << 1.2F << 1200;
    QTest::newRow("an exponent") << QStringLiteral("1e9") << 1.0F << 1000;
    QTest::newRow("past any float") << QString(99, QLatin1Char('9')) << 327.675F << 4000;
    QTest::newRow("cut at 100 bytes") << QString(99, QLatin1Char('0')) + QStringLiteral("12") << 1.0F << 1000;
}

void TestTravel::anyTextIsATravel()
{
    QFETCH(QString, text);
    QFETCH(float, millimetres);
    QFETCH(int, slider);
    ModuleLinear linear;
    for (const bool left : {true, false}) {
        boxOf(&linear, left)->setText(text);
        QCOMPARE(linear.paneValue(left), millimetres);
        QCOMPARE(sliderOf(&linear, left)->value(), left ? 4000 - slider : slider);
        QCOMPARE(boxOf(&linear, left)->text(), text);
    }
}

void TestTravel::theRightPaneFollowsWhatIsUsedFirst()
{
    for (const bool left : {true, false}) {
        ModuleLinear typedFirst;
        boxOf(&typedFirst, left)->setText(QStringLiteral("1.000"));
        sliderOf(&typedFirst, left)->setValue(2000);
        QCOMPARE(typedFirst.paneValue(left), left ? 2.0F : 1.0F);
        ModuleLinear movedFirst;
        sliderOf(&movedFirst, left)->setValue(2000);
        boxOf(&movedFirst, left)->setText(QStringLiteral("1.000"));
        QCOMPARE(sliderOf(&movedFirst, left)->value(), left ? 3000 : 2000);
        QCOMPARE(movedFirst.paneValue(left), 1.0F);
    }
}

void TestTravel::aReleaseMovesTheHandle()
{
    ModuleLinear linear;
    linear.resize(300, 300);
    linear.grab(); // lays it out
    QSlider *slider = sliderOf(&linear, false);
    const auto releaseAt = [slider](int y) { QTest::mouseRelease(slider, Qt::LeftButton, {}, {20, y}); };
    releaseAt(slider->height() / 4);
    QCOMPARE(slider->value(), 4000 * (slider->height() - slider->height() / 4) / slider->height());
    releaseAt(-1000);
    QCOMPARE(slider->value(), 4000);
    linear.setPaneEnabled(false, false);
    releaseAt(slider->height());
    QCOMPARE(slider->value(), 4000);
}

void TestTravel::typedRapidTravels_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const char *number, const char *typed, const char *shown) {
        QTest::newRow(name) << QByteArray(number) << QString::fromLatin1(typed) << QString::fromLatin1(shown);
    };
    row("shorter than can be typed", "1", "0.1", "0.200");
    row("past the slider", "1", "12abc", "2.000");
    row("past the slider, which is there already", "1", "12abc", "2.000");
    row("no number", "1", "abc", "0.200");
    row("the release shows its mirror image", "2", "1.000", "1.700");
}

void TestTravel::typedRapidTravels()
{
    QFETCH(QByteArray, number);
    QFETCH(QString, typed);
    auto *slider = shared->find<QSlider>("horizontalSlider" + number);
    auto *box = slider->parentWidget()->findChild<QLineEdit *>();
    const QSignalSpy moved(slider, &QSlider::valueChanged);
    box->setText(QStringLiteral("0.7")); // only the last text counts
    box->setText(typed);
    QTRY_VERIFY(box->text() != typed);
    QVERIFY(moved.size() <= 1);
    QTEST(box->text(), "shown");
}

void TestTravel::slidersGoBelowWhatCanBeTyped()
{
    for (const auto &[name, shown] : {std::pair("horizontalSlider1", 0.005), {"horizontalSlider2", 2.695}}) {
        auto *slider = shared->find<QSlider>(name);
        slider->setValue(5);
        QTest::qWait(400); // longer than a typed text waits
        QCOMPARE(slider->value(), 5);
        QCOMPARE(slider->parentWidget()->findChild<QLineEdit *>()->text(), QString::number(shown, 'f', 3));
        slider->setValue(2000);
    }
}

void TestTravel::switchesDecideWhatCanBeSet()
{
    const FrameMagic page;
    const auto *travels = page.findChild<QWidget *>(QStringLiteral("page0"));
    const auto find = [travels](const char *name) {
        return travels->findChild<QWidget *>(QLatin1String(name));
    };
    const auto click = [&page](const char *name) {
        page.findChild<QAbstractButton *>(QLatin1String(name))->click();
    };
    const auto stateIs = [find](const QString &expected) {
        QString list;
        for (const char *name : {"frame0", "frame1", "frame2", "checkBoxUnpress", "rightPan"})
            list += QString::number(find(name)->isEnabled());
        for (const char *name : {"checkBoxUnpress", "checkBoxFullRT", "checkBoxRTPress"})
            list += QString::number(qobject_cast<QAbstractButton *>(find(name))->isChecked());
        return list == expected;
    };
    // enabled: the three frames, the switch on the left, its pane; on: the three switches
    QVERIFY(stateIs(QStringLiteral("00010000")));
    click("checkBoxUnpress");
    QVERIFY(stateIs(QStringLiteral("00011100")));
    click("checkBoxFullRT");
    QVERIFY(stateIs(QStringLiteral("11000010")));
    click("checkBoxRTPress");
    QVERIFY(stateIs(QStringLiteral("11100011")));
    click("checkBoxFullRT");
    QVERIFY(stateIs(QStringLiteral("00010000")));
}

void TestTravel::selectedKeysAreSet_data()
{
    QTest::addColumn<QByteArrayList>("switches");
    QTest::addColumn<QList<quint32>>("raw"); // tables 0 to 3 and 7
    QTest::addColumn<QString>("captions");
    QTest::addColumn<QString>("captionsLater"); // the page reads the press value into both rapid places
    const auto row = [](const char *name, const QByteArrayList &switches, const QList<quint32> &raw,
                        const char *captions, const char *later) {
        QTest::newRow(name) << switches << raw << QString::fromLatin1(captions) << QString::fromLatin1(later);
    };
    row("one travel", {}, {260, 260, 50, 50, 0}, "1.300 1.300", "1.300 1.300");
    row("two travels", {"checkBoxUnpress"}, {260, 180, 50, 50, 0}, "1.300 0.900", "1.300 0.900");
    row("full travel", {"checkBoxFullRT"}, {260, 260, 50, 50, 0x80}, "0.250 1.300 0.250",
        "0.250 1.300 0.250");
    row("full travel, two travels", {"checkBoxFullRT", "checkBoxRTPress"}, {260, 260, 50, 200, 0x80},
        "0.250 1.300 1.000", "0.250 1.300 0.250");
}

void TestTravel::selectedKeysAreSet()
{
    QFETCH(QByteArrayList, switches);
    QFETCH(QList<quint32>, raw);
    for (const QByteArray &name : switches)
        shared->click(name);
    const auto *linear = shared->find<ModuleLinear>("frameLinear");
    boxOf(linear, true)->setText(QStringLiteral("1.3"));
    boxOf(linear, false)->setText(QStringLiteral("0.9"));
    shared->find<QSlider>("horizontalSlider1")->setValue(250);
    shared->find<QSlider>("horizontalSlider2")->setValue(1700);
    shared->clickKeys({"\x04\x1A", 2});
    QCOMPARE(shared->find<QLabel>("labelSelectRTKey")->text(), QStringLiteral("已选中按键的数量: 2"));
    shared->click("pushButtonSetRT");
    QTEST(shared->key(KeyA)->captions().join(u' '), "captions");
    shared->device.settle();
    QStringList expected;
    for (const quint8 code : {KeyW, KeyA}) { // in the order of the board
        for (const int table : {0, 1, 2, 3, 7})
            expected += QStringLiteral("0%1:%2:%3:%4")
                            .arg(table)
                            .arg(keys::PositionOfCode(code))
                            .arg(table == 7 ? 1 : 0)
                            .arg(raw.at(qMin(table, 4)));
    }
    QCOMPARE(shared->writes(), expected);
    shared->click("pushButtonSet0");
    QTEST(shared->key(KeyA)->captions().join(u' '), "captionsLater");
}

void TestTravel::aReadShowsWhatTheKeyboardHolds()
{
    shared->device.keyboard->edit([](sim::KeyboardState &state) {
        const int position = keys::PositionOfCode(KeyS);
        state.active().magnetism.setValue(0, position, 1);
        state.active().magnetism.setValue(1, position, 800);
    });
    shared->click("pushButtonSet3");
    QVERIFY(shared->read());
    QVERIFY(shared->find("pushButtonSet0")->isChecked());
    QCOMPARE(shared->key(KeyS)->captions(), (QStringList{QStringLiteral("0.005"), QStringLiteral("4.000")}));
}

void TestTravel::nothingIsSentWithoutASelection()
{
    const QStringList before = shared->key(KeyA)->captions();
    shared->clickKeys({"\x04", 1});
    shared->click("pushButtonSet0"); // takes the selection away
    QCOMPARE(shared->find<QLabel>("labelSelectRTKey")->text(), QStringLiteral("已选中按键的数量: 0"));
    shared->click("pushButtonSetRT");
    shared->device.settle();
    QCOMPARE(shared->device.keyboard->frameCount(), size_t(0));
    QCOMPARE(shared->key(KeyA)->captions(), before);
}

void TestTravel::aKeyWithoutAPlaceIsLeftAlone()
{
    const QByteArray usual = keys::defaultKeyMatrix();
    QByteArray without = usual;
    QVERIFY(keys::setEntryAt(without, keys::PositionOfCode(KeyA), {}));
    const int placeOfW = keys::PositionOfCode(KeyW);
    QVERIFY(keys::SetDefaultKeyMap(without));
    shared->clickKeys({"\x04\x1A", 2});
    shared->click("pushButtonSetRT");
    shared->click("pushButtonSet2");
    shared->clickKeys({"\x04", 1});
    QVERIFY(keys::SetDefaultKeyMap(usual));
    shared->device.settle();
    const QStringList writes = shared->writes();
    QCOMPARE(writes.size(), 5);
    for (const QString &write : writes)
        QCOMPARE(write.section(u':', 1, 1).toInt(), placeOfW);
}

void TestTravel::settingAllKeysReturnsAtOnce()
{
    shared->keyboard->selectAll(true);
    QElapsedTimer clock;
    clock.start();
    shared->click("pushButtonSetRT");
    QVERIFY2(clock.elapsed() < AtOnce, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(shared->device.waitForFrames(20));
    QVERIFY(shared->device.keyboard->frameCount() < FramesOfAllKeys);
    virtualhid::VirtualBus::instance().unplug(shared->device.keyboard);
    shared->device.settle();
    const size_t sent = shared->device.keyboard->frameCount();
    shared->click("pushButtonSetRT"); // without a keyboard, the page goes on
    shared->device.settle();
    QCOMPARE(shared->device.keyboard->frameCount(), sent);
}

QTEST_MAIN(TestTravel)
#include "tst_travel.moc"
