#include "DialogFNPicker.h"
#include "DialogVKPicker.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"
#include "PickerSlot.h"

#include <memory>
#include <QAbstractButton>
#include <QPointer>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

void click(const KeyPicker &picker, const QString &name)
{
    auto *button = picker.findChild<QAbstractButton *>(name);
    QVERIFY2(button, qPrintable(name));
    button->click();
}

QString numbered(const char *stem, int number, int digits = 2)
{
    return QStringLiteral("pushButton_%1%2")
        .arg(QLatin1String(stem))
        .arg(number, digits, 10, QLatin1Char('0'));
}

QString bytesOf(const KeyEntry &entry)
{
    const QByteArray bytes(reinterpret_cast<const char *>(entry.bytes.data()), KeyEntry::Size);
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

PickerSlot *slotOf(const KeyPicker &picker, int number)
{
    return picker.findChild<PickerSlot *>(QStringLiteral("labelSelect%1").arg(number));
}

void openTab(const KeyPicker &picker, int tab)
{
    picker.findChild<QTabWidget *>(QStringLiteral("tabWidgetKey"))->setCurrentIndex(tab);
}

std::unique_ptr<KeyPicker> makePicker(bool keysOnly, QWidget *parent = nullptr)
{
    if (keysOnly)
        return std::make_unique<DialogVKPicker>(parent);
    return std::make_unique<DialogFNPicker>(parent);
}

} // namespace

/// What the user picks, and what the picker hands back for it.
class TestPickers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyIsThere();
    void combinations_data();
    void combinations();
    void functionsFollowTheLists();
    void macros();
    void aParentThatGoesEndsIt();
};

void TestPickers::everyKeyIsThere()
{
    for (const bool keysOnly : {false, true}) {
        const auto picker = makePicker(keysOnly);
        QMap<const QObject *, QRegion> taken; // by block
        for (int usage = 0; usage <= 255; ++usage) {
            const auto *key = picker->findChild<QAbstractButton *>(numbered("Hid", usage, 3));
            QCOMPARE(key != nullptr, (usage >= 4 && usage <= 101) || (usage >= 224 && usage <= 231));
            if (!key)
                continue;
            QCOMPARE(key->width(), keysOnly ? 40 : 42);
            QVERIFY(!key->text().isEmpty());
            QVERIFY(key->parentWidget()->rect().contains(key->geometry()));
            QVERIFY(!taken[key->parent()].intersects(key->geometry()));
            taken[key->parent()] += key->geometry();
        }
    }
}

void TestPickers::combinations_data()
{
    QTest::addColumn<QString>("result");
    const auto row = [](const char *steps, const char *result) { // usages, and the places that are emptied
        QTest::newRow(steps) << QString::fromLatin1(result);
    };
    row("4", "00 04 00 00 A|--|--");
    row("4 224 4", "00 04 E0 04 A|L-Ctrl|A");
    row("224 225 4 5", "00 E0 E1 04 L-Ctrl|L-Shift|A"); // a fourth is ignored
    row("224 225 4 2", "00 E0 00 04 L-Ctrl|--|A");
    row("224 225 4 2 36", "00 E0 24 04 L-Ctrl|7 &|A"); // the next key fills the gap
    row("224 225 1 2 2 3", "00 00 00 00 --|--|--");
}

void TestPickers::combinations()
{
    for (const bool keysOnly : {false, true}) {
        const auto picker = makePicker(keysOnly);
        for (const QByteArray &step : QByteArray(QTest::currentDataTag()).split(' ')) {
            if (const int number = step.toInt(); number <= 3)
                QTest::mouseClick(slotOf(*picker, number), Qt::LeftButton);
            else
                click(*picker, numbered("Hid", number, 3));
        }
        QStringList labels;
        for (int i = 1; i <= 3; ++i)
            labels.append(slotOf(*picker, i)->text());
        QTEST(bytesOf(picker->entry()) + QLatin1Char(' ') + labels.join(QLatin1Char('|')), "result");
    }
}

void TestPickers::functionsFollowTheLists()
{
    DialogFNPicker picker;
    const auto check = [&picker](const QString &button, const KeyFunction *function) {
        click(picker, button);
        QCOMPARE(picker.entry(), function->entry);
        QVERIFY(!picker.isMacro());
        QCOMPARE(slotOf(picker, 1)->text(), ModuleGenKeymapping::KeyEntryText(function->entry, true));
        QTest::mouseClick(slotOf(picker, 1), Qt::LeftButton);
        QVERIFY(picker.entry().isEmpty());
    };
    openTab(picker, 2);
    for (int i = 1; i <= 21; ++i)
        check(numbered("F", i), ModuleGenKeymapping::FunctionEntryAt(quint8(i - 1)));
    openTab(picker, 3);
    for (int i = 0; i <= 10; ++i)
        check(numbered("Mouse", i), ModuleGenKeymapping::MouseEntryAt(quint8(i)));
}

void TestPickers::macros()
{
    const QTemporaryDir folder;
    ModuleMacroManager store(folder.path());
    Macro *macro = store.FindMacro(3);
    macro->name = QStringLiteral("Jump");
    store.AddEvent(macro, MacroType::Key, 44, true, QStringLiteral("Space"));
    store.AddEvent(macro, MacroType::Delay, 20, false, QStringLiteral("20"));
    // The way of playing may be set before and after.
    const auto picked = [](int repeat, int mode, int slot) {
        QString result;
        for (const bool macroFirst : {true, false}) {
            DialogFNPicker picker;
            openTab(picker, 1);
            if (macroFirst)
                click(picker, numbered("Micro", slot));
            picker.findChild<QSpinBox *>(QStringLiteral("spinBoxM"))->setValue(repeat);
            click(picker, QStringLiteral("radioButtonM%1").arg(mode));
            if (!macroFirst)
                click(picker, numbered("Micro", slot));
            const QString text = bytesOf(picker.entry()) + QLatin1Char(' ') + slotOf(picker, 1)->text();
            const bool same = picker.isMacro() && (macroFirst || text == result);
            result = same ? text : QStringLiteral("not the same");
        }
        return result;
    };
    QCOMPARE(picked(1, 1, 3), QStringLiteral("01 00 03 00 Jump"));
    QCOMPARE(picked(1, 2, 0), QStringLiteral("01 01 00 00 未录制的宏"));  // empty
    QCOMPARE(picked(5, 3, 49), QStringLiteral("05 02 31 00 未录制的宏")); // not in the store
    QCOMPARE(picked(300, 1, 3), QStringLiteral("2C 00 03 00 Jump"));

    DialogFNPicker picker;
    openTab(picker, 1);
    click(picker, numbered("Micro", 7));
    QVERIFY(slotOf(picker, 2)->isHidden());
    openTab(picker, 0); // starts over
    QVERIFY(picker.entry().isEmpty() && !picker.isMacro() && !slotOf(picker, 2)->isHidden());
}

void TestPickers::aParentThatGoesEndsIt()
{
    for (const bool isDestroyed : {false, true}) {
        auto *window = new QWidget;
        const QPointer<QWidget> guard(window);
        auto *page = new QWidget(window);
        window->show();
        DialogVKPicker picker(page); // as callers do: on the stack, with a parent
        QTimer::singleShot(0, &picker, [window, isDestroyed] {
            if (isDestroyed)
                delete window;
            else
                window->hide();
        });
        QCOMPARE(picker.exec(), int(QDialog::Rejected));
        QCOMPARE(guard.isNull(), isDestroyed);
        QCOMPARE(picker.parent() == nullptr, isDestroyed);
        delete guard;
    }
}

QTEST_MAIN(TestPickers)
#include "tst_pickers.moc"
