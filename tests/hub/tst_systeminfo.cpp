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

void TestSystemInfo::choiceIsKept()
{
    // Ticks the box or takes the tick away, and leaves by that button.
    const auto toggle = [](bool before, const char *button) {
        QWidget page;
        page.resize(1280, 800);
        page.show();
        FrameSystemInfo info;
        ModuleGeneralMasker masker(&info, &page);
        connect(&info, &FrameSystemInfo::finished, &masker, &QDialog::setResult);
        auto *box = info.findChild<QAbstractButton *>(QStringLiteral("checkBox"));
        const bool shown = box->isChecked() == before;
        QTimer::singleShot(0, &info, [&info, box, button] {
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
            info.findChild<QAbstractButton *>(QLatin1String(button))->click();
        });
        return masker.exec() == (qstrcmp(button, "pushButtonOK") == 0) && shown;
    };
    QVERIFY(toggle(false, "pushButtonCancel") && !autostart::isEnabled());
    QVERIFY(toggle(false, "pushButtonOK") && autostart::isEnabled());
    QVERIFY(toggle(true, "pushButtonClose") && autostart::isEnabled());
    QVERIFY(toggle(true, "pushButtonOK") && !autostart::isEnabled());
}

QTEST_MAIN(TestSystemInfo)
#include "tst_systeminfo.moc"
