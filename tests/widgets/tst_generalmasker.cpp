#include "ModuleGeneralMasker.h"

#include <QFrame>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/// The modal mask: where it lies, how it ends, and that the widget it showed always comes back.
class TestGeneralMasker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itEndsWithTheChild_data();
    void itEndsWithTheChild();
    void theChildOutlivesAnUnshownMask();
    void itCoversTheFrame_data();
    void itCoversTheFrame();
};

void TestGeneralMasker::itEndsWithTheChild_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("result");
    QTest::newRow("hidden") << QStringLiteral("hide") << int(QDialog::Rejected);
    QTest::newRow("accepted, then hidden") << QStringLiteral("accept") << int(QDialog::Accepted);
    QTest::newRow("escape") << QStringLiteral("escape") << int(QDialog::Rejected);
    QTest::newRow("child deleted") << QStringLiteral("delete") << int(QDialog::Rejected);
    QTest::newRow("no child") << QStringLiteral("none") << int(QDialog::Rejected);
}

void TestGeneralMasker::itEndsWithTheChild()
{
    QFETCH(QString, way);
    QFETCH(int, result);
    QWidget page;
    page.resize(400, 300);
    page.show();
    QPointer<QFrame> child(way == QStringLiteral("none") ? nullptr : new QFrame);
    {
        ModuleGeneralMasker mask(child, &page);
        QSignalSpy accepted(&mask, &QDialog::accepted);
        QSignalSpy rejected(&mask, &QDialog::rejected);
        QTimer::singleShot(20, &mask, [&mask, child, way] {
            if (way == QStringLiteral("escape"))
                QTest::keyClick(&mask, Qt::Key_Escape);
            else if (way == QStringLiteral("delete"))
                delete child.data();
            else if (child) {
                mask.setResult(way == QStringLiteral("accept") ? QDialog::Accepted : QDialog::Rejected);
                child->hide();
            }
        });
        QCOMPARE(mask.exec(), result);
        QCOMPARE(accepted.size(), result == QDialog::Accepted ? 1 : 0);
        QCOMPARE(rejected.size(), result == QDialog::Accepted ? 0 : 1);
    }
    const bool stays = way != QStringLiteral("delete") && way != QStringLiteral("none");
    QCOMPARE(!child.isNull(), stays);
    if (stays)
        QVERIFY(!child->parent() && child->isHidden());
    delete child.data();
}

void TestGeneralMasker::theChildOutlivesAnUnshownMask()
{
    QFrame child;
    {
        const ModuleGeneralMasker mask(&child);
        QCOMPARE(child.window(), &mask);
    }
    QVERIFY(!child.parent());
}

void TestGeneralMasker::itCoversTheFrame_data()
{
    QTest::addColumn<bool>("framed");
    QTest::newRow("part of a window, one pixel inside") << true;
    QTest::newRow("primary screen") << false;
}

void TestGeneralMasker::itCoversTheFrame()
{
    QFETCH(bool, framed);
    QWidget window;
    window.setGeometry(50, 60, 500, 400);
    QWidget page(&window);
    page.setGeometry(100, 80, 300, 200);
    window.show();
    QFrame child;
    child.setFixedSize(100, 50);
    ModuleGeneralMasker mask(&child, framed ? &page : nullptr);
    mask.show();
    QVERIFY(QTest::qWaitForWindowExposed(&mask));
    const QRect page1(page.mapToGlobal(QPoint(1, 1)), QSize(298, 198));
    QCOMPARE(mask.geometry(), framed ? page1 : QGuiApplication::primaryScreen()->geometry());
    const QPoint offset = child.geometry().center() - mask.rect().center();
    QVERIFY(offset.manhattanLength() <= 2);
    QVERIFY(mask.grab().toImage().pixelColor(mask.width() / 2, 10).alpha() > 150); // dims what lies under it
    QSignalSpy presses(&mask, &ModuleGeneralMasker::onClicked);
    QTest::mouseClick(&mask, Qt::LeftButton, {}, {3, 3});
    QCOMPARE(presses.size(), 1);
    QVERIFY(mask.isVisible());
    mask.reject();
}

QTEST_MAIN(TestGeneralMasker)
#include "tst_generalmasker.moc"
