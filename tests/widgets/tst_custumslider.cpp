#include "CustumSlider.h"

#include <climits>
#include <QSignalSpy>
#include <QTest>

/// The slider follows the pointer, and every value that the pointer can point at is inside the range.
class TestCustumSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressJumpsToThePointer_data();
    void pressJumpsToThePointer();
    void dragFollowsUntilTheRelease();
    void disablingEndsADrag();
    void handleStandsAtTheValue();
};

void TestCustumSlider::pressJumpsToThePointer_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("range");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<int>("value");
    const auto row = [](const char *name, Qt::Orientation orientation, QSize size, QPoint range,
                        QPoint pointer, int value) {
        QTest::newRow(name) << orientation << size << range << pointer << value;
    };
    row("a third along, cut down", Qt::Horizontal, {300, 28}, {5, 2000}, {100, 14}, 670);
    row("left end", Qt::Horizontal, {300, 28}, {5, 2000}, {0, 14}, 5);
    row("left of the slider", Qt::Horizontal, {300, 28}, {5, 2000}, {-40, 14}, 5);
    row("right of the slider", Qt::Horizontal, {300, 28}, {5, 2000}, {400, 14}, 2000);
    row("negative range", Qt::Horizontal, {200, 28}, {-100, 100}, {50, 14}, -50);
    row("every number there is", Qt::Horizontal, {200, 28}, {INT_MIN, INT_MAX}, {200, 14}, INT_MAX);
    row("one value only", Qt::Horizontal, {200, 28}, {7, 7}, {100, 14}, 7);
    row("travel counts from the bottom", Qt::Vertical, {40, 128}, {0, 4000}, {20, 96}, 1000);
    row("top of the travel", Qt::Vertical, {40, 128}, {0, 4000}, {20, 0}, 4000);
    row("no height", Qt::Vertical, {40, 0}, {0, 4000}, {20, 0}, 0);
}

void TestCustumSlider::pressJumpsToThePointer()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QSize, size);
    QFETCH(QPoint, range);
    QFETCH(QPoint, pointer);
    CustumSlider slider(orientation);
    slider.resize(size);
    slider.setRange(range.x(), range.y());
    QTest::mousePress(&slider, Qt::RightButton, {}, pointer);
    QCOMPARE(slider.value(), qMax(range.x(), qMin(0, range.y())));
    QTest::mousePress(&slider, Qt::LeftButton, {}, pointer);
    QTEST(slider.value(), "value");
}

void TestCustumSlider::dragFollowsUntilTheRelease()
{
    CustumSlider slider(Qt::Horizontal);
    slider.resize(100, 28);
    slider.setRange(0, 1000);
    QSignalSpy values(&slider, &QSlider::valueChanged);
    QSignalSpy releases(&slider, &QSlider::sliderReleased);
    QTest::mouseMove(&slider, {70, 14});
    QCOMPARE(values.size(), 0);
    QTest::mousePress(&slider, Qt::LeftButton, {}, {10, 14});
    for (int x : {20, 20, 150})
        QTest::mouseMove(&slider, {x, 14});
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, {150, 14});
    QTest::mouseMove(&slider, {30, 14});
    QCOMPARE(values, QList<QVariantList>({{100}, {200}, {1000}}));
    QCOMPARE(releases.size(), 1);
}

void TestCustumSlider::disablingEndsADrag()
{
    CustumSlider slider(Qt::Horizontal);
    slider.resize(100, 28);
    QTest::mousePress(&slider, Qt::LeftButton, {}, {10, 14});
    slider.setEnabled(false);
    QVERIFY(!slider.isSliderDown());
    slider.setEnabled(true);
    const int value = slider.value();
    QTest::mouseMove(&slider, {90, 14});
    QCOMPARE(slider.value(), value);
}

void TestCustumSlider::handleStandsAtTheValue()
{
    CustumSlider travel;
    travel.resize(40, 140);
    travel.setRange(0, 4000);
    travel.setFillColor(look::PressSide);
    travel.setValue(1000);
    const QImage shown = travel.grab().toImage();
    QCOMPARE(shown.pixelColor(20, 10), look::PressSide); // filled from the top
    QCOMPARE(shown.pixelColor(20, 95), look::OnAccent);  // 20 + 3/4 of the way between the round ends
    QCOMPARE(shown.pixelColor(20, 130), look::Groove);
}

QTEST_MAIN(TestCustumSlider)
#include "tst_custumslider.moc"
