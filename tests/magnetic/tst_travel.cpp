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

    void anyTextIsATravel();
    void rapidTravels();
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

void TestTravel::anyTextIsATravel()
{
    struct Typed
    {
        QString text;
        float millimetres;
        int slider; // of the right pane
    };
    const Typed typed[] = {{QStringLiteral("1.3"), 1.3F, 1300},
                           {QStringLiteral(" 2.5 mm"), 2.5F, 2500},
                           {QStringLiteral("9"), 9.0F, 4000},
                           {QStringLiteral("-1"), 0.0F, 0},
                           {QStringLiteral("毫米"), 0.0F, 0},
                           {QStringLiteral("1.2.3"), 1.2F, 1200},
                           {QStringLiteral("1e9"), 1.0F, 1000},
                           {QString(99, QLatin1Char('9')), 327.675F, 4000},
                           {QString(99, QLatin1Char('0')) + QStringLiteral("12"), 1.0F, 1000}};
    for (const auto &[text, millimetres, slider] : typed) {
        ModuleLinear linear;
        for (const bool left : {true, false}) {
            boxOf(&linear, left)->setText(text);
            QCOMPARE(linear.paneValue(left), millimetres);
            QCOMPARE(sliderOf(&linear, left)->value(), left ? 4000 - slider : slider);
            QCOMPARE(boxOf(&linear, left)->text(), text);
        }
    }
    ModuleLinear linear;
    sliderOf(&linear, true)->setValue(2799); // between two tenths
    sliderOf(&linear, false)->setValue(1304);
    QCOMPARE(boxOf(&linear, true)->text(), QStringLiteral("1.30"));
    QCOMPARE(boxOf(&linear, false)->text(), QStringLiteral("1.300"));
    boxOf(&linear, false)->setText(QStringLiteral("1.000")); // the right pane follows what was used first
    QCOMPARE(linear.paneValue(false), 1.0F);
    QCOMPARE(sliderOf(&linear, false)->value(), 1304);
}

void TestTravel::rapidTravels()
{
    const auto typed = [this](const char *name, const char *text) {
        auto *slider = shared->find<QSlider>(name);
        auto *box = slider->parentWidget()->findChild<QLineEdit *>();
        const QSignalSpy moved(slider, &QSlider::valueChanged);
        box->setText(QStringLiteral("0.7")); // only the last text counts
        box->setText(QLatin1String(text));
        return QTest::qWaitFor([box, text] { return box->text() != QLatin1String(text); }) &&
                       moved.size() <= 1
                   ? box->text()
                   : QStringLiteral("not taken");
    };
    QCOMPARE(typed("horizontalSlider1", "0.1"), QStringLiteral("0.200")); // shorter than can be typed
    QCOMPARE(typed("horizontalSlider1", "12abc"), QStringLiteral("2.000"));
    QCOMPARE(typed("horizontalSlider1", "12abc"), QStringLiteral("2.000")); // it is there already
    QCOMPARE(typed("horizontalSlider1", "abc"), QStringLiteral("0.200"));
    QCOMPARE(typed("horizontalSlider2", "1.000"), QStringLiteral("1.700")); // the release is mirrored

    auto *slider = shared->find<QSlider>("horizontalSlider1"); // goes below what can be typed
    slider->setValue(5);
    QTest::qWait(400); // longer than a typed text waits
    QCOMPARE(slider->value(), 5);
    QCOMPARE(slider->parentWidget()->findChild<QLineEdit *>()->text(), QStringLiteral("0.005"));
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
