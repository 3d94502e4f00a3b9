#include "KeyboardButton.h"
#include "KeyboardLayout.h"
#include "KeyMatrix.h"
#include "Look.h"
#include "ModuleKeyboard.h"
#include "VirtualKeyboard.h"

#include <cmath>
#include <QButtonGroup>
#include <QFrame>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr quint8 KnobPress = 251; ///< on the keyboard, but no key of the board
constexpr quint8 KeyA = 4;
constexpr quint8 KeyC = 6;
constexpr quint8 KeyQ = 20;
constexpr quint8 KeyW = 26;
constexpr quint8 Esc = 41;

void dragTo(ModuleKeyboard &keyboard, const QPoint &position)
{
    QMouseEvent move(QEvent::MouseMove, position, keyboard.mapToGlobal(position), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(&keyboard, &move);
}

QByteArray selected(const ModuleKeyboard &keyboard)
{
    QByteArray codes;
    const int count = keyboard.selectedCodes(codes);
    return count == codes.size() ? codes : QByteArray("the count is wrong");
}

QByteArray codesOf(std::initializer_list<quint8> codes)
{
    return QByteArray(reinterpret_cast<const char *>(codes.begin()), qsizetype(codes.size()));
}

/// The colour of a key between its edge and its legend, or on its edge.
QColor colorAt(ModuleKeyboard &keyboard, quint8 code, const QPoint &position)
{
    return keyboard.grab().toImage().pixelColor(keyboard.keyButton(code)->pos() + position);
}

} // namespace

/// What the on-screen keyboard shows and which keys are selected on it.
class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyHasItsPlace();
    void keysStandWhereTheyBelong_data();
    void keysStandWhereTheyBelong();
    void modesDecideWhatShows_data();
    void modesDecideWhatShows();
    void captionsShowTheValues_data();
    void captionsShowTheValues();
    void clicksSelect_data();
    void clicksSelect();
    void theBandSelectsByCorners_data();
    void theBandSelectsByCorners();
    void keyboardMovesAndPresses();
    void colorsShowOnKeys();
    void lockedKeysShowHits();
    void anyValueIsTaken();
    void virtualKeyboardHasAllUsages();
};

void TestKeyboard::everyKeyHasItsPlace()
{
    const ModuleKeyboard keyboard;
    const QRect board(0, 0, 960, 400);
    for (int position = 0; position < keys::PositionOfCode(KnobPress); ++position) {
        const quint8 code = keys::CodeOfPosition(quint8(position));
        const bool isHole = keys::DefaultEntryAt(quint8(position)).isEmpty();
        QVERIFY2(isHole || keyboard.keyButton(code), qPrintable(QString::number(position)));
    }
    for (const keys::KeyPlace &place : keys::KeyboardLayout) {
        const KeyboardButton *button = keyboard.keyButton(place.code);
        QVERIFY(keys::PositionOfCode(place.code) != keys::NoPosition);
        QCOMPARE(button->objectName().right(3).toInt(), int(place.code));
        QVERIFY(board.contains(button->geometry()));
        QVERIFY(!button->accessibleName().isEmpty());
        for (const keys::KeyPlace &other : keys::KeyboardLayout)
            QVERIFY(other.code == place.code || !other.rect().intersects(place.rect()));
    }
}

void TestKeyboard::keysStandWhereTheyBelong_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QString>("legend");
    QTest::newRow("Esc") << "pushButton_Hid041" << QRect(41, 10, 48, 48) << "Esc";
    QTest::newRow("7") << "pushButton_Hid036" << QRect(419, 74, 48, 48) << "7 &&";
    QTest::newRow("Backspace") << "pushButton_Hid042" << QRect(744, 74, 120, 48) << "Backspace";
    QTest::newRow("Enter") << "pushButton_Hid040" << QRect(732, 182, 132, 48) << "Enter";
    QTest::newRow("space bar") << "pushButton_Hid044" << QRect(226, 290, 346, 48) << "SPACE";
    QTest::newRow("Fn") << "pushButton_Hid250" << QRect(639, 290, 56, 48) << "Fn";
    QTest::newRow("right arrow") << "pushButton_Hid079" << QRect(871, 290, 48, 48) << "→";
    QTest::newRow("left half of the knob") << "pushButton_Hid234" << QRect(872, 10, 20, 48) << "";
}

void TestKeyboard::keysStandWhereTheyBelong()
{
    QFETCH(QString, name);
    const ModuleKeyboard keyboard;
    const auto *button = keyboard.findChild<KeyboardButton *>(name);
    QVERIFY(button);
    QTEST(button->geometry(), "place");
    QTEST(button->text(), "legend");
}

using Step = void (*)(ModuleKeyboard &);
Q_DECLARE_METATYPE(Step)

void TestKeyboard::modesDecideWhatShows_data()
{
    QTest::addColumn<Step>("enter");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("legend");
    QTest::addColumn<bool>("knob");
    QTest::addColumn<int>("captions");
    QTest::newRow("as built") << Step([](ModuleKeyboard &) {}) << false << true << true << 0;
    QTest::newRow("select") << Step([](ModuleKeyboard &k) { k.enterSelectMode(); }) << true << true << false
                            << 0;
    QTest::newRow("value 0") << Step([](ModuleKeyboard &k) { k.enterValueMode(0); }) << true << true << false
                             << 0;
    QTest::newRow("value 1") << Step([](ModuleKeyboard &k) { k.enterValueMode(1); }) << true << false << false
                             << 0;
    QTest::newRow("value 3") << Step([](ModuleKeyboard &k) { k.enterValueMode(3); }) << true << false << false
                             << 2;
    QTest::newRow("value 200") << Step([](ModuleKeyboard &k) { k.enterValueMode(200); }) << true << false
                               << false << 0;
    QTest::newRow("scaled") << Step([](ModuleKeyboard &k) { k.enterScaledValueMode(true); }) << true << true
                            << false << 2;
    QTest::newRow("scaled off") << Step([](ModuleKeyboard &k) { k.enterScaledValueMode(false); }) << true
                                << true << false << 0;
    QTest::newRow("layer") << Step([](ModuleKeyboard &k) { k.enterLayerMode(true); }) << true << true << true
                           << 2;
    QTest::newRow("values, then reset") << Step([](ModuleKeyboard &k) {
        k.enterValueMode(2);
        k.resetModes();
        k.enterLayerMode(false);
        k.updateLegend();
    }) << true << true << true << 0;
}

void TestKeyboard::modesDecideWhatShows()
{
    QFETCH(Step, enter);
    QFETCH(bool, knob);
    ModuleKeyboard keyboard;
    keyboard.show();
    keyboard.setKeyTooltip(KeyQ, QStringLiteral("Q"), QStringLiteral("X"), false);
    enter(keyboard);
    QTRY_COMPARE(keyboard.keyButton(keys::KnobLeftCode)->isVisible(), knob);
    QCOMPARE(keyboard.keyButton(keys::KnobRightCode)->isVisible(), knob);
    QTEST(keyboard.keyButton(KeyQ)->isCheckable(), "checkable");
    QTEST(keyboard.findChild<QFrame *>(QStringLiteral("frameFlag"))->isVisible(), "legend");
    QTEST(int(keyboard.keyButton(KeyQ)->captions().size()), "captions");
    QCOMPARE(keyboard.keyButton(KeyQ)->hasBinding(), !keyboard.keyButton(KeyQ)->isCheckable());
}

void TestKeyboard::captionsShowTheValues_data()
{
    QTest::addColumn<Step>("set");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("two values") << Step([](ModuleKeyboard &k) {
        k.enterValueMode(2);
        k.setKeyValues2(KeyQ, 0.256f, 0.2f);
    }) << QStringList{QStringLiteral("0.26"), QStringLiteral("0.200")};
    QTest::newRow("press and release") << Step([](ModuleKeyboard &k) {
        k.enterValueMode(3);
        k.setKeyValues3(KeyQ, 2.0f, 2.8f);
        k.setKeyValues4(KeyQ, 0.15f, 0.2f, false);
    }) << QStringList{QStringLiteral("2.000"), QStringLiteral("2.800")};
    QTest::newRow("rapid trigger") << Step([](ModuleKeyboard &k) {
        k.enterValueMode(3);
        k.setKeyValues3(KeyQ, 1.2f, 2.8f);
        k.setKeyValues4(KeyQ, 0.15f, 0.2f, true);
    }) << QStringList{QStringLiteral("0.150"), QStringLiteral("1.200"), QStringLiteral("0.200")};
    QTest::newRow("not a number") << Step([](ModuleKeyboard &k) {
        k.enterValueMode(3);
        k.setKeyValues3(KeyQ, float(NAN), float(INFINITY));
    }) << QStringList{QStringLiteral("nan"), QStringLiteral("inf")};
}

void TestKeyboard::captionsShowTheValues()
{
    QFETCH(Step, set);
    ModuleKeyboard keyboard;
    set(keyboard);
    QTEST(keyboard.keyButton(KeyQ)->captions(), "captions");
    QVERIFY(!keyboard.grab().isNull());
}

void TestKeyboard::clicksSelect_data()
{
    QTest::addColumn<Step>("enter");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QByteArray>("chosen"); // after clicks on C, Q, Esc, and a second one on Q
    const Step values = [](ModuleKeyboard &k) { k.enterValueMode(3); };
    const Step plain = [](ModuleKeyboard &) {};
    QTest::newRow("board order") << values << 300 << 0 << codesOf({Esc, KeyC});
    QTest::newRow("with Ctrl") << values << 300 << int(Qt::ControlModifier) << codesOf({Esc, KeyC});
    QTest::newRow("at most two") << values << 2 << 0 << codesOf({Esc});
    QTest::newRow("limit 1 keeps all") << values << 1 << 0 << codesOf({Esc, KeyC});
    QTest::newRow("negative limit keeps all") << values << -7 << 0 << codesOf({Esc, KeyC});
    QTest::newRow("keys that only report") << plain << 1 << 0 << QByteArray();
}

void TestKeyboard::clicksSelect()
{
    QFETCH(Step, enter);
    QFETCH(int, limit);
    QFETCH(int, modifiers);
    ModuleKeyboard keyboard;
    enter(keyboard);
    keyboard.setSelectionLimit(limit);
    QSignalSpy clicked(&keyboard, &ModuleKeyboard::onKeyClicked);
    QSignalSpy changed(&keyboard, &ModuleKeyboard::onSelect);
    for (const quint8 code : {KeyC, KeyQ, Esc, KeyQ})
        QTest::mouseClick(keyboard.keyButton(code), Qt::LeftButton, Qt::KeyboardModifiers(modifiers));
    QTEST(selected(keyboard), "chosen");
    QCOMPARE(clicked.size(), 4);
    QCOMPARE(changed.size(), 4);
    QCOMPARE(clicked[1][0].toString(), QStringLiteral("Q"));
    QCOMPARE(clicked[1][1].value<uchar>(), KeyQ);
    keyboard.selectAll(false);
    QCOMPARE(selected(keyboard), QByteArray());
    keyboard.selectAll(true);
    QCOMPARE(selected(keyboard).size(), keyboard.keyButton(KeyQ)->isCheckable() ? 84 : 0);
}

void TestKeyboard::theBandSelectsByCorners_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QByteArray>("chosen");
    QTest::newRow("two keys") << QPoint(116, 177) << QPoint(190, 150) << codesOf({KeyQ, KeyW});
    QTest::newRow("drawn upwards and to the left")
        << QPoint(190, 150) << QPoint(116, 177) << codesOf({KeyQ, KeyW});
    QTest::newRow("the middle of a key") << QPoint(300, 300) << QPoint(500, 320) << QByteArray();
    QTest::newRow("from the left edge") << QPoint(0, 177) << QPoint(190, 150) << QByteArray();
    QTest::newRow("far outside") << QPoint(900, 279) << QPoint(5000, 289) << codesOf({77});
    QTest::newRow("over a disabled key") << QPoint(30, 8) << QPoint(120, 20) << codesOf({58});
}

void TestKeyboard::theBandSelectsByCorners()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    ModuleKeyboard keyboard;
    keyboard.resize(960, 400);
    keyboard.show();
    keyboard.enterValueMode(3);
    keyboard.keyButton(Esc)->setEnabled(false);
    keyboard.keyButton(from.x() > 0 ? KeyC : Esc)->setChecked(from.x() > 0);
    QSignalSpy changed(&keyboard, &ModuleKeyboard::onSelect);
    QTest::mousePress(&keyboard, Qt::LeftButton, {}, from);
    dragTo(keyboard, to);
    QTEST(selected(keyboard), "chosen");
    QCOMPARE(changed.size(), from.x() > 0 ? 1 : 0);
    QTest::mouseRelease(&keyboard, Qt::LeftButton, {}, to);
    dragTo(keyboard, QPoint(900, 390));
    QTEST(selected(keyboard), "chosen");
}

void TestKeyboard::keyboardMovesAndPresses()
{
    ModuleKeyboard keyboard;
    keyboard.enterValueMode(3);
    keyboard.show();
    keyboard.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&keyboard));
    keyboard.keyButton(58)->setEnabled(false);
    keyboard.keyButton(Esc)->setFocus(Qt::TabFocusReason);
    const auto press = [&keyboard](Qt::Key key) { QTest::keyClick(keyboard.focusWidget(), key); };
    press(Qt::Key_Right);
    QCOMPARE(keyboard.focusWidget(), keyboard.keyButton(59)); // F1 is disabled
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    QCOMPARE(keyboard.focusWidget(), keyboard.keyButton(Esc));
    for (int row = 0; row < 3; ++row)
        press(Qt::Key_Down);
    QCOMPARE(keyboard.focusWidget(), keyboard.keyButton(57));
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    QCOMPARE(selected(keyboard), codesOf({KeyA}));
    QTest::keyClick(keyboard.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selected(keyboard).size(), 84);
}

void TestKeyboard::colorsShowOnKeys()
{
    ModuleKeyboard keyboard;
    const QPoint face(10, 6);
    QCOMPARE(colorAt(keyboard, KeyQ, face), look::KeyPlain);
    keyboard.setKeyTooltip(KeyQ, QStringLiteral("Q"), QStringLiteral("X"), false);
    QCOMPARE(colorAt(keyboard, KeyQ, face), look::KeyModified);
    keyboard.setKeyTooltip(KeyQ, QStringLiteral("DISABLED"), {}, false);
    QCOMPARE(colorAt(keyboard, KeyQ, face), look::KeyDisabled);
    keyboard.enterValueMode(1);
    keyboard.setKeyBorder(KeyW, QColor(200, 100, 0));
    QCOMPARE(colorAt(keyboard, KeyW, {1, 24}), QColor(0, 100, 200));
    QCOMPARE(colorAt(keyboard, KeyW, face), look::KeyPlain);
    keyboard.keyButton(KeyA)->setDisplayMode(KeyboardButton::Plain);
    keyboard.keyButton(KeyA)->setKeyContent({}, {});
    keyboard.keyButton(KeyA)->setChecked(true);
    QCOMPARE(colorAt(keyboard, KeyA, face), look::KeySelected);

    keyboard.setKeyColor(ModuleKeyboard::AllKeys, Qt::black);
    for (const keys::KeyPlace &place : keys::KeyboardLayout)
        QCOMPARE(keyboard.keyButton(place.code)->fillColor(), QColor(Qt::black));
    QVERIFY(colorAt(keyboard, KeyA, face).value() < 160); // the panel shines through
    keyboard.setKeyColor(KeyA, {});
    QCOMPARE(colorAt(keyboard, KeyA, face), look::KeySelected);
}

void TestKeyboard::lockedKeysShowHits()
{
    ModuleKeyboard keyboard;
    keyboard.show();
    keyboard.lockKeyboard();
    QTRY_VERIFY(!keyboard.keyButton(KeyQ)->isEnabled());
    QVERIFY(!keyboard.findChild<QFrame *>(QStringLiteral("frameFlag"))->isVisible());
    keyboard.markKeyHit(0);
    keyboard.markKeyHit(KeyQ);
    QCOMPARE(colorAt(keyboard, KeyQ, {10, 6}), QColor(0xFF, 0x90, 0x52));
    QCOMPARE(colorAt(keyboard, KeyW, {10, 6}), look::KeyDisabled);
    QTest::mousePress(&keyboard, Qt::LeftButton, {}, QPoint(116, 177));
    dragTo(keyboard, QPoint(190, 150));
    QCOMPARE(selected(keyboard), QByteArray());
}

void TestKeyboard::anyValueIsTaken()
{
    ModuleKeyboard keyboard;
    const ModuleKeyboard other;
    for (int code = 0; code < 256; ++code) {
        const auto byte = quint8(code);
        keyboard.setKeyTooltip(byte, QStringLiteral("DISABLED"), {}, true);
        keyboard.setKeyTooltip(byte, {}, QStringLiteral("body"), true);
        keyboard.setKeyBorder(byte, {});
        keyboard.setKeyValues2(byte, 1e30f, -1e30f);
        keyboard.setKeyValues3(byte, 1e30f, -1e30f);
        keyboard.setKeyValues4(byte, 1e30f, -1e30f, true);
        keyboard.setKeyColor(byte, {});
        keyboard.markKeyHit(byte);
    }
    KeyboardButton stranger(KeyQ, {}, nullptr);
    keyboard.setKeyEnabledState(nullptr, false, true);
    keyboard.setKeyEnabledState(&stranger, false, true);
    QVERIFY(stranger.isEnabled());
    for (const quint8 mode : {2, 3, 4, 255}) {
        keyboard.enterValueMode(mode);
        QVERIFY(!keyboard.grab().isNull());
    }
    QVERIFY(other.keyButton(KeyQ)->isEnabled());
}

void TestKeyboard::virtualKeyboardHasAllUsages()
{
    const VirtualKeyboard keyboard;
    const QList<QAbstractButton *> buttons = keyboard.keyButtons()->buttons();
    QCOMPARE(buttons.size(), 101);
    int before = 0;
    for (const QAbstractButton *button : buttons) {
        const int code = button->objectName().right(3).toInt();
        QVERIFY(code > before);
        QVERIFY(!button->text().isEmpty());
        QCOMPARE(button->maximumSize(), QSize(546, 48));
        before = code;
    }
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
