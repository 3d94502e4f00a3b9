#include "CustomTooltip.h"
#include "SuperLabel.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QEnterEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// The picture label with its tip, and the bubble by itself.
class TestSuperLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTipShowsAtTheRight();
    void theFormsToolTipBecomesTheTip();
    void oneIsSelectedUnderEachParent();
    void aDeletedSelectionIsForgotten();
    void stateShowsPictureAndStyle();
    void itIsAButtonForKeysAndScreenReaders();
    void bubbleGoesAfterASecond();
    void bubbleIsPressedOnce();
};

static void pointerEvent(QWidget *widget, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        QEnterEvent event({5, 5}, {5, 5}, widget->mapToGlobal(QPointF(5, 5)));
        QCoreApplication::sendEvent(widget, &event);
    } else {
        QEvent event(type);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void TestSuperLabel::theTipShowsAtTheRight()
{
    SuperLabel label;
    label.setGeometry(100, 100, 60, 80);
    label.setTip(QStringLiteral("键盘设置"));
    label.show();
    auto *tip = label.findChild<CustomTooltip *>();
    pointerEvent(&label, QEvent::Enter);
    pointerEvent(&label, QEvent::Leave); // too brief a visit
    QVERIFY(!QTest::qWaitFor([tip] { return tip->isVisible(); }, 300));
    pointerEvent(&label, QEvent::Enter);
    QTRY_VERIFY(tip->isVisible());
    QCOMPARE(tip->pos(), label.mapToGlobal(QPoint(65, (80 - tip->height()) / 2)));
    QCOMPARE(label.toolTipDuration(), 2'000'000);
    pointerEvent(&label, QEvent::Leave);
    QVERIFY(!tip->isVisible());
}

void TestSuperLabel::theFormsToolTipBecomesTheTip()
{
    SuperLabel label;
    label.setText(QStringLiteral("label"));
    label.setToolTip(QStringLiteral("首页"));
    QTRY_VERIFY(label.findChild<CustomTooltip *>());
    auto *tip = label.findChild<CustomTooltip *>();
    QCOMPARE(tip->text(), QStringLiteral("首页"));
    label.setToolTip(QStringLiteral("Home")); // as a change of language does
    QCOMPARE(tip->text(), QStringLiteral("Home"));
    label.setTip(QStringLiteral("返回"));
    QCOMPARE(tip->text(), QStringLiteral("返回"));
    QVERIFY(label.text().isEmpty() && label.toolTip().isEmpty());
}

void TestSuperLabel::oneIsSelectedUnderEachParent()
{
    QWidget page;
    QWidget otherPage;
    SuperLabel first(&page);
    SuperLabel second(&page);
    SuperLabel foreign(&otherPage);
    foreign.setSelected(true);
    first.setSelected(true);
    first.setSelected(true);
    QVERIFY(first.isSelected());
    second.setSelected(true);
    QVERIFY(!first.isSelected() && second.isSelected() && foreign.isSelected());
    second.setSelected(false);
    first.setSelected(true);
    QVERIFY(first.isSelected() && !second.isSelected());
}

void TestSuperLabel::aDeletedSelectionIsForgotten()
{
    QWidget page;
    SuperLabel staying(&page);
    std::make_unique<SuperLabel>(&page)->setSelected(true);
    staying.setSelected(true);
    QVERIFY(staying.isSelected());
}

void TestSuperLabel::stateShowsPictureAndStyle()
{
    const QTemporaryDir folder;
    const auto picture = [&folder](const char *name, QRgb color) {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(color);
        const QString path = folder.filePath(QString::fromLatin1(name));
        return image.save(path) ? path : QString();
    };
    SuperLabel label;
    label.setPictures(picture("on.png", 0xFF112233), picture("off.png", 0xFFAABBCC));
    label.setStyles(QStringLiteral("QLabel { color: red; }"), QStringLiteral("QLabel { color: blue; }"));
    const auto color = [&label] { return label.pixmap().toImage().pixel(1, 1); };
    QCOMPARE(color(), 0xFFAABBCC);
    label.setSelected(true);
    QCOMPARE(color(), 0xFF112233);
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel { color: red; }"));
    label.setTip(QStringLiteral("首页"));
    QCOMPARE(color(), 0xFF112233);
    label.setSelected(false);
    QCOMPARE(color(), 0xFFAABBCC);
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel { color: blue; }"));
}

void TestSuperLabel::itIsAButtonForKeysAndScreenReaders()
{
    class Page : public QWidget
    {
    public:
        int releases = 0;

    protected:
        void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
    };
    Page page;
    SuperLabel label(&page);
    label.setTip(QStringLiteral("首页"));
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A})
        QTest::keyClick(&label, key);
    QCOMPARE(page.releases, 2);
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(reader->role(), QAccessible::Button);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("首页"));
    reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(page.releases, 3);
}

void TestSuperLabel::bubbleGoesAfterASecond()
{
    CustomTooltip bubble;
    bubble.setText(QStringLiteral("禁用按键"));
    bubble.show();
    pointerEvent(&bubble, QEvent::Leave);
    pointerEvent(&bubble, QEvent::Enter); // the pointer comes back: it stays
    QVERIFY(!QTest::qWaitFor([&bubble] { return !bubble.isVisible(); }, 1300));
    QElapsedTimer clock;
    clock.start();
    pointerEvent(&bubble, QEvent::Leave);
    QTRY_VERIFY(!bubble.isVisible());
    QVERIFY(clock.elapsed() >= 900);
    bubble.show();
    QFocusEvent lost(QEvent::FocusOut);
    QCoreApplication::sendEvent(&bubble, &lost);
    QVERIFY(!bubble.isVisible());
}

void TestSuperLabel::bubbleIsPressedOnce()
{
    CustomTooltip bubble;
    bubble.setText(QStringLiteral("禁用按键"));
    QSignalSpy presses(&bubble, &CustomTooltip::onClicked);
    for (Qt::Key key : {Qt::Key_unknown, Qt::Key_Enter, Qt::Key_Escape}) {
        bubble.show();
        if (key == Qt::Key_unknown)
            QTest::mouseClick(&bubble, Qt::LeftButton);
        else
            QTest::keyClick(&bubble, key);
        QVERIFY(!bubble.isVisible());
    }
    QCOMPARE(presses.size(), 2); // Escape only hides it
}

QTEST_MAIN(TestSuperLabel)
#include "tst_superlabel.moc"
