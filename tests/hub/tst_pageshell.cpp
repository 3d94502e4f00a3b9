#include "DeviceEnumInfo.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "SuperLabel.h"
#include "VirtualBus.h"

#include <memory>
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using virtualhid::VirtualBus;

/// The page of a native keyboard around its six pages: what its buttons send, and when it lets the user go.
class TestPageShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void layerButtonChangesTheProfile_data();
    void layerButtonChangesTheProfile();
    void navigationWaitsForTheRead();
    void placesOpenTheirPagesAndTheLastLeaves_data();
    void placesOpenTheirPagesAndTheLastLeaves();
    void resetRestoresTheKeyboard();
    void batteryIsThatOfTheShownDevice();
    void longNameLeavesTheButtonsTheirRoom();
    void otherLanguageRenamesThePlaces();
    void buttonsOpenTheirDialogs_data();
    void buttonsOpenTheirDialogs();

private:
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return shell->findChild<Widget *>(QLatin1String(name));
    }
    SuperLabel *place(int number) const
    {
        return shell->findChild<SuperLabel *>(QStringLiteral("label%1").arg(number));
    }
    QAbstractButton *layerButton(int layer) const
    {
        return shell->findChild<QAbstractButton *>(QStringLiteral("pushButtonLayer%1").arg(layer));
    }
    void connectKeyboard();
    QByteArray received(size_t first, int count) const;
    QByteArray shownPage() const;

    virtualhid::DevicePtr keyboard;
    std::unique_ptr<FrameDeviceHolder> shell;
    DialogDeviceConnect *connection = nullptr;
};

void TestPageShell::init()
{
    VirtualBus::instance().reset();
    keyboard = VirtualBus::instance().plug("wired-500");
    shell = std::make_unique<FrameDeviceHolder>();
    shell->resize(1280, 809);
    shell->show();
    connection = DialogDeviceConnect::instance();
    QVERIFY(connection);
}

void TestPageShell::cleanup()
{
    shell.reset();
    VirtualBus::instance().reset();
}

/// Opens the keyboard and lets its first answers pass by; no layer button is pressed.
void TestPageShell::connectKeyboard()
{
    QSignalSpy identified(connection, &DialogDeviceConnect::onUpdataLayer);
    connection->DoConnectDevice(keyboard->model().vendorId, keyboard->model().productId, false,
                                QStringLiteral("null"), QStringLiteral("cable"));
    QVERIFY(identified.wait());
}

QByteArray TestPageShell::received(size_t first, int count) const
{
    const auto frames = keyboard->frames();
    QByteArray bytes;
    for (size_t i = first; i < frames.size() && bytes.size() < 2 * count; ++i) {
        bytes += char(frames[i].frame[0]);
        bytes += char(frames[i].frame[1]);
    }
    return bytes.toHex(' ').toUpper();
}

/// Class names of the pages that can be seen.
QByteArray TestPageShell::shownPage() const
{
    QByteArrayList shown;
    const auto pages = child<QFrame>("FrameHoder")->findChildren<QFrame *>(Qt::FindDirectChildrenOnly);
    for (const QFrame *page : pages) {
        if (page->isVisible())
            shown += page->metaObject()->className();
    }
    return shown.join(' ');
}

void TestPageShell::layerButtonChangesTheProfile_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<QByteArray>("how");
    for (int layer = 0; layer < 4; ++layer)
        QTest::addRow("click on the button of %d", layer) << layer << QByteArray("click");
    QTest::newRow("a key") << 2 << QByteArray("key");
    QTest::newRow("a release whose press was elsewhere") << 1 << QByteArray("release");
    QTest::newRow("the profile that the keyboard reports") << 3 << QByteArray("report");
}

void TestPageShell::layerButtonChangesTheProfile()
{
    QFETCH(int, layer);
    QFETCH(QByteArray, how);
    connectKeyboard();
    const size_t before = keyboard->frameCount();
    QSignalSpy reading(connection, &DialogDeviceConnect::onReadAll);
    QTest::mouseClick(place(2), Qt::LeftButton);
    QAbstractButton *button = layerButton(layer);
    if (how == "click")
        QTest::mouseClick(button, Qt::LeftButton);
    else if (how == "key")
        QTest::keyClick(button, Qt::Key_Space);
    else if (how == "release")
        QTest::mouseRelease(button, Qt::LeftButton);
    else
        shell->setLayer(layer);
    shell->setLayer(4);
    shell->setLayer(-1);
    QVERIFY(button->isChecked());
    QVERIFY(reading.wait());
    QTRY_VERIFY(keyboard->frameCount() >= before + 2);
    QCOMPARE(received(before, 2), QByteArray("04 0n 83 00").replace('n', char('0' + layer)));
    QCOMPARE(reading.count(), 1);
}

void TestPageShell::navigationWaitsForTheRead()
{
    connectKeyboard();
    QTest::mouseClick(place(3), Qt::LeftButton);
    QCOMPARE(shownPage(), "FrameMagic");
    QSignalSpy left(shell.get(), &FrameDeviceHolder::onReturn);
    QSignalSpy done(connection, &DialogDeviceConnect::onReadDone);
    connection->DoReadAll();
    QTest::mouseClick(place(1), Qt::LeftButton);
    QTest::mouseClick(place(8), Qt::LeftButton);
    QCOMPARE(shownPage(), "FrameMagic");
    QVERIFY(place(3)->isSelected());
    QCOMPARE(left.count(), 0);
    QVERIFY(done.wait(20000));
    QTest::mouseClick(place(1), Qt::LeftButton);
    QCOMPARE(shownPage(), "FrameMain");
}

void TestPageShell::placesOpenTheirPagesAndTheLastLeaves_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("page");
    QTest::newRow("home") << 1 << QByteArray("FrameMain");
    QTest::newRow("keys") << 2 << QByteArray("FrameKeySetting");
    QTest::newRow("magnetic switches") << 3 << QByteArray("FrameMagic");
    QTest::newRow("macros") << 4 << QByteArray("FrameMacro");
    QTest::newRow("lighting") << 5 << QByteArray("FrameLight");
    QTest::newRow("about, which has no label to be seen") << 6 << QByteArray("FrameAbout");
}

void TestPageShell::placesOpenTheirPagesAndTheLastLeaves()
{
    QFETCH(int, number);
    QFETCH(QByteArray, page);
    QCOMPARE(shownPage(), "FrameMain");
    QCOMPARE(place(number)->isVisible(), number != 6);
    if (number == 6)
        shell->showPage(place(number), number - 1);
    else
        QTest::keyClick(place(number), Qt::Key_Return);
    QCOMPARE(shownPage(), page);
    QVERIFY(place(number)->isSelected());
    QCOMPARE(place(1)->isSelected(), number == 1);
    QCOMPARE(layerButton(0)->isVisible(), number == 2);
    QTRY_VERIFY(!QAccessible::queryAccessibleInterface(place(number))->text(QAccessible::Name).isEmpty());

    const QWidget *visible = child<QFrame>(page.constData());
    QCOMPARE(QRect(visible->mapTo(shell.get(), QPoint(0, 0)), visible->size()), QRect(133, 60, 1124, 740));

    QSignalSpy left(shell.get(), &FrameDeviceHolder::onReturn);
    QTest::mouseClick(place(8), Qt::LeftButton);
    QCOMPARE(left.count(), 1);
    QCOMPARE(shownPage(), page);
    QVERIFY(place(number)->isSelected() && !place(8)->isSelected());
}

void TestPageShell::resetRestoresTheKeyboard()
{
    connectKeyboard();
    const size_t before = keyboard->frameCount();
    QTest::mouseClick(child<QAbstractButton>("pushButtonReset"), Qt::LeftButton);
    QVERIFY(connection->isReadingAll());
    QTRY_VERIFY(keyboard->frameCount() >= before + 2);
    QCOMPARE(received(before, 2), "01 00 83 00");
}

void TestPageShell::batteryIsThatOfTheShownDevice()
{
    DeviceEnumInfo device;
    DeviceEnumInfo other;
    const auto picture = [](const char *name) {
        return QStringLiteral(":/images/dev/%1").arg(QLatin1String(name));
    };
    const auto report = [&](DeviceEnumInfo *of, const QString &battery, const QString &tip) {
        shell->showBattery(of, battery, picture("ble.png"), tip, QStringLiteral("QToolTip{color:#333333;}"));
    };
    auto *battery = child<QLabel>("labelBatt");
    const qint64 cable = child<QLabel>("labelConn")->pixmap(Qt::ReturnByValue).cacheKey();
    report(nullptr, picture("batt-low.png"), QStringLiteral("none"));
    shell->setDevice(&device, QString(), QStringLiteral("Orbe 7090"));
    report(&other, picture("batt-low.png"), QStringLiteral("other"));
    QVERIFY(battery->isHidden());
    QCOMPARE(child<QLabel>("labelConn")->pixmap(Qt::ReturnByValue).cacheKey(), cable);

    report(&device, picture("batt-full.png"), QStringLiteral("80%"));
    QVERIFY(battery->isVisible() && !battery->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(battery->toolTip(), QStringLiteral("80%"));
    QVERIFY(child<QLabel>("labelConn")->pixmap(Qt::ReturnByValue).cacheKey() != cable);
    report(&device, QString(), QString());
    QVERIFY(battery->isHidden());
}

void TestPageShell::longNameLeavesTheButtonsTheirRoom()
{
    auto *name = child<QLabel>("labelName");
    shell->setDevice(nullptr, QString(), QStringLiteral("Orbe 7090"));
    QCOMPARE(name->text(), QStringLiteral("Orbe 7090"));
    const QString longName(QStringLiteral("<b>磁轴</b> ") + QString(300, u'W'));
    shell->setDevice(nullptr, QString(), longName);
    QTest::mouseClick(place(2), Qt::LeftButton);
    QCOMPARE(name->textFormat(), Qt::PlainText);
    QVERIFY(name->text().endsWith(u'…'));
    QCOMPARE(name->accessibleName(), longName);
    child<QFrame>("FrameToolbar")->layout()->activate();
    for (const char *button : {"pushButtonLayer0", "pushButtonReset", "pushButtonFixline"})
        QVERIFY(child<QWidget>(button)->width() >= child<QWidget>(button)->sizeHint().width());
    QVERIFY(name->width() >= name->sizeHint().width());
    QVERIFY(name->sizeHint().width() > 100);
}

void TestPageShell::otherLanguageRenamesThePlaces()
{
    QTRY_COMPARE(place(5)->accessibleName(), QStringLiteral("灯效设置"));
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(shell.get(), &change);
    QCOMPARE(place(5)->accessibleName(), QStringLiteral("灯光设置"));
    QCOMPARE(place(2)->accessibleName(), QStringLiteral("键盘设置"));
}

void TestPageShell::buttonsOpenTheirDialogs_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("dialog");
    QTest::newRow("calibration") << QByteArray("pushButtonFixline") << QByteArray("LinearFixing1");
    QTest::newRow("pairing") << QByteArray("pushButtonPairing") << QByteArray("ModuleGeneralMasker");
}

void TestPageShell::buttonsOpenTheirDialogs()
{
    QFETCH(QByteArray, button);
    QByteArray opened;
    QTimer::singleShot(0, shell.get(), [&opened] {
        QWidget *dialog = QApplication::activeModalWidget();
        opened = dialog ? dialog->metaObject()->className() : "";
        if (dialog)
            dialog->close();
    });
    child<QAbstractButton>(button.constData())->click();
    QTEST(opened, "dialog");
}

QTEST_MAIN(TestPageShell)
#include "tst_pageshell.moc"
