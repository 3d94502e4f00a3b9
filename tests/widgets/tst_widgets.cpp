#include "CustomTabBar.h"
#include "CustomTooltip.h"
#include "CustumSlider.h"
#include "ModuleGeneralMasker.h"
#include "ModuleScrollValue.h"
#include "NewTabWidget.h"
#include "SuperLabel.h"
#include "ToggleButton.h"

#include <climits>
#include <QAccessible>
#include <QElapsedTimer>
#include <QEnterEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

void pointerEvent(QWidget *widget, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        QEnterEvent event({5, 5}, {5, 5}, widget->mapToGlobal(QPointF(5, 5)));
        QCoreApplication::sendEvent(widget, &event);
    } else {
        QEvent event(type);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void turn(QWidget *target, int delta)
{
    QWheelEvent event({5, 5}, target->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

QStringList letters(const char *text)
{
    return QString::fromLatin1(text).split(QString(), Qt::SkipEmptyParts);
}

QString shown(const ModuleScrollValue &wheel)
{
    QString texts;
    for (const char *name : {"labelValue1", "labelTitleL2", "labelTitle1", "labelTitleL1", "labelValue5"})
        texts += wheel.findChild<QLabel *>(QLatin1String(name))->text();
    return texts;
}

} // namespace

/// The program's own controls in the hands of a user, and with values that no user would give.
class TestWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderFollowsThePointer();
    void sliderTakesAnyRange();
    void maskEndsWithItsChild_data();
    void maskEndsWithItsChild();
    void wheelTurns_data();
    void wheelTurns();
    void wheelTakesAnyIndex();
    void labelIsAButton();
    void bubbleIsPressedOnce();
    void tabsGlide();
    void switchTakesWholeClicks();
    void focusRingGoesWithItsControl();
};

void TestWidgets::sliderFollowsThePointer()
{
    CustumSlider slider(Qt::Horizontal);
    slider.resize(100, 28);
    slider.setRange(0, 1000);
    QSignalSpy values(&slider, &QSlider::valueChanged);
    QTest::mouseMove(&slider, {70, 14});
    QTest::mousePress(&slider, Qt::RightButton, {}, {70, 14});
    QCOMPARE(values.size(), 0);
    QTest::mousePress(&slider, Qt::LeftButton, {}, {10, 14});
    for (const int x : {20, 20, 150})
        QTest::mouseMove(&slider, {x, 14});
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {150, 14});
    QTest::mouseMove(&slider, {30, 14});
    QCOMPARE(values, QList<QVariantList>({{100}, {200}, {1000}}));

    QTest::mousePress(&slider, Qt::LeftButton, {}, {10, 14});
    slider.setEnabled(false); // ends the drag
    slider.setEnabled(true);
    QTest::mouseMove(&slider, {90, 14});
    QCOMPARE(slider.value(), 100);
}

void TestWidgets::sliderTakesAnyRange()
{
    const auto pressed = [](Qt::Orientation orientation, QSize size, std::pair<int, int> range, QPoint at) {
        CustumSlider slider(orientation);
        slider.resize(size);
        slider.setRange(range.first, range.second);
        QTest::mousePress(&slider, Qt::LeftButton, {}, at);
        return slider.value();
    };
    QCOMPARE(pressed(Qt::Horizontal, {300, 28}, {5, 2000}, {100, 14}), 670); // cut down
    QCOMPARE(pressed(Qt::Horizontal, {300, 28}, {5, 2000}, {-40, 14}), 5);
    QCOMPARE(pressed(Qt::Horizontal, {200, 28}, {INT_MIN, INT_MAX}, {200, 14}), INT_MAX);
    QCOMPARE(pressed(Qt::Horizontal, {200, 28}, {7, 7}, {100, 14}), 7);
    QCOMPARE(pressed(Qt::Vertical, {40, 128}, {0, 4000}, {20, 96}), 1000); // from the bottom
    QCOMPARE(pressed(Qt::Vertical, {40, 0}, {0, 4000}, {20, 0}), 0);
}

void TestWidgets::maskEndsWithItsChild_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("hide") << int(QDialog::Rejected);
    QTest::newRow("accept") << int(QDialog::Accepted);
    QTest::newRow("escape") << int(QDialog::Rejected);
    QTest::newRow("delete") << int(QDialog::Rejected);
    QTest::newRow("none") << int(QDialog::Rejected);
}

void TestWidgets::maskEndsWithItsChild()
{
    const QByteArray way = QTest::currentDataTag();
    QWidget page;
    page.show();
    QPointer<QFrame> child(way == "none" ? nullptr : new QFrame);
    {
        ModuleGeneralMasker mask(child, &page);
        QTimer::singleShot(20, &mask, [&mask, child, way] {
            if (way == "escape") {
                QTest::keyClick(&mask, Qt::Key_Escape);
            } else if (way == "delete") {
                delete child.data();
            } else if (child) {
                mask.setResult(way == "accept" ? QDialog::Accepted : QDialog::Rejected);
                child->hide();
            }
        });
        QTEST(mask.exec(), "result");
    }
    QCOMPARE(child.isNull(), way == "delete" || way == "none");
    if (child)
        QVERIFY(!child->parent() && child->isHidden()); // handed back
    delete child.data();
}

void TestWidgets::wheelTurns_data()
{
    QTest::addColumn<QString>("target"); // empty for the frame itself
    QTest::addColumn<int>("input");      // of the mouse wheel, or a key; 0 for a click
    QTest::addColumn<int>("index");      // from 3 of 0 to 6
    QTest::newRow("wheel away from the user") << QString() << 120 << 2;
    QTest::newRow("wheel over a text") << QStringLiteral("labelValue5") << -120 << 4;
    QTest::newRow("click two above") << QStringLiteral("labelValue1") << 0 << 1;
    QTest::newRow("click on the centre") << QStringLiteral("labelTitle1") << 0 << 3;
    QTest::newRow("down") << QString() << int(Qt::Key_Down) << 4;
    QTest::newRow("end") << QString() << int(Qt::Key_End) << 6;
}

void TestWidgets::wheelTurns()
{
    QFETCH(QString, target);
    QFETCH(int, input);
    QFETCH(int, index);
    ModuleScrollValue wheel;
    wheel.setValues(letters("ABCDEFG"));
    wheel.setIndex(3);
    QSignalSpy changes(&wheel, &ModuleScrollValue::onIndexChanged);
    QWidget *widget = target.isEmpty() ? &wheel : wheel.findChild<QWidget *>(target);
    if (input == 0)
        QTest::mouseClick(widget, Qt::LeftButton);
    else if (input >= Qt::Key_Escape)
        QTest::keyClick(widget, Qt::Key(input));
    else
        turn(widget, input);
    QCOMPARE(wheel.currentIndex(), index);
    QCOMPARE(changes.isEmpty(), index == 3);
}

void TestWidgets::wheelTakesAnyIndex()
{
    ModuleScrollValue wheel;
    QSignalSpy changes(&wheel, &ModuleScrollValue::onIndexChanged);
    wheel.setValues(letters("AB")); // too few for five places: they alternate
    QCOMPARE(shown(wheel), QStringLiteral("ABABA"));
    wheel.setValues(letters("ABCDEFGHIJKLMN"));
    QCOMPARE(changes, QList<QVariantList>({{0}, {2}})); // a new list tells its centre
    for (const auto &[index, centre] : {std::pair{13, 13}, {30, 2}, {-1, 13}, {INT_MIN, 12}, {INT_MAX, 1}}) {
        wheel.setIndex(index);
        QCOMPARE(wheel.currentIndex(), centre);
        QCOMPARE(shown(wheel).mid(2, 1), wheel.currentText());
    }
    wheel.setIndex(0);
    QCOMPARE(changes.size(), 2); // a value set from the keyboard isn't echoed
    turn(&wheel, 120);
    QCOMPARE(wheel.currentIndex(), 13);
    wheel.setValues({});
    wheel.setIndex(3);
    wheel.stepBy(LLONG_MIN);
    turn(&wheel, 120);
    QTest::keyClick(&wheel, Qt::Key_End);
    QCOMPARE(changes.size(), 3);
    QCOMPARE(wheel.currentIndex(), -1);
    QCOMPARE(shown(wheel), QString());
}

void TestWidgets::labelIsAButton()
{
    QWidget page;
    QWidget otherPage;
    SuperLabel first(&page);
    SuperLabel foreign(&otherPage);
    auto second = std::make_unique<SuperLabel>(&page);
    foreign.setSelected(true);
    first.setSelected(true);
    second->setSelected(true);
    QVERIFY(!first.isSelected() && second->isSelected() && foreign.isSelected());
    second.reset(); // is forgotten
    first.setSelected(true);
    QVERIFY(first.isSelected());

    first.setToolTip(QStringLiteral("首页"));
    QTRY_VERIFY(first.findChild<CustomTooltip *>());
    first.setToolTip(QStringLiteral("Home")); // as a change of language does
    QCOMPARE(first.findChild<CustomTooltip *>()->text(), QStringLiteral("Home"));
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&first);
    QCOMPARE(reader->role(), QAccessible::Button);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Home"));
}

void TestWidgets::bubbleIsPressedOnce()
{
    CustomTooltip bubble;
    bubble.setText(QStringLiteral("禁用按键"));
    QSignalSpy presses(&bubble, &CustomTooltip::onClicked);
    for (const Qt::Key key : {Qt::Key_unknown, Qt::Key_Enter, Qt::Key_Escape}) {
        bubble.show();
        if (key == Qt::Key_unknown)
            QTest::mouseClick(&bubble, Qt::LeftButton);
        else
            QTest::keyClick(&bubble, key);
        QVERIFY(!bubble.isVisible());
    }
    QCOMPARE(presses.size(), 2); // Escape only hides it

    bubble.show();
    pointerEvent(&bubble, QEvent::Leave);
    pointerEvent(&bubble, QEvent::Enter); // the pointer comes back: it stays
    QVERIFY(!QTest::qWaitFor([&bubble] { return !bubble.isVisible(); }, 1300));
    QElapsedTimer clock;
    clock.start();
    pointerEvent(&bubble, QEvent::Leave);
    QTRY_VERIFY(!bubble.isVisible());
    QVERIFY(clock.elapsed() >= 900);
}

void TestWidgets::tabsGlide()
{
    NewTabWidget tabs;
    for (const char *title : {"first", "a much longer second", "third"})
        tabs.addTab(new QLabel, QString::fromLatin1(title));
    auto *bar = tabs.findChild<CustomTabBar *>();
    tabs.resize(600, 200);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowActive(&tabs));
    const QRect target = bar->tabRect(1);
    QTest::mouseClick(bar, Qt::LeftButton, {}, target.center());
    QVERIFY(bar->currentX() < target.x());
    QTRY_COMPARE(bar->currentX(), target.x());
    QTRY_COMPARE(bar->currentWidth(), target.width());
    QCOMPARE(tabs.currentIndex(), 1);

    for (const int odd : {-1, INT_MIN, INT_MAX}) {
        bar->onCurrentChanged(odd);
        bar->setProperty("currentX", odd);
        bar->setProperty("currentWidth", odd);
        QVERIFY(!bar->grab().isNull());
    }
    while (tabs.count())
        tabs.removeTab(0);
    QVERIFY(!tabs.grab().isNull());
}

void TestWidgets::switchTakesWholeClicks()
{
    const auto turned = [](Qt::MouseButton button, QPoint press, QPoint release, bool enabled) {
        ToggleButton toggle;
        toggle.setEnabled(enabled);
        toggle.resize(52, 24);
        if (!press.isNull()) {
            QTest::mousePress(&toggle, button, {}, press);
            QMouseEvent move(QEvent::MouseMove, release, toggle.mapToGlobal(release), Qt::NoButton, button,
                             {});
            QCoreApplication::sendEvent(&toggle, &move);
        }
        QTest::mouseRelease(&toggle, button, {}, release);
        return toggle.isChecked();
    };
    const QPoint on(40, 12);
    QVERIFY(turned(Qt::LeftButton, on, on, true));
    QVERIFY(turned(Qt::LeftButton, on, {2, 12}, true));
    QVERIFY2(turned(Qt::LeftButton, {}, on, true), "a press that began elsewhere");
    QVERIFY(!turned(Qt::LeftButton, on, {90, 12}, true));
    QVERIFY(!turned(Qt::RightButton, on, on, true));
    QVERIFY(!turned(Qt::LeftButton, {}, on, false));
}

void TestWidgets::focusRingGoesWithItsControl()
{
    QWidget page;
    page.setStyleSheet(QStringLiteral("background: white;"));
    QVBoxLayout layout(&page);
    auto *first = new ToggleButton;
    auto *second = new ToggleButton;
    layout.addWidget(first);
    layout.addWidget(second);
    page.show();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    const auto above = [&page](const QWidget *toggle) {
        return page.grab().toImage().pixelColor(toggle->geometry().center().x(), toggle->y() - 2);
    };
    first->setFocus();
    QVERIFY(above(first) != above(second));
    QTest::keyClick(first, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QCOMPARE(above(first), QColor(Qt::white));
    QVERIFY(above(second) != QColor(Qt::white));
    delete second; // takes its ring along
    QTest::keyClick(&page, Qt::Key_Tab);
    QVERIFY(above(first) != QColor(Qt::white));
}

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
