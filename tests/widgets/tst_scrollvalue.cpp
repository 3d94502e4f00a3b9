#include "ModuleScrollValue.h"

#include <climits>
#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

/// The wheel of five texts: what it shows, what turns it, and that a value set from the keyboard isn't
/// echoed.
class TestScrollValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewListSignalsItsCentre();
    void setIndexIsSilentAndWraps_data();
    void setIndexIsSilentAndWraps();
    void inputTurnsIt_data();
    void inputTurnsIt();
    void anEmptyListIsSafe();
    void screenReadersHearTheValue();
};

static QStringList shown(const ModuleScrollValue &wheel)
{
    QStringList texts;
    for (const char *name : {"labelValue1", "labelTitleL2", "labelTitle1", "labelTitleL1", "labelValue5"})
        texts += wheel.findChild<QLabel *>(QLatin1String(name))->text();
    return texts;
}

static QStringList letters(const char *text)
{
    return QString::fromLatin1(text).split(QString(), Qt::SkipEmptyParts);
}

static void turn(QWidget *target, int delta)
{
    QWheelEvent event({5, 5}, target->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

void TestScrollValue::aNewListSignalsItsCentre()
{
    ModuleScrollValue wheel;
    QSignalSpy changes(&wheel, &ModuleScrollValue::onIndexChanged);
    wheel.setValues(letters("ABCDEFG"));
    QCOMPARE(shown(wheel), letters("ABCDE"));
    wheel.setValues(letters("AB")); // too few for five slots: they alternate
    QCOMPARE(shown(wheel), letters("ABABA"));
    QCOMPARE(changes, QList<QVariantList>({{2}, {0}}));
}

void TestScrollValue::setIndexIsSilentAndWraps_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("centre");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 13 << 13;
    QTest::newRow("30 minutes as an index of 14") << 30 << 2;
    QTest::newRow("below zero") << -1 << 13;
    QTest::newRow("smallest number") << INT_MIN << 12;
    QTest::newRow("largest number") << INT_MAX << 1;
}

void TestScrollValue::setIndexIsSilentAndWraps()
{
    QFETCH(int, index);
    ModuleScrollValue wheel;
    wheel.setValues(letters("ABCDEFGHIJKLMN"));
    QSignalSpy changes(&wheel, &ModuleScrollValue::onIndexChanged);
    wheel.setIndex(index);
    QTEST(wheel.currentIndex(), "centre");
    QCOMPARE(shown(wheel).at(2), wheel.currentText());
    QCOMPARE(changes.size(), 0);
}

void TestScrollValue::inputTurnsIt_data()
{
    QTest::addColumn<QString>("target"); // empty for the frame itself
    QTest::addColumn<int>("delta");      // of the mouse wheel; 0 for a click or a key
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("index");
    const auto row = [](const char *name, const char *target, int delta, int key, int start, int index) {
        QTest::newRow(name) << QString::fromLatin1(target) << delta << key << start << index;
    };
    row("wheel away from the user", "", 120, 0, 3, 2);
    row("wheel towards the user", "", -120, 0, 3, 4);
    row("wheel over a text", "labelValue5", -120, 0, 3, 4);
    row("wheel past the first", "", 120, 0, 0, 6);
    row("click two above", "labelValue1", 0, 0, 3, 1);
    row("click one above", "labelTitleL2", 0, 0, 3, 2);
    row("click on the centre", "labelTitle1", 0, 0, 3, 3);
    row("click one below", "labelTitleL1", 0, 0, 3, 4);
    row("click two below, past the last", "labelValue5", 0, 0, 5, 0);
    row("up", "", 0, Qt::Key_Up, 3, 2);
    row("down", "", 0, Qt::Key_Down, 3, 4);
    row("home", "", 0, Qt::Key_Home, 3, 0);
    row("home at home", "", 0, Qt::Key_Home, 0, 0);
    row("end", "", 0, Qt::Key_End, 3, 6);
}

void TestScrollValue::inputTurnsIt()
{
    QFETCH(QString, target);
    QFETCH(int, delta);
    QFETCH(int, key);
    QFETCH(int, start);
    QFETCH(int, index);
    ModuleScrollValue wheel;
    wheel.setValues(letters("ABCDEFG"));
    wheel.setIndex(start);
    QSignalSpy changes(&wheel, &ModuleScrollValue::onIndexChanged);
    QWidget *widget = target.isEmpty() ? &wheel : wheel.findChild<QWidget *>(target);
    if (delta)
        turn(widget, delta);
    else if (key)
        QTest::keyClick(widget, Qt::Key(key));
    else
        QTest::mouseClick(widget, Qt::LeftButton);
    QCOMPARE(wheel.currentIndex(), index);
    QCOMPARE(changes, start == index ? QList<QVariantList>() : QList<QVariantList>{{index}});
}

void TestScrollValue::anEmptyListIsSafe()
{
    ModuleScrollValue wheel;
    wheel.setValues(letters("ABC"));
    QSignalSpy changes(&wheel, &ModuleScrollValue::onIndexChanged);
    wheel.setValues({});
    wheel.setIndex(3);
    wheel.stepBy(LLONG_MIN);
    turn(&wheel, 120);
    QTest::keyClick(&wheel, Qt::Key_End);
    QTest::mouseClick(wheel.findChild<QLabel *>(QStringLiteral("labelValue1")), Qt::LeftButton);
    QCOMPARE(changes.size(), 0);
    QCOMPARE(wheel.currentIndex(), -1);
    QCOMPARE(shown(wheel).join(QString()), QString());
}

void TestScrollValue::screenReadersHearTheValue()
{
    ModuleScrollValue wheel;
    wheel.setValues(letters("ABC"));
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&wheel);
    QVERIFY(reader && !reader->text(QAccessible::Name).isEmpty());
    QCOMPARE(reader->role(), QAccessible::SpinBox);
    reader->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(reader->text(QAccessible::Value), QStringLiteral("A"));
    wheel.setAccessibleName(QStringLiteral("键盘回报率"));
    QEvent translated(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&wheel, &translated);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("键盘回报率"));
}

QTEST_MAIN(TestScrollValue)
#include "tst_scrollvalue.moc"
