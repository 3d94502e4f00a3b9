#include "KeyboardButton.h"
#include "KeyboardLayout.h"
#include "KeyMatrix.h"
#include "ModuleKeyboard.h"

#include <limits>
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

} // namespace

/// What the on-screen keyboard shows and which keys are selected on it.
class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyHasItsPlace();
    void clicksSelect();
    void theBandSelectsByCorners_data();
    void theBandSelectsByCorners();
    void keyboardMovesAndPresses();
    void anyValueIsTaken();
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

void TestKeyboard::clicksSelect()
{
    // The keys chosen by clicks on C, Q, Esc, and a second one on Q.
    const auto chosen = [](bool selects, int limit) {
        ModuleKeyboard keyboard;
        if (selects)
            keyboard.enterValueMode(3);
        keyboard.setSelectionLimit(limit);
        QSignalSpy clicked(&keyboard, &ModuleKeyboard::onKeyClicked);
        QSignalSpy changed(&keyboard, &ModuleKeyboard::onSelect);
        for (const quint8 code : {KeyC, KeyQ, Esc, KeyQ})
            QTest::mouseClick(keyboard.keyButton(code), Qt::LeftButton);
        const bool told = clicked.size() == 4 && changed.size() == 4 && clicked[1][1].value<uchar>() == KeyQ;
        const QByteArray codes = selected(keyboard);
        keyboard.selectAll(true);
        return told && selected(keyboard).size() == (selects ? 84 : 0) ? codes : QByteArray("not told");
    };
    QCOMPARE(chosen(true, 300), codesOf({Esc, KeyC})); // in the order of the board
    QCOMPARE(chosen(true, 2), codesOf({Esc}));
    QCOMPARE(chosen(true, 1), codesOf({Esc, KeyC})); // no limit
    QCOMPARE(chosen(false, 300), QByteArray());
}

void TestKeyboard::theBandSelectsByCorners_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QByteArray>("chosen");
    QTest::newRow("two keys") << QPoint(116, 177) << QPoint(190, 150) << codesOf({KeyQ, KeyW});
    QTest::newRow("drawn upwards and to the left")
        << QPoint(190, 150) << QPoint(116, 177) << codesOf({KeyQ, KeyW});
    QTest::newRow("from the left edge") << QPoint(0, 177) << QPoint(190, 150) << QByteArray();
    QTest::newRow("far outside") << QPoint(900, 279) << QPoint(5000, 289) << codesOf({77});
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
        keyboard.setKeyValues3(byte, std::numeric_limits<float>::quiet_NaN(), -1e30f);
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

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
