#include "DeviceEnumInfo.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "SuperLabel.h"
#include "VirtualBus.h"

#include <memory>
#include <QAbstractButton>
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
    void resetRestoresTheKeyboard();
    void navigationWaitsForTheRead();
    void batteryIsThatOfTheShownDevice();
    void longNameLeavesTheButtonsTheirRoom();
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
    QTest::newRow("a click") << 0;
    QTest::newRow("a release whose press was elsewhere") << 1;
    QTest::newRow("a key") << 2;
    QTest::newRow("the profile that the keyboard reports") << 3;
}

void TestPageShell::layerButtonChangesTheProfile()
{
    QFETCH(int, layer);
    connectKeyboard();
    const size_t before = keyboard->frameCount();
    QSignalSpy reading(connection, &DialogDeviceConnect::onReadAll);
    QTest::mouseClick(place(2), Qt::LeftButton);
    QAbstractButton *button = layerButton(layer);
    if (layer == 0)
        QTest::mouseClick(button, Qt::LeftButton);
    else if (layer == 1)
        QTest::mouseRelease(button, Qt::LeftButton);
    else if (layer == 2)
        QTest::keyClick(button, Qt::Key_Space);
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

void TestPageShell::resetRestoresTheKeyboard()
{
    connectKeyboard();
    const size_t before = keyboard->frameCount();
    QTest::mouseClick(child<QAbstractButton>("pushButtonReset"), Qt::LeftButton);
    QVERIFY(connection->isReadingAll());
    QTRY_VERIFY(keyboard->frameCount() >= before + 2);
    QCOMPARE(received(before, 2), "01 00 83 00");
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
    QTest::keyClick(place(1), Qt::Key_Return);
    QCOMPARE(shownPage(), "FrameMain");
    QTest::mouseClick(place(8), Qt::LeftButton);
    QCOMPARE(left.count(), 1);
}

void TestPageShell::batteryIsThatOfTheShownDevice()
{
    DeviceEnumInfo device;
    DeviceEnumInfo other;
    const QString low = QStringLiteral(":/images/dev/batt-low.png");
    const auto *battery = child<QLabel>("labelBatt");
    const auto report = [this](DeviceEnumInfo *of, const QString &picture) {
        shell->showBattery(of, picture, QStringLiteral(":/images/dev/ble.png"), QStringLiteral("20%"), {});
    };
    report(nullptr, low);
    shell->setDevice(&device, QString(), QStringLiteral("Orbe 7090"));
    report(&other, low);
    QVERIFY(battery->isHidden());
    report(&device, low);
    QVERIFY(battery->isVisible() && !battery->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(battery->toolTip(), QStringLiteral("20%"));
    report(&device, QString());
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

void TestPageShell::buttonsOpenTheirDialogs()
{
    const auto opened = [this](const char *button) {
        QByteArray name;
        QTimer::singleShot(0, shell.get(), [&name] {
            QWidget *dialog = QApplication::activeModalWidget();
            name = dialog ? dialog->metaObject()->className() : "";
            if (dialog)
                dialog->close();
        });
        child<QAbstractButton>(button)->click();
        return name;
    };
    QCOMPARE(opened("pushButtonFixline"), "LinearFixing1");
    QCOMPARE(opened("pushButtonPairing"), "ModuleGeneralMasker");
}

QTEST_MAIN(TestPageShell)
#include "tst_pageshell.moc"
