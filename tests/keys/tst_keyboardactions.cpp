#include "ConnectedKeyboard.h"
#include "CustomTooltip.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "keySetTooltip.h"
#include "MagnetTables.h"
#include "ModuleKeyboard.h"

#include <memory>
#include <QEnterEvent>
#include <QTest>

namespace {

constexpr quint8 KeyA = 4;
constexpr quint8 KeyQ = 20;
constexpr quint8 CapsLock = 57;
const QString Disabled = QStringLiteral("DISABLED");
const QString Title = QStringLiteral("Q");
const QString Body = QStringLiteral("组合: L-Ctrl + A");

/// A right click as the window system delivers it: a disabled key gets it too.
void rightClick(QWidget *widget, const QPoint &position)
{
    QTest::mouseClick(widget, Qt::RightButton, {}, position);
}

void rightClickKey(ModuleKeyboard &keyboard, quint8 code)
{
    KeyboardButton *button = keyboard.keyButton(code);
    rightClick(button, button->rect().center());
}

CustomTooltip *popupOf(const ModuleKeyboard &keyboard)
{
    return keyboard.findChild<CustomTooltip *>();
}

keySetTooltip *hover(KeyboardButton *button)
{
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(button, &enter);
    return button->findChild<keySetTooltip *>();
}

} // namespace

/// What the user does to keys on the on-screen keyboard, and what all keyboards then show.
class TestKeyboardActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void popupOffersWhatFits();
    void changesReachTheKeyboard_data();
    void changesReachTheKeyboard();
    void partnersAreTakenAsCodes();
    void withoutAKeyboardTheScreenStillChanges();
    void nothingIsLeftOfAKeyboardThatGoes();

private:
    bool connected();

    std::unique_ptr<ConnectedKeyboard> device; // read once for all tests that need it
};

bool TestKeyboardActions::connected()
{
    if (device)
        return true;
    device = std::make_unique<ConnectedKeyboard>("wired-500");
    const bool read = device->readAll();
    device->settle();
    return read;
}

void TestKeyboardActions::popupOffersWhatFits()
{
    ModuleKeyboard keyboard;
    keyboard.resize(960, 400);
    keyboard.show();
    const auto offer = [&keyboard](const QString &title) {
        keyboard.setKeyTooltip(KeyQ, title, Body, false);
        rightClickKey(keyboard, KeyQ);
        const CustomTooltip *popup = popupOf(keyboard);
        return popup->isVisible() ? popup->text() : QString();
    };
    QCOMPARE(offer(QString()), QStringLiteral("禁用按键"));
    QCOMPARE(offer(Title), QStringLiteral("清除设置"));
    QCOMPARE(offer(Disabled), QStringLiteral("取消禁用"));
    popupOf(keyboard)->hide();
    rightClick(&keyboard, {500, 66}); // between the keys
    QVERIFY(!popupOf(keyboard)->isVisible());
    keyboard.enterValueMode(3);
    QCOMPARE(offer(QString()), QString());
}

void TestKeyboardActions::changesReachTheKeyboard_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("emptied");
    QTest::newRow("disable") << QString() << false << true;
    QTest::newRow("enable again") << Disabled << true << false;
}

void TestKeyboardActions::changesReachTheKeyboard()
{
    QFETCH(QString, title);
    QFETCH(bool, enabled);
    QFETCH(bool, emptied);
    QVERIFY(connected());
    ConnectedKeyboard &wired = *device;
    const quint8 position = keys::PositionOfCode(KeyQ);
    wired.connection.SetMagnetism(magnettable::Mode, position, KeyMode::ModTap | KeyMode::Flag);
    ModuleKeyboard keyboard;
    ModuleKeyboard other;
    keyboard.show();
    keyboard.setKeyTooltip(KeyQ, title, Body, true);
    wired.settle();
    wired.keyboard->clearLog();
    QSignalSpy changed(&keyboard, &ModuleKeyboard::onKeyChanged);
    QSignalSpy changedThere(&other, &ModuleKeyboard::onKeyChanged);

    rightClickKey(keyboard, KeyQ);
    QTest::mouseClick(popupOf(keyboard), Qt::LeftButton);
    QVERIFY(!popupOf(keyboard)->isVisible());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][0].value<uchar>(), KeyQ);
    QCOMPARE(changed[0][1].value<uchar>(), uchar(KeyMode::ModTap | KeyMode::Flag));
    QCOMPARE(changed[0][2].toBool(), enabled);
    for (const ModuleKeyboard *board : {&keyboard, &other}) {
        QCOMPARE(board->keyButton(KeyQ)->isEnabled(), enabled);
        QVERIFY(!board->keyButton(KeyQ)->hasBinding());
    }
    KeyEntry entry;
    wired.connection.GetKeyEntry(entry, position, 0);
    QCOMPARE(entry, emptied ? KeyEntry{} : keys::DefaultEntryAt(position));
    QCOMPARE(wired.connection.GetKeyMode(KeyQ), quint8(KeyMode::Plain));
    // The ten writes of a key's defaults and the one of its own function; none for the second keyboard.
    wired.settle();
    QCOMPARE(wired.commands(), QByteArray("0A 0A 0A 0A 65 65 65 65 65 65 0A"));
    QCOMPARE(changedThere.size(), 0);
}

void TestKeyboardActions::partnersAreTakenAsCodes()
{
    QVERIFY(connected());
    ConnectedKeyboard &wired = *device;
    // A code that a key has; one that none has, by which all keys would be meant; and all keys.
    for (const quint32 partner : {quint32(KeyA), 3u, 0xFFu}) {
        const quint8 position = keys::PositionOfCode(CapsLock);
        wired.connection.SetMagnetism(magnettable::Mode, position, KeyMode::SnapKey);
        wired.connection.SetMagnetism(magnettable::Partner, position, partner);
        wired.connection.SetMagnetism(magnettable::Mode, keys::PositionOfCode(KeyA), KeyMode::SnapKey);
        ModuleKeyboard keyboard;
        for (const quint8 code : {CapsLock, KeyA})
            keyboard.setKeyTooltip(code, Title, Body, true);
        wired.settle();
        wired.keyboard->clearLog();
        keyboard.setKeyEnabledState(keyboard.keyButton(CapsLock), false, true);
        const bool cleared = partner == KeyA;
        QCOMPARE(keyboard.keyButton(KeyA)->hasBinding(), !cleared);
        QCOMPARE(wired.connection.GetKeyMode(KeyA), quint8(cleared ? KeyMode::Plain : KeyMode::SnapKey));
        wired.settle();
        QCOMPARE(wired.keyboard->frameCount(), size_t(cleared ? 12 : 11));
    }
}

void TestKeyboardActions::withoutAKeyboardTheScreenStillChanges()
{
    device.reset();
    QVERIFY(!DialogDeviceConnect::instance());
    ModuleKeyboard keyboard;
    ModuleKeyboard other;
    QSignalSpy changed(&keyboard, &ModuleKeyboard::onKeyChanged);
    keyboard.setKeyEnabledState(keyboard.keyButton(KeyQ), false, true);
    QVERIFY(!other.keyButton(KeyQ)->isEnabled());
    QCOMPARE(changed.size(), 1);
    other.setKeyEnabledState(other.keyButton(KeyQ), true, false);
    QVERIFY(keyboard.keyButton(KeyQ)->isEnabled());
    QCOMPARE(changed.size(), 1);
    {
        const DialogDeviceConnect empty; // connected to nothing: its caches are empty or short
        keyboard.setKeyEnabledState(keyboard.keyButton(KeyQ), false, true);
        QVERIFY(!other.keyButton(KeyQ)->isEnabled());
    }
}

void TestKeyboardActions::nothingIsLeftOfAKeyboardThatGoes()
{
    ModuleKeyboard staying;
    auto going = std::make_unique<ModuleKeyboard>();
    going->show();
    going->lockKeyboard();
    going->updateLegend();
    going->setKeyTooltip(KeyQ, Title, Body, true);
    const QPointer<keySetTooltip> bubble(hover(going->keyButton(KeyQ)));
    rightClickKey(*going, KeyQ);
    const QPointer<CustomTooltip> popup(popupOf(*going));
    QVERIFY(bubble->isVisible() && popup->isVisible());
    going.reset();
    QVERIFY(!bubble && !popup);
    QTest::qWait(30); // the timers of the keyboard that went would run now
    staying.setKeyTooltip(KeyQ, Disabled, {}, true);
    QVERIFY(!staying.keyButton(KeyQ)->isEnabled());

    // A page may put its keyboard away in answer to the very click.
    QPointer<ModuleKeyboard> leaving(new ModuleKeyboard);
    connect(leaving, &ModuleKeyboard::onKeyClicked, &staying, [&leaving] { delete leaving; });
    leaving->keyButton(KeyQ)->click();
    QVERIFY(!leaving);
}

QTEST_MAIN(TestKeyboardActions)
#include "tst_keyboardactions.moc"
