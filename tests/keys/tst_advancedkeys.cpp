#include "KeyPage.h"
#include "MagnetTables.h"
#include "ModuleDKSAdjust.h"
#include "ModuleDKSItem.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QTimer>

using namespace magnettable;

namespace {

constexpr quint8 KeyA = 0x04;
constexpr quint8 KeyB = 0x05;
constexpr quint8 KeyD = 0x07;
constexpr quint8 KeyQ = 0x14;

/// Saves a travel in the popup that a click on a label opens, or cancels it with no text.
bool adjust(const KeyPage &page, const QByteArray &label, const QString &text)
{
    bool came = false;
    QTimer::singleShot(0, &page.page, [&came, text] {
        const QWidget *mask = QApplication::activeModalWidget();
        const auto *popup = mask ? mask->findChild<ModuleDKSAdjust *>() : nullptr;
        came = popup && popup->isVisible();
        if (!popup)
            return;
        popup->findChild<QLineEdit *>()->setText(text);
        const QString end = QLatin1String(text.isEmpty() ? "pushButtonCancel" : "pushButtonOK");
        popup->findChild<QAbstractButton *>(end)->click();
    });
    QTest::mouseClick(page.find<QLabel>(label), Qt::LeftButton);
    QCoreApplication::processEvents();
    return came;
}

QAbstractButton *row(const KeyPage &page, int number)
{
    return page.find<QWidget>("frameDKS" + QByteArray::number(number))->findChild<QAbstractButton *>();
}

} // namespace

/// Dynamic keystroke, mod-tap, toggle and SnapKey, judged by what the keyboard then holds.
class TestAdvancedKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(KeyPage::device()); }
    void cleanupTestCase() { KeyPage::device(true); }

    void functionsAreSavedAndFoundAgain();
    void holdTime();
    void nothingIsSavedWithoutAKey();
    void keyFillsItsTabFromAnyOther();
    void travelPopup();
    void rowsAreDraggedAndToggled();
};

void TestAdvancedKeys::functionsAreSavedAndFoundAgain()
{
    ConnectedKeyboard &wired = *KeyPage::device();
    const KeyPage page;
    const auto pick = [&page](const QByteArray &steps, QAbstractButton *button) {
        return page.pick(steps, [button] { button->click(); });
    };
    page.openTab(KeyPage::Dks);
    page.clickKey(KeyQ);
    QVERIFY(pick("Hid004", row(page, 1)));
    QVERIFY(pick("Hid224 Hid005", row(page, 2)));
    QCOMPARE(page.commandsOf("pushButton_OKDKS"), "0A 0A 0A 0A 65 65 65");
    QCOMPARE(KeyPage::heldEntry(KeyQ, 0), "00 04 00 00");
    QCOMPARE(KeyPage::heldEntry(KeyQ, 1), "00 E0 05 00");
    QCOMPARE(KeyPage::heldEntry(KeyQ, 2), "00 00 00 00");
    QCOMPARE(KeyPage::heldValues(KeyQ, {Mode, DksTravel, DksActions}), QList<quint32>({2, 140, 0x55565B6F}));

    page.openTab(KeyPage::Toggle);
    page.clickKey(KeyB);
    QVERIFY(pick("Hid005", page.find("pushButton_TGL1")));
    QCOMPARE(page.commandsOf("pushButton_OKTGL"), "0A 65");
    QCOMPARE(KeyPage::heldEntry(KeyB), "00 05 00 00");
    QCOMPARE(KeyPage::heldValues(KeyB, {Mode}), QList<quint32>({4}));
    QCOMPARE(page.commandsOf("radioButton_TGL2"), "0A 65");
    QCOMPARE(KeyPage::heldValues(KeyB, {Mode}), QList<quint32>({5}));

    page.openTab(KeyPage::Snap);
    page.clickKey(KeyA);
    QCOMPARE(page.commandsOf("pushButton_OKSnap"), ""); // only one key yet
    page.press("radioButton_Snap2");
    page.clickKey(KeyD);
    QCOMPARE(page.commandsOf("pushButton_OKSnap"), "65 65 65 65");
    QCOMPARE(KeyPage::heldValues(KeyA, {Mode, Partner}), QList<quint32>({7, 21}));
    QCOMPARE(KeyPage::heldValues(KeyD, {Mode, Partner}), QList<quint32>({7, 9}));
    const sim::KeyboardState state = wired.keyboard->state();
    QVERIFY(!state.keys.groupOpen() && !state.active().magnetism.groupOpen());

    wired.connection.DoReadAll();
    QVERIFY(wired.readDone.wait(20000));
    page.openMode(KeyPage::Custom);
    QCOMPARE(page.shown(KeyQ), u"Q|动态键程(DKS):\nA\nL-Ctrl + B");
    QCOMPARE(page.shown(KeyB), u"B|切换开关(TGL):\nB");
    for (const quint8 code : {KeyQ, KeyB, KeyA, KeyD}) {
        QVERIFY(!page.shown(code).isEmpty());
        page.useActionOf(code);
        QCOMPARE(KeyPage::heldValues(code, {Mode}), QList<quint32>({0}));
        QCOMPARE(page.shown(code), QString());
    }
}

void TestAdvancedKeys::holdTime()
{
    const KeyPage page;
    page.openTab(KeyPage::ModTap);
    page.clickKey(KeyQ);
    QVERIFY(page.pick("Hid004", [&page] { page.press("pushButton_MT1"); }));
    QVERIFY(page.pick("Hid224 Hid036", [&page] { page.press("pushButton_MT2"); }));
    auto *edit = page.find<QLineEdit>("lineEditValue");
    QCOMPARE(edit->text(), QStringLiteral("25 ms"));
    for (const auto &[typed, time] : {std::pair{"soon", 0}, std::pair{"99999999999999999999", 200},
                                      std::pair{"999", 200}, std::pair{"150 ms", 150}}) {
        edit->setText(QLatin1String(typed));
        QTRY_COMPARE(edit->text(), QStringLiteral("%1 ms").arg(time));
        QTRY_COMPARE(page.find<QSlider>("horizontalSlider")->value(), time);
    }
    QCOMPARE(page.commandsOf("pushButton_OKMT"), QByteArray("0A 0A 65 65"));
    QCOMPARE(KeyPage::heldEntry(KeyQ, 0), QByteArray("00 04 00 00"));
    QCOMPARE(KeyPage::heldEntry(KeyQ, 1), QByteArray("00 E0 24 00"));
    QCOMPARE(KeyPage::heldValues(KeyQ, {Mode, HoldTime}), QList<quint32>({3, 1}));
    QCOMPARE(page.shown(KeyQ), QStringLiteral("Q|按住单击(MT):\nA:\nL-Ctrl + 7 &"));
}

void TestAdvancedKeys::nothingIsSavedWithoutAKey()
{
    DialogDeviceConnect &connection = KeyPage::device()->connection;
    const KeyPage page;
    page.openMode(KeyPage::Advanced);
    for (const char *button :
         {"pushButton_OKDKS", "pushButton_OKMT", "pushButton_OKTGL", "pushButton_OKSnap", "radioButton_TGL2"})
        QCOMPARE(page.commandsOf(button), QByteArray());
    // A partner's position, taken as a code that no key has: all keys would be written.
    connection.DoSetMagnetism(Mode, KeyA, KeyMode::SnapKey, 0);
    connection.DoSetMagnetism(Partner, KeyA, 3, 1);
    page.clickKey(KeyA);
    QCOMPARE(page.commandsOf("pushButton_OKSnap"), QByteArray());
    connection.DoResetKey(KeyA);
}

void TestAdvancedKeys::keyFillsItsTabFromAnyOther()
{
    DialogDeviceConnect &connection = KeyPage::device()->connection;
    const KeyPage page;
    page.openTab(KeyPage::Snap);
    const auto load = [&connection, &page](quint8 mode) {
        connection.DoSetMagnetism(Mode, KeyQ, mode | KeyMode::Flag, 1);
        page.clickKey(KeyQ);
    };
    connection.DoResetKey(KeyQ);
    connection.DoSetKey(KeyQ, {{0, 0xE0, KeyB, 0}}, 0, 1);
    connection.DoSetMagnetism(DksTravel, KeyQ, 300, 0);
    const QString function = QStringLiteral("L-Ctrl + B");
    load(KeyMode::DynamicKeystroke);
    QCOMPARE(row(page, 1)->text(), function);
    QCOMPARE(row(page, 4)->text(), QStringLiteral("未设置功能"));
    QCOMPARE(page.find<QLabel>("labelPress1")->text(), QStringLiteral("1.50 mm"));
    QCOMPARE(page.find<QLabel>("labelRelease2")->text(), QStringLiteral("1.50 mm"));
    load(KeyMode::ModTap);
    QCOMPARE(page.find("pushButton_MT1")->text(), function);
    QCOMPARE(page.find("pushButton_MT2")->text(), QStringLiteral("按住"));
    load(KeyMode::ToggleSecond);
    QCOMPARE(page.find("pushButton_TGL1")->text(), function);
    QVERIFY(page.find("radioButton_TGL2")->isChecked());
    // They show the key, but only the open tab has it under edit.
    for (const char *tab : {"DKS", "MT", "TGL"}) {
        QCOMPARE(page.find(QByteArray("pushButton_") + tab)->text(), QStringLiteral("Q"));
        QCOMPARE(page.commandsOf(QByteArray("pushButton_OK") + tab), QByteArray());
    }
    QCOMPARE(page.find("pushButton_Snap1")->text(), QStringLiteral("Q"));
    connection.DoResetKey(KeyQ);
}

void TestAdvancedKeys::travelPopup()
{
    KeyPage::device()->connection.DoResetKey(KeyQ);
    const KeyPage page;
    page.openTab(KeyPage::Dks);
    page.clickKey(KeyQ);
    const auto adjusted = [&page](const QByteArray &label, const char *text) {
        const bool came = adjust(page, label, QLatin1String(text));
        const QString shown = page.find<QLabel>("labelPress1")->text();
        return came && shown == page.find<QLabel>("labelRelease2")->text() ? shown
                                                                           : QStringLiteral("not one");
    };
    QCOMPARE(adjusted("labelPress1", ""), QStringLiteral("0.7 mm")); // cancelled
    QCOMPARE(adjusted("labelRelease4", "deep"), QStringLiteral("0.00 mm"));
    QCOMPARE(adjusted("labelPress1", "-1"), QStringLiteral("0.00 mm"));
    QCOMPARE(adjusted("labelPress3", "4.000"), QStringLiteral("4.00 mm"));
    QCOMPARE(adjusted("labelPress1", "1.005"), QStringLiteral("1.00 mm"));
    page.commandsOf("pushButton_OKDKS");
    QCOMPARE(KeyPage::heldValues(KeyQ, {DksTravel}), QList<quint32>({201})); // no step is lost
}

void TestAdvancedKeys::rowsAreDraggedAndToggled()
{
    ModuleDKSItem item;
    item.show();
    auto *first = item.findChild<QLabel *>(QStringLiteral("labelSwitch1"));
    const QString on = first->accessibleDescription();
    QTest::keyClick(first, Qt::Key_Space);
    QVERIFY(first->accessibleDescription() != on);
    QTest::mouseClick(first, Qt::LeftButton);
    QCOMPARE(first->accessibleDescription(), on);

    // How many switches the bar hides, dragged from one place to another.
    const auto hiddenBy = [&item](int from, int to) {
        QTest::qWait(600); // an earlier start is forgotten
        QTest::mousePress(&item, Qt::LeftButton, {}, {from, 20});
        QTest::mouseMove(&item, {to, 20});
        const auto labels = item.findChildren<QLabel *>();
        const auto count =
            std::count_if(labels.begin(), labels.end(), [](auto *label) { return label->isHidden(); });
        const bool painted = item.grab().toImage().pixelColor(285, 20) == QColor(0x63, 0x29, 0xB6);
        QTest::mouseMove(&item, {from, 20});
        QTest::mouseRelease(&item, Qt::LeftButton, {}, {from, 20});
        return std::pair(int(count), painted);
    };
    QCOMPARE(hiddenBy(135, 260), std::pair(2, false));
    QCOMPARE(hiddenBy(135, 415), std::pair(3, true));
    QCOMPARE(hiddenBy(200, 415), std::pair(2, true));
    QCOMPARE(hiddenBy(200, 235), std::pair(0, false));
}

QTEST_MAIN(TestAdvancedKeys)
#include "tst_advancedkeys.moc"
