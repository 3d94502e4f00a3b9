#include "ConnectedKeyboard.h"
#include "FrameMacro.h"
#include "KeyScanCode.h"
#include "MacroGrid.h"
#include "MacroItem.h"
#include "MacroSquare.h"
#include "ModuleMacroManager.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr quint16 ScanA = 0x1E;
constexpr quint16 ScanRightCtrl = 0xE01D;
constexpr quint8 KeyA = 0x04;
constexpr quint8 KeyRightCtrl = 0xE4;

/// The scan code as this system's key events carry it.
quint32 nativeCode(quint16 scan)
{
    for (quint32 native = 1; native < 0x200; ++native) {
        if (platform::keyScanCode(native) == scan)
            return native;
    }
    return 0;
}

void type(QWidget *target, QEvent::Type type, quint16 scan, bool isRepeat = false)
{
    QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, nativeCode(scan), 0, 0, {}, isRepeat);
    QCoreApplication::sendEvent(target, &event);
}

void click(QWidget *target, const QPoint &at)
{
    QTest::mouseClick(target, Qt::LeftButton, {}, at);
}

/// A step as a keyboard would play it.
struct Played
{
    int code;
    bool down;
    int delay;
};

QList<Played> play(const sim::Macro &macro, qsizetype steps)
{
    QList<Played> result;
    const QByteArray bytes = bytesOf(macro.events());
    for (qsizetype i = 0; result.size() < steps;) {
        const int flags = quint8(bytes.at(i + 1));
        Played step{quint8(bytes.at(i)), (flags & 0x80) != 0, flags & 0x7F};
        i += 2;
        if (step.delay == 0) {
            step.delay = quint8(bytes.at(i)) + 256 * quint8(bytes.at(i + 1));
            i += 2;
        }
        result.append(step);
    }
    return result;
}

} // namespace

/// The page on which macros are made, over a store in a folder of its own.
class TestMacroPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void recordedMacroPlaysOnTheKeyboard();
    void recordsTheMouse();
    void recordsNothingElse();
    void insertsByHand();
    void editsInPlace();
    void deletesPairs();
    void listOfMacros();
    void longMacro();

private:
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return page->findChild<Widget *>(QLatin1String(name));
    }
    QPushButton *button(const char *name) const { return find<QPushButton>(name); }
    void select(quint8 id) const;
    MacroSquare *square(int index) const { return find<MacroGrid>("macroGrid")->squares().at(index); }
    void addKeys(int pairs);
    QString shown() const;
    QString stored() const;
    QString size() const { return find<QLabel>("labelSize")->text(); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<ModuleMacroManager> store;
    std::unique_ptr<FrameMacro> page;
};

void TestMacroPage::init()
{
    folder = std::make_unique<QTemporaryDir>();
    store = std::make_unique<ModuleMacroManager>(folder->path());
    page = std::make_unique<FrameMacro>();
    page->resize(1124, 740);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

void TestMacroPage::cleanup()
{
    page.reset();
    store.reset();
}

void TestMacroPage::select(quint8 id) const
{
    for (MacroItem *row : page->findChildren<MacroItem *>()) {
        if (row->macroId() == id)
            Q_EMIT row->onOperation(MacroItem::Select, row);
    }
}

/// Gives macro 0 that many presses of keys 1, 2, 3 ... and opens it.
void TestMacroPage::addKeys(int pairs)
{
    for (int i = 1; i <= pairs; ++i) {
        store->AddEvent(store->FindMacro(0), MacroType::Key, quint16(i), true, QString::number(i));
        store->AddEvent(store->FindMacro(0), MacroType::Delay, 50, false, QStringLiteral("延迟"));
    }
    select(0);
}

QString TestMacroPage::shown() const
{
    QStringList steps;
    for (const MacroSquare *each : find<MacroGrid>("macroGrid")->squares())
        steps << QStringLiteral("%1%2:%3")
                     .arg(each->type())
                     .arg(each->isDown() ? u"+" : u"-")
                     .arg(each->value());
    return steps.join(QLatin1Char(' '));
}

/// What another start of the program finds in macro 0.
QString TestMacroPage::stored() const
{
    const ModuleMacroManager again(folder->path());
    QStringList steps;
    for (const MacroEvent *each : again.FindMacro(0)->events)
        steps << QStringLiteral("%1%2:%3").arg(each->type).arg(each->down ? u"+" : u"-").arg(each->value);
    return steps.join(QLatin1Char(' '));
}

void TestMacroPage::recordedMacroPlaysOnTheKeyboard()
{
    select(0);
    QCOMPARE(size(), QStringLiteral("占用: 0 / 256 字节"));
    button("pushButtonRecord")->click();
    QCOMPARE(button("pushButtonRecord")->text(), QStringLiteral("停止录制"));

    const std::pair<QEvent::Type, quint16> typed[] = {{QEvent::KeyPress, ScanRightCtrl},
                                                      {QEvent::KeyPress, ScanA},
                                                      {QEvent::KeyRelease, ScanA},
                                                      {QEvent::KeyRelease, ScanRightCtrl}};
    const int gaps[] = {20, 90, 200};
    QList<qint64> times;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 4; ++i) {
        times << clock.elapsed();
        type(button("pushButtonRecord"), typed[i].first, typed[i].second);
        type(button("pushButtonRecord"), QEvent::KeyPress, typed[i].second, true); // a held key repeats
        const qint64 next = i < 3 ? times.last() + gaps[i] : 0;
        QTRY_VERIFY(clock.elapsed() >= next);
    }
    button("pushButtonRecord")->click();

    ConnectedKeyboard device("wired-2ff");
    QVERIFY(device.readAll());
    device.settle();
    const Macro *macro = store->FindMacro(0);
    device.connection.DoSetMacro(KeyA, 1, 0, macro->id, PackMacro(macro));
    device.settle();
    const sim::KeyboardState state = device.keyboard->state();
    QVERIFY(state.macros.find(0)->complete);
    const QList<Played> played = play(*state.macros.find(0), 4);
    const int codes[] = {KeyRightCtrl, KeyA, KeyA, KeyRightCtrl};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(played.at(i).code, codes[i]);
        QCOMPARE(played.at(i).down, i < 2);
        const qint64 gap = i < 3 ? times.at(i + 1) - times.at(i) : 50; // the last one keeps the default
        QVERIFY2(qAbs(played.at(i).delay - gap) <= (i < 3 ? 5 : 0), qPrintable(shown()));
    }
    QCOMPARE(stored(), shown());
}

void TestMacroPage::recordsTheMouse()
{
    select(0);
    const QPoint spot(page->width() - 4, 4);
    click(page.get(), spot);
    QCOMPARE(shown(), QString());
    button("pushButtonRecord")->click();
    QTest::mousePress(page.get(), Qt::RightButton, {}, spot);
    QCOMPARE(shown(), QStringLiteral("1+:241 3-:50"));
    QCOMPARE(size(), QStringLiteral("占用: 4 / 256 字节"));
    button("pushButtonClear")->click();
    QMouseEvent twice(QEvent::MouseButtonDblClick, spot, page->mapToGlobal(spot), Qt::LeftButton,
                      Qt::LeftButton, {});
    QCoreApplication::sendEvent(page.get(), &twice);
    const QString clicks = QStringLiteral("1+:240 3-:50 1-:240 3-:50 1+:240 3-:50 1-:240 3-:50");
    click(page.get(), spot); // swallowed
    QCOMPARE(shown(), clicks);
    QTRY_VERIFY((click(page.get(), spot), shown() != clicks));
    button("pushButtonRecord")->click();
    QCOMPARE(stored(), shown());
}

void TestMacroPage::recordsNothingElse()
{
    addKeys(1);
    QVERIFY(!shown().isEmpty());
    type(page.get(), QEvent::KeyPress, ScanA);
    button("pushButtonRecord")->click();
    type(page.get(), QEvent::KeyPress, 0x56); // a key without a code
    QCOMPARE(shown(), QStringLiteral("0+:1 3-:50"));
    QEvent away(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(page.get(), &away);
    QVERIFY(!button("pushButtonRecord")->isChecked());
    button("pushButtonRecord")->click();
    select(1); // the recording doesn't go on in another macro
    QVERIFY(!button("pushButtonRecord")->isChecked());
    type(page.get(), QEvent::KeyPress, ScanA);
    QCOMPARE(shown(), QString());
    QCOMPARE(stored(), QStringLiteral("0+:1 3-:50"));
}

void TestMacroPage::insertsByHand()
{
    addKeys(2);
    // The steps that stand between the two keys after a choice in the dialog, or Escape.
    const auto inserted = [this](const QString &choice) {
        QTimer::singleShot(0, page.get(), [choice] {
            QWidget *mask = QApplication::activeModalWidget();
            if (auto *radio = mask->findChild<QRadioButton *>(choice); !choice.isEmpty())
                radio->click();
            auto *key = mask->findChild<QLineEdit *>();
            type(key, QEvent::KeyPress, ScanA);
            for (const char *box : {"checkBox1", "checkBox2"})
                mask->findChild<QAbstractButton *>(QLatin1String(box))->click();
            mask->findChild<QSpinBox *>(QStringLiteral("spinBoxX"))->setValue(3);
            mask->findChild<QSpinBox *>(QStringLiteral("spinBoxY"))->setValue(5);
            QTest::keyClick(key, choice.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        Q_EMIT square(2)->onAction(square(2), MacroSquare::InsertHere);
        return shown();
    };
    const QString first = QStringLiteral("0+:1 3-:50 ");
    QString rest = QStringLiteral("0+:2 3-:50");
    QCOMPARE(inserted(QString()), first + rest);
    for (const auto &[choice, steps] :
         {std::pair{"radioButtonKey", "0+:4 3-:50 0-:4 3-:50 "},
          {"radioButtonMouse", "1+:240 3-:50 1-:240 3-:50 1+:242 3-:50 1-:242 3-:50 "},
          {"radioButtonPosition", "2-:773 3-:50 "}}) {
        rest.prepend(QLatin1String(steps));
        QCOMPARE(inserted(QLatin1String(choice)), first + rest);
    }
    QTRY_COMPARE(stored(), shown());
}

void TestMacroPage::editsInPlace()
{
    Macro *macro = store->FindMacro(0);
    store->AddEvent(macro, MacroType::Position, 256 * 3 + 5, false, {});
    store->AddEvent(macro, MacroType::Delay, 2, false, {});
    select(0);
    const auto edit = [this](int index, const QString &text) {
        click(square(index), square(index)->rect().center());
        auto *box = qobject_cast<QSpinBox *>(QApplication::focusWidget());
        QVERIFY(box);
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(!box->isVisible());
    };
    edit(1, QString());
    QCOMPARE(square(1)->value(), quint16(2)); // shorter than can be typed, and kept
    edit(1, QStringLiteral("300"));
    edit(0, QStringLiteral("9")); // X, which was shown as 5; Y as 3
    QCOMPARE(shown(), QStringLiteral("2-:%1 3-:300").arg(256 * 9 + 3));
    QVERIFY(square(1)->findChildren<QAbstractButton *>().isEmpty()); // delays have no buttons
    find<QSpinBox>("spinBoxDelay")->setValue(128);
    button("pushButtonSetDelay")->click();
    QCOMPARE(shown(), QStringLiteral("2-:%1 3-:128").arg(256 * 9 + 3));
    QCOMPARE(stored(), shown());
}

void TestMacroPage::deletesPairs()
{
    addKeys(5);
    click(square(0), {4, 4});
    click(square(6), {4, 4});
    click(square(1), {4, 4}); // a delay goes with its action only
    button("pushButtonDelete")->click();
    QCOMPARE(shown(), QStringLiteral("0+:2 3-:50 0+:3 3-:50 0+:5 3-:50"));
    QCOMPARE(stored(), shown());
    click(square(2), {4, 4});
    const auto buttons = square(2)->findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), 2);
    buttons.last()->click();
    QCOMPARE(stored(), QStringLiteral("0+:2 3-:50 0+:5 3-:50"));
    button("pushButtonClear")->click();
    QCOMPARE(stored(), QString());
}

void TestMacroPage::listOfMacros()
{
    button("pushButtonAddMacro")->click();
    QCOMPARE(find<QLabel>("labelMacroName")->text(), QStringLiteral("新建宏8")); // none was open
    MacroItem *row = page->findChildren<MacroItem *>().last();
    auto *name = row->findChild<QLineEdit *>();
    QTest::mouseDClick(row, Qt::LeftButton, {}, {20, 20});
    QTest::keyClicks(name, QStringLiteral("<i>Boss</i>"));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(find<QLabel>("labelMacroName")->text(), QStringLiteral("<i>Boss</i>"));
    QCOMPARE(ModuleMacroManager(folder->path()).FindMacro(8)->name, QStringLiteral("<i>Boss</i>"));
    Q_EMIT row->onOperation(MacroItem::Delete, row);
    QVERIFY(!store->FindMacro(8));
    QVERIFY(!button("pushButtonRecord")->isEnabled());
    for (int i = 0; i < 60; ++i)
        button("pushButtonAddMacro")->click();
    QTRY_COMPARE(page->findChildren<MacroItem *>().size(), 50);
    QCOMPARE(ModuleMacroManager(folder->path()).macros().size(), 50);
}

/// Thousands of steps show, scroll and take more.
void TestMacroPage::longMacro()
{
    addKeys(2500);
    auto *bar = page->findChild<QScrollArea *>(QStringLiteral("scrollAreaSquares"))->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0 && bar->value() == bar->maximum()); // the end shows
    QVERIFY(square(4999)->isVisible() &&
            square(4999)->visibleRegion().boundingRect() == square(4999)->rect());
    bar->setValue(0);
    QVERIFY(square(0)->isVisible() && !square(0)->visibleRegion().isEmpty());
    button("pushButtonRecord")->click();
    type(page.get(), QEvent::KeyPress, ScanA);
    button("pushButtonRecord")->click();
    QVERIFY(stored().endsWith(QStringLiteral("0+:4 3-:50")));
}

QTEST_MAIN(TestMacroPage)
#include "tst_macropage.moc"
