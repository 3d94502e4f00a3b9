#include "CustomTabBar.h"
#include "NewTabWidget.h"

#include <climits>
#include <QLabel>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>

/// The tab bar: which tab is shown how, and the bar that glides to the current one.
class TestTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { tabs.reset(); }
    void theBarGlidesToTheClickedTab();
    void oddIndexesAndPlacesAreSafe();
    void colorsTellCurrentAndHovered();

private:
    bool gliding() const;
    QColor cardColor(int index) const;

    std::unique_ptr<NewTabWidget> tabs;
    CustomTabBar *bar = nullptr;
};

void TestTabs::init()
{
    tabs = std::make_unique<NewTabWidget>();
    for (const char *title : {"first", "a much longer second", "third"})
        tabs->addTab(new QLabel, QString::fromLatin1(title));
    bar = tabs->findChild<CustomTabBar *>();
    tabs->resize(600, 200);
    tabs->show();
    QVERIFY(QTest::qWaitForWindowActive(tabs.get()));
    QTRY_VERIFY(!gliding());
}

bool TestTabs::gliding() const
{
    const auto animations = bar->findChildren<QPropertyAnimation *>();
    return std::any_of(animations.begin(), animations.end(),
                       [](const auto *one) { return one->state() == QAbstractAnimation::Running; });
}

QColor TestTabs::cardColor(int index) const
{
    return bar->grab().toImage().pixelColor(bar->tabRect(index).left() + 12, 6);
}

void TestTabs::theBarGlidesToTheClickedTab()
{
    QSignalSpy changes(bar, &QTabBar::currentChanged);
    const QRect target = bar->tabRect(1);
    QTest::mouseClick(bar, Qt::LeftButton, {}, target.center());
    QVERIFY(gliding());
    QVERIFY(bar->currentX() < target.x());
    QTRY_COMPARE(bar->currentX(), target.x());
    QTRY_COMPARE(bar->currentWidth(), target.width());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(tabs->currentIndex(), 1);
    QTRY_VERIFY(!gliding());
    QTest::mouseClick(bar, Qt::LeftButton, {}, target.center()); // current already
    QVERIFY(!gliding());
}

void TestTabs::oddIndexesAndPlacesAreSafe()
{
    for (int index : {-1, 3, INT_MIN, INT_MAX})
        bar->onCurrentChanged(index);
    QVERIFY(!gliding());
    for (int place : {-1, INT_MIN, INT_MAX}) {
        bar->setProperty("currentX", place);
        bar->setProperty("currentWidth", place);
        QVERIFY(!bar->grab().isNull());
    }
    while (tabs->count())
        tabs->removeTab(0);
    QVERIFY(!tabs->grab().isNull());
}

void TestTabs::colorsTellCurrentAndHovered()
{
    QTest::mouseMove(bar, bar->tabRect(2).center());
    QCOMPARE(cardColor(0), QColor(0xFF, 0xFF, 0xFF));
    QCOMPARE(cardColor(1), QColor(0xF0, 0xF0, 0xF0));
    QCOMPARE(cardColor(2), QColor(0xDC, 0xDC, 0xDC));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(bar, &leave);
    QCOMPARE(cardColor(2), QColor(0xF0, 0xF0, 0xF0));
    // the bar under the current text: inset 20 at either side, 6 above the bottom
    const QRect tab = bar->tabRect(0);
    const QImage shown = bar->grab().toImage();
    QCOMPARE(shown.pixelColor(tab.center().x(), tab.bottom() - 4), look::Accent);
    QCOMPARE(shown.pixelColor(tab.left() + 15, tab.bottom() - 4), QColor(0xFF, 0xFF, 0xFF));
}

QTEST_MAIN(TestTabs)
#include "tst_tabs.moc"
