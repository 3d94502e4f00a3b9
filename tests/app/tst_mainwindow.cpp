#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "MainWindow.h"
#include "ModuleLangMenu.h"
#include "USBNotifier.h"
#include "VirtualBus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using virtualhid::Fault;
using virtualhid::FaultRule;
using virtualhid::VirtualBus;

/// The hub's window on virtual devices, from splash to closing.
class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void cardsFollowWhatIsPlugged();
    void scanButtonStartsAfresh();
    void cardOpensItsKeyboard();
    void languageSwitchesLive();
    void closingAsksFirstAndWaitsForNoProbe();

private:
    template <typename Widget>
    Widget *inWindow(const char *name)
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    int cards() const;
    void answer(QMessageBox::StandardButton button);

    QTemporaryDir home;
    QTranslator application;
    QTranslator qtBase;
    QTranslator qt;
    std::unique_ptr<MainWindow> window;
};

void TestMainWindow::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    QVERIFY(application.load(QStringLiteral(":/i18n/ORBEStudio_zh_CN")));
    QCoreApplication::installTranslator(&application);
    QDir().mkpath(QCoreApplication::applicationDirPath() + QStringLiteral("/config"));
    for (const char *file : {"OrbeHubDevices.json", "CustomDeviceList.json"}) {
        const QString to =
            QCoreApplication::applicationDirPath() + QStringLiteral("/config/") + QLatin1String(file);
        QFile::remove(to);
        QVERIFY(QFile::copy(QStringLiteral(ORBE_DATA "/config/") + QLatin1String(file), to));
    }
}

void TestMainWindow::init()
{
    VirtualBus::instance().reset();
    VirtualBus::instance().setHotPlugObserver([] { USBNotifier::report(); });
    window = std::make_unique<MainWindow>(InstalledTranslators{&application, &qtBase, &qt});
    QVERIFY(!window->isSecondInstance());
    window->show();
}

void TestMainWindow::cleanup()
{
    window.reset();
    VirtualBus::instance().reset();
}

int TestMainWindow::cards() const
{
    const auto all = window->findChildren<FrameDeviceShow *>();
    return int(std::count_if(all.begin(), all.end(), [](const auto *card) { return card->isVisible(); }));
}

void TestMainWindow::answer(QMessageBox::StandardButton button)
{
    QTimer::singleShot(100, window.get(), [button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        box->button(button)->click();
    });
}

void TestMainWindow::cardsFollowWhatIsPlugged()
{
    QVERIFY(inWindow<QStackedWidget>("stackedWidget")->isHidden());
    const auto first = VirtualBus::instance().plug("wired-500");
    QTRY_COMPARE(cards(), 1);
    QVERIFY(!inWindow<QStackedWidget>("stackedWidget")->isHidden());
    QElapsedTimer untilShown;
    untilShown.start();
    const auto second = VirtualBus::instance().plug("by");
    QTRY_COMPARE(cards(), 2);
    QVERIFY2(untilShown.elapsed() < 1500, qPrintable(QString::number(untilShown.elapsed())));
    QCOMPARE(inWindow<QLabel>("labelInfo0")->text(), QStringLiteral("我的设备(2)"));
    VirtualBus::instance().unplug(first);
    QTRY_COMPARE(cards(), 1);
    QCOMPARE(window->findChild<QLabel *>(QStringLiteral("labelDeviceName"))->text(),
             QStringLiteral("Orbe BY Keyboard"));
}

void TestMainWindow::scanButtonStartsAfresh()
{
    const auto device = VirtualBus::instance().plug("by");
    QTRY_COMPARE(cards(), 1);
    inWindow<QPushButton>("pushButtonScan")->click();
    QCOMPARE(cards(), 0);
    QTRY_COMPARE(cards(), 1);
}

void TestMainWindow::cardOpensItsKeyboard()
{
    const auto device = VirtualBus::instance().plug("wired-2ff");
    QTRY_COMPARE(cards(), 1);
    QSignalSpy read(DialogDeviceConnect::instance(), &DialogDeviceConnect::onReadDone);
    QTest::mouseClick(FrameDeviceShow::acquire(0, nullptr), Qt::LeftButton);
    QTRY_COMPARE(inWindow<QStackedWidget>("stackedWidget")->currentIndex(), 2);
    QVERIFY(read.wait(10000));
    QVERIFY(DialogDeviceConnect::instance()->isConnected());
    QCOMPARE(inWindow<QLabel>("labelName")->text(), QStringLiteral("Orbe 7090"));
    // Its loss leads back to the cards by itself.
    VirtualBus::instance().unplug(device);
    QTRY_COMPARE(inWindow<QStackedWidget>("stackedWidget")->currentIndex(), 0);
}

void TestMainWindow::languageSwitchesLive()
{
    constexpr int German = 9;
    constexpr int Chinese = 0;
    auto *menu = window->findChild<ModuleLangMenu *>();
    menu->selectLanguage(German);
    QTRY_COMPARE(inWindow<QPushButton>("pushButtonLang")->text(), QStringLiteral(" Deutsch"));
    QVERIFY(inWindow<QLabel>("labelInfo0")->text() != QStringLiteral("我的设备(0)"));
    menu->selectLanguage(Chinese);
    QTRY_COMPARE(inWindow<QLabel>("labelInfo0")->text(), QStringLiteral("我的设备(0)"));
}

// The last test: closing leaves the application's event loop for good.
void TestMainWindow::closingAsksFirstAndWaitsForNoProbe()
{
    const auto device = VirtualBus::instance().plug("wired-500");
    FaultRule never;
    never.command = 0x8F;
    never.times.reset();
    never.fault = Fault::lost();
    device->addFault(never);
    QTRY_VERIFY(device->frameCount() >= 3);

    answer(QMessageBox::No);
    QVERIFY(!window->close());
    QVERIFY(window->isVisible());
    answer(QMessageBox::Yes);
    QElapsedTimer closing;
    closing.start();
    QVERIFY(window->close());
    window.reset();
    QVERIFY2(closing.elapsed() < 2000, qPrintable(QString::number(closing.elapsed())));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
