#include "Autostart.h"
#include "FrameSystemInfo.h"
#include "ModuleGeneralMasker.h"

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/// The system settings dialog and what it leaves in the user's autostart.
class TestSystemInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { autostart::disable(); }
    void choiceIsKept_data();
    void choiceIsKept();

private:
    QTemporaryDir home;
};

void TestSystemInfo::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    autostart::disable(); // where the entry stands in the registry, another run may have left it
    QVERIFY(!autostart::isEnabled());
}

void TestSystemInfo::choiceIsKept_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("after");
    const QString ok = QStringLiteral("pushButtonOK");
    const QString cancel = QStringLiteral("pushButtonCancel");
    const QString close = QStringLiteral("pushButtonClose");
    QTest::newRow("switched on") << false << true << ok << 1 << true;
    QTest::newRow("switched off") << true << false << ok << 1 << false;
    QTest::newRow("left on") << true << true << ok << 1 << true;
    QTest::newRow("switched on, then cancelled") << false << true << cancel << 0 << false;
    QTest::newRow("switched off, then closed") << true << false << close << 0 << true;
}

void TestSystemInfo::choiceIsKept()
{
    QFETCH(bool, before);
    QFETCH(bool, checked);
    QFETCH(QString, button);
    autostart::disable();
    if (before)
        autostart::enable(QStringLiteral("/opt/orbe hub/OrbeHub"));

    QWidget page;
    page.resize(1280, 800);
    page.show();
    FrameSystemInfo info;
    ModuleGeneralMasker masker(&info, &page);
    connect(&info, &FrameSystemInfo::finished, &masker, &QDialog::setResult);
    auto *box = info.findChild<QAbstractButton *>(QStringLiteral("checkBox"));
    QCOMPARE(box->isChecked(), before);
    QTimer::singleShot(0, &info, [&info, box, checked, button] {
        if (box->isChecked() != checked)
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
        info.findChild<QAbstractButton *>(button)->click();
    });
    QTEST(masker.exec(), "result");
    QTEST(autostart::isEnabled(), "after");
}

QTEST_MAIN(TestSystemInfo)
#include "tst_systeminfo.moc"
