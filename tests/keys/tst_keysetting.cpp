#include "KeyPage.h"
#include "MagnetTables.h"
#include "ModuleMacroManager.h"

#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

using virtualhid::VirtualBus;

namespace {

constexpr quint8 KeyA = 0x04;
constexpr quint8 KeyB = 0x05;
constexpr quint8 KeyF = 0x09;
constexpr quint8 KeyQ = 0x14;
constexpr KeyEntry PickedA{{0, KeyA, 0, 0}};

} // namespace

/// Keys that are given functions, and what the on-screen keyboard then tells of them.
class TestKeySetting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { KeyPage::device(true); }

    void pickedFunctions_data();
    void pickedFunctions();
    void bubblesTellWhatTheKeyDoes_data();
    void bubblesTellWhatTheKeyDoes();
    void fnLayer();
    void functionsOutliveAReconnectAndAreTakenOff();
    void modes();
    void optionsDontWriteBackWhatARefreshShows();

private:
    QTemporaryDir folder;
    std::unique_ptr<ModuleMacroManager> store;
};

void TestKeySetting::initTestCase()
{
    store = std::make_unique<ModuleMacroManager>(folder.path());
    store->FindMacro(3)->name = QStringLiteral("Jump");
    QVERIFY(KeyPage::device());
}

void TestKeySetting::pickedFunctions_data()
{
    QTest::addColumn<bool>("onFnLayer");
    QTest::addColumn<QByteArray>("steps");
    QTest::addColumn<QByteArray>("held");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, bool fn, QByteArray steps, QByteArray held, const char *shown) {
        QTest::newRow(name) << fn << steps << held << QString::fromUtf8(shown);
    };
    row("combination", false, "Hid224 Hid004", "00 E0 04 00", "Q|组合: L-Ctrl + A");
    row("macro", false, "1 Micro03", "09 00 03 00", "Q|宏设置:\nJump");
    row("mouse function", false, "3 Mouse02", "01 00 F2 00", "Q|鼠标: 中键按下");
    row("nothing disables", false, "", "00 00 00 00", "disabled");
    row("combination with Fn", true, "Hid224 Hid004", "00 E0 04 00", "Fn + Q|组合: L-Ctrl + A");
    row("macro with Fn goes out as picked", true, "1 Micro03", "01 00 03 00", "Fn + Q|系统按键");
}

void TestKeySetting::pickedFunctions()
{
    QFETCH(bool, onFnLayer);
    QFETCH(QByteArray, steps);
    QFETCH(QByteArray, held);
    DialogDeviceConnect &connection = KeyPage::device()->connection;
    connection.DoResetKey(KeyQ);
    connection.DoSetFn(KeyQ, {});
    KeyPage page;
    const ModuleKeyboard elsewhere; // as on another page
    page.openMode(onFnLayer ? KeyPage::FnLayer : KeyPage::Custom);
    QVERIFY(page.pick(steps, [&page] { page.clickKey(KeyQ); }));
    QTEST(page.shown(KeyQ), "shown");
    QCOMPARE(elsewhere.keyButton(KeyQ)->hasBinding(), page.keyboard->keyButton(KeyQ)->hasBinding());
    KeyPage::device()->settle();
    QCOMPARE(KeyPage::heldEntry(KeyQ), onFnLayer ? "00 00 14 00" : held);
    QCOMPARE(KeyPage::heldFnEntry(KeyQ), onFnLayer ? held : "00 00 00 00");
}

void TestKeySetting::bubblesTellWhatTheKeyDoes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QList<KeyEntry>>("layers");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, int mode, const QList<KeyEntry> &layers, const char *shown) {
        QTest::newRow(name) << mode << layers << QString::fromUtf8(shown);
    };
    constexpr KeyEntry Factory{{0, 0, KeyQ, 0}};
    constexpr KeyEntry PickedB{{0, KeyB, 0, 0}};
    row("its own key, but picked", 0, {KeyEntry{{0, KeyQ, 0, 0}}}, "Q|组合: Q");
    row("DKS with gaps", 2 | KeyMode::Flag, {PickedA, {}, PickedB}, "Q|动态键程(DKS):\nA\n\nB");
    row("DKS without a first", 2, {{}, PickedA}, "disabled");
    row("MT", 3, {PickedA, PickedB}, "Q|按住单击(MT):\nA:\nB");
    row("SnapKey names the partner's position as a code", 7, {Factory}, "Q|SnapKey:\nF");
}

void TestKeySetting::bubblesTellWhatTheKeyDoes()
{
    QFETCH(int, mode);
    QFETCH(QList<KeyEntry>, layers);
    DialogDeviceConnect &connection = KeyPage::device()->connection;
    for (quint8 layer = 0; layer < 4; ++layer)
        connection.DoSetKey(KeyQ, layers.value(layer), layer, layer == 3);
    connection.DoSetMagnetism(magnettable::Mode, KeyQ, quint32(mode), 0);
    connection.DoSetMagnetism(magnettable::Partner, KeyQ, KeyF, 1);
    KeyPage page;
    QTEST(page.shown(KeyQ), "shown");
    connection.DoResetKey(KeyQ);
    page.page.RefreshPage();
    QCOMPARE(page.shown(KeyQ), QString());
}

void TestKeySetting::fnLayer()
{
    DialogDeviceConnect &connection = KeyPage::device()->connection;
    KeyPage page;
    const auto shownFor = [&connection, &page](const KeyEntry &fnEntry) {
        page.openMode(KeyPage::Custom);
        connection.DoSetFn(KeyQ, fnEntry);
        page.openMode(KeyPage::FnLayer);
        return page.shown(KeyQ);
    };
    connection.DoSetKey(KeyQ, PickedA, 0, 1);
    QCOMPARE(shownFor({}), QStringLiteral("Q|组合: A"));
    QCOMPARE(shownFor({{0xFF, 0xFF, 0xFF, 0xFF}}), QStringLiteral("Q|组合: A"));
    QCOMPARE(shownFor({{0, 0, 0, 1}}), QStringLiteral("disabled"));
    QCOMPARE(shownFor({{0, 0, KeyA, 0}}), QStringLiteral("Fn + Q|系统按键"));
    page.useActionOf(KeyQ); // takes the function away
    QCOMPARE(KeyPage::heldFnEntry(KeyQ), QByteArray("00 00 00 00"));
    page.useActionOf(KeyQ); // disables the key
    QCOMPARE(KeyPage::heldFnEntry(KeyQ), QByteArray("00 00 00 01"));
    page.useActionOf(KeyQ); // enables it again
    QCOMPARE(KeyPage::heldFnEntry(KeyQ), QByteArray("00 00 00 00"));
    QCOMPARE(page.shown(KeyQ), QString());
}

void TestKeySetting::functionsOutliveAReconnectAndAreTakenOff()
{
    ConnectedKeyboard &wired = *KeyPage::device();
    KeyPage page;
    const QByteArrayList picks{"Hid224 Hid004", "1 Micro03", "2 F09", "3 Mouse02", ""};
    QStringList before;
    for (qsizetype i = 0; i < picks.size(); ++i) {
        const auto code = quint8(KeyQ + i);
        QVERIFY(page.pick(picks.at(i), [&page, code] { page.clickKey(code); }));
        before += page.shown(code);
    }
    wired.settle();
    VirtualBus::instance().unplug(wired.keyboard);
    VirtualBus::instance().replug(wired.keyboard);
    wired.readDone.clear();
    wired.connection.deviceChanged();
    QVERIFY(wired.readDone.wait(20000));
    page.page.RefreshPage();
    for (qsizetype i = 0; i < picks.size(); ++i) {
        const auto code = quint8(KeyQ + i);
        QCOMPARE(page.shown(code), before.at(i));
        page.useActionOf(code);
        page.page.RefreshPage();
        QCOMPARE(page.shown(code), QString());
        QCOMPARE(QByteArray::fromHex(KeyPage::heldEntry(code)), QByteArray("\0\0", 2) + char(code) + '\0');
    }
}

void TestKeySetting::modes()
{
    const KeyPage page;
    const FrameKeySetting hidden;
    const auto titleOf = [](const FrameKeySetting &frame) {
        return frame.findChild<QLabel *>(QStringLiteral("labelFunc"))->text();
    };
    for (const auto mode : {KeyPage::FnLayer, KeyPage::Options, KeyPage::Advanced, KeyPage::Custom}) {
        page.openMode(mode);
        const bool picks = mode == KeyPage::Custom || mode == KeyPage::FnLayer;
        QCOMPARE(page.find<QStackedWidget>("stackedWidget")->currentIndex(), picks ? 0 : int(mode) - 1);
        QCOMPARE(titleOf(page.page), mode == KeyPage::FnLayer ? u"Fn层按键设置" : u"自定义按键");
        QCOMPARE(page.keyboard->isEnabled(), mode != KeyPage::Options);
        QCOMPARE(page.pick("cancel", [&page] { page.clickKey(KeyQ); }), picks);
    }
    QCOMPARE(titleOf(hidden), u"自定义/Fn层设置");
}

void TestKeySetting::optionsDontWriteBackWhatARefreshShows()
{
    const DialogDeviceConnect &connection = KeyPage::device()->connection;
    const KeyPage page;
    page.openMode(KeyPage::Options);
    auto *debounce = page.find<QLineEdit>("lineEditV3");
    QCOMPARE(debounce->text().toInt(), int(connection.GetDebounce()));
    const auto writes = [&connection, debounce] {
        const int other = debounce->text().toInt() == 7 ? 6 : 7;
        debounce->setText(QString::number(other));
        return connection.GetDebounce() == other;
    };
    QVERIFY(!writes());
    QTRY_VERIFY_WITH_TIMEOUT(writes(), 2000);
}

QTEST_MAIN(TestKeySetting)
#include "tst_keysetting.moc"
