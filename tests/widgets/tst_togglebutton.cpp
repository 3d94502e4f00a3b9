#include "ToggleButton.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

/// The switch: what turns it, how it shows its state, and its focus ring.
class TestToggleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mouseTurnsIt_data();
    void mouseTurnsIt();
    void itShowsItsState();
    void theFocusRingLiesAroundIt();
};

void TestToggleButton::mouseTurnsIt_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("press"); // a null point for no press
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("clicks");
    const QPoint on(40, 12);
    const QPoint off(90, 12);
    QTest::newRow("click") << int(Qt::LeftButton) << on << on << true << 1;
    QTest::newRow("far end of the switch")
        << int(Qt::LeftButton) << QPoint(50, 12) << QPoint(2, 12) << true << 1;
    QTest::newRow("press that began elsewhere") << int(Qt::LeftButton) << QPoint() << on << true << 1;
    QTest::newRow("release outside") << int(Qt::LeftButton) << on << off << true << 0;
    QTest::newRow("right button") << int(Qt::RightButton) << on << on << true << 0;
    QTest::newRow("disabled") << int(Qt::LeftButton) << QPoint() << on << false << 0;
}

void TestToggleButton::mouseTurnsIt()
{
    QFETCH(int, button);
    QFETCH(QPoint, press);
    QFETCH(QPoint, release);
    QFETCH(bool, enabled);
    QFETCH(int, clicks);
    ToggleButton toggle;
    toggle.setEnabled(enabled);
    toggle.resize(52, 24);
    QSignalSpy clicked(&toggle, &QCheckBox::clicked);
    QSignalSpy toggled(&toggle, &QCheckBox::toggled);
    if (!press.isNull())
        QTest::mousePress(&toggle, Qt::MouseButton(button), {}, press);
    if (press != release && !press.isNull()) {
        QMouseEvent move(QEvent::MouseMove, release, toggle.mapToGlobal(release), Qt::NoButton,
                         Qt::MouseButton(button), {});
        QCoreApplication::sendEvent(&toggle, &move);
    }
    QTest::mouseRelease(&toggle, Qt::MouseButton(button), {}, release);
    QCOMPARE(clicked.size(), clicks);
    QCOMPARE(toggled.size(), clicks);
    QCOMPARE(toggle.isChecked(), clicks == 1);
}

void TestToggleButton::itShowsItsState()
{
    ToggleButton toggle;
    const auto colors = [&toggle](bool checked, bool enabled) {
        toggle.setChecked(checked);
        toggle.setEnabled(enabled);
        toggle.resize(52, 24);
        const QImage shown = toggle.grab().toImage();
        return QList<QColor>{shown.pixelColor(12, 12), shown.pixelColor(26, 12), shown.pixelColor(40, 12)};
    };
    const QColor offKnob(0xE0, 0xE0, 0xE0);
    QCOMPARE(colors(false, true), QList<QColor>({offKnob, Qt::gray, Qt::gray}));
    QCOMPARE(colors(true, true), QList<QColor>({look::Accent, look::Accent, Qt::white}));
    QCOMPARE(colors(true, false), QList<QColor>({Qt::lightGray, Qt::lightGray, Qt::white}));
}

void TestToggleButton::theFocusRingLiesAroundIt()
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

QTEST_MAIN(TestToggleButton)
#include "tst_togglebutton.moc"
