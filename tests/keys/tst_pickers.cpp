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
    void macros_data();
    void macros();
    void anotherTabStartsOver();
    void leaving_data();
    void leaving();
    void aParentThatGoesEndsIt_data();
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
    QTest::addColumn<QString>("steps"); // usages, and the places 1 to 3 that are emptied
    QTest::addColumn<QString>("result");
    QTest::newRow("nothing") << ""
                             << "00 00 00 00 --|--|--";
    QTest::newRow("one key") << "4"
                             << "00 04 00 00 A|--|--";
    QTest::newRow("order of picking") << "4 224 4"
                                      << "00 04 E0 04 A|L-Ctrl|A";
    QTest::newRow("a fourth is ignored") << "224 225 4 5"
                                         << "00 E0 E1 04 L-Ctrl|L-Shift|A";
    QTest::newRow("a gap stays") << "224 225 4 2"
                                 << "00 E0 00 04 L-Ctrl|--|A";
    QTest::newRow("the next key fills it") << "224 225 4 2 36"
                                           << "00 E0 24 04 L-Ctrl|7 &|A";
    QTest::newRow("all emptied, one twice") << "224 225 1 2 2 3"
                                            << "00 00 00 00 --|--|--";
}

void TestPickers::combinations()
{
    QFETCH(QString, steps);
    QFETCH(QString, result);
    for (const bool keysOnly : {false, true}) {
        const auto picker = makePicker(keysOnly);
        for (const QString &step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const int number = step.toInt();
            if (number <= 3) {
                QTest::mouseClick(slotOf(*picker, number), Qt::LeftButton);
            } else {
                click(*picker, numbered("Hid", number, 3));
            }
        }
        QStringList labels;
        for (int i = 1; i <= 3; ++i)
            labels.append(slotOf(*picker, i)->text());
        QCOMPARE(bytesOf(picker->entry()) + QLatin1Char(' ') + labels.join(QLatin1Char('|')), result);
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

void TestPickers::macros_data()
{
    QTest::addColumn<int>("repeat");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("result");
    QTest::newRow("recorded") << 1 << 1 << 3 << "01 00 03 00 Jump";
    QTest::newRow("in the store, but empty") << 1 << 2 << 0 << "01 01 00 00 未录制的宏";
    QTest::newRow("not in the store") << 5 << 3 << 49 << "05 02 31 00 未录制的宏";
    QTest::newRow("the low 8 bits of 300") << 300 << 1 << 3 << "2C 00 03 00 Jump";
    QTest::newRow("beyond the range of 10000") << 99999 << 1 << 3 << "10 00 03 00 Jump";
}

void TestPickers::macros()
{
    QFETCH(int, repeat);
    QFETCH(int, mode);
    QFETCH(int, slot);
    QFETCH(QString, result);
    const QTemporaryDir folder;
    ModuleMacroManager store(folder.path());
    Macro *macro = store.FindMacro(3);
    macro->name = QStringLiteral("Jump");
    store.AddEvent(macro, MacroType::Key, 44, true, QStringLiteral("Space"));
    store.AddEvent(macro, MacroType::Delay, 20, false, QStringLiteral("20"));

    for (const bool macroFirst : {true, false}) { // the way of playing may be set before and after
        DialogFNPicker picker;
        openTab(picker, 1);
        if (macroFirst)
            click(picker, numbered("Micro", slot));
        picker.findChild<QSpinBox *>(QStringLiteral("spinBoxM"))->setValue(repeat);
        click(picker, QStringLiteral("radioButtonM%1").arg(mode));
        if (!macroFirst)
            click(picker, numbered("Micro", slot));
        QVERIFY(picker.isMacro());
        QCOMPARE(bytesOf(picker.entry()) + QLatin1Char(' ') + slotOf(picker, 1)->text(), result);
        const auto text = [&picker](int of) {
            return picker.findChild<QAbstractButton *>(numbered("Micro", of))->text();
        };
        QCOMPARE(text(3), QStringLiteral("Jump"));
        QCOMPARE(text(0), QStringLiteral("宏1"));
    }
}

void TestPickers::anotherTabStartsOver()
{
    DialogFNPicker picker;
    click(picker, numbered("Hid", 4, 3));
    openTab(picker, 1);
    QVERIFY(picker.entry().isEmpty());
    QVERIFY(slotOf(picker, 2)->isHidden() && slotOf(picker, 3)->isHidden());
    click(picker, numbered("Micro", 7));
    openTab(picker, 0);
    QVERIFY(picker.entry().isEmpty() && !picker.isMacro());
    QCOMPARE(slotOf(picker, 1)->text(), QStringLiteral("--"));
    QVERIFY(!slotOf(picker, 2)->isHidden() && !slotOf(picker, 3)->isHidden());
    QVERIFY(!picker.findChild<QAbstractButton *>(numbered("Micro", 7))->isChecked());
}

void TestPickers::leaving_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << "pushButtonOK" << 0 << int(QDialog::Accepted);
    QTest::newRow("Cancel") << "pushButtonCancel" << 0 << int(QDialog::Rejected);
    QTest::newRow("Return") << QString() << int(Qt::Key_Return) << int(QDialog::Accepted);
    QTest::newRow("Escape") << QString() << int(Qt::Key_Escape) << int(QDialog::Rejected);
}

void TestPickers::leaving()
{
    QFETCH(QString, button);
    QFETCH(int, key);
    QFETCH(int, result);
    QWidget page;
    page.setGeometry(40, 30, 1124, 740);
    page.show();
    for (const int picks : {0, 1, 3}) {
        for (const bool keysOnly : {false, true}) {
            const auto picker = makePicker(keysOnly, &page);
            QCOMPARE(picker->geometry(), QRect(page.mapToGlobal(QPoint()), page.frameGeometry().size()));
            QTimer::singleShot(0, picker.get(), [&picker, picks, button, key] {
                for (int i = 0; i < picks; ++i)
                    click(*picker, numbered("Hid", 4 + i, 3));
                if (button.isEmpty()) {
                    QTest::keyClick(picker.get(), Qt::Key(key));
                } else {
                    click(*picker, button);
                }
            });
            QCOMPARE(picker->exec(), result);
            QCOMPARE(picker->entry().isEmpty(), picks == 0);
        }
    }
}

void TestPickers::aParentThatGoesEndsIt_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::newRow("hidden with its window") << false;
    QTest::newRow("destroyed with its window") << true;
}

void TestPickers::aParentThatGoesEndsIt()
{
    QFETCH(bool, isDestroyed);
    auto *window = new QWidget;
    const QPointer<QWidget> guard(window);
    auto *page = new QWidget(window);
    window->show();
    DialogVKPicker picker(page); // as callers do: on the stack, with a parent
    QTimer::singleShot(0, &picker, [window, isDestroyed] {
        if (isDestroyed) {
            delete window;
        } else {
            window->hide();
        }
    });
    QCOMPARE(picker.exec(), int(QDialog::Rejected));
    QCOMPARE(guard.isNull(), isDestroyed);
    QCOMPARE(picker.parent() == nullptr, isDestroyed);
    delete guard;
}

QTEST_MAIN(TestPickers)
#include "tst_pickers.moc"
