#include "AbsentCards.h"
#include "DialogDeviceConnect.h"
#include "FrameAbsentDevice.h"
#include "FrameDeviceHolder.h"
#include "FrameDeviceShow.h"
#include "MessageBox.h"
#include "NoticeBar.h"
#include "ProgressLine.h"
#include "Scanner.h"

#include <QAccessible>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using virtualhid::Fault;
using virtualhid::VirtualBus;

/// What the user is told while the keyboard is at work, and when it can't be reached.
class TestFeedback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void longWorkShowsHowFarItIs();
    void lossInTheMiddleTakesTheProgressAway_data();
    void lossInTheMiddleTakesTheProgressAway();
    void missingAnswerOffersAnotherRead();
    void cardOfADeviceThatCantBeUsed_data();
    void cardOfADeviceThatCantBeUsed();
    void messageBoxAsksInTheProgramsLook();

private:
    void openShell(const char *model);
    void connectKeyboard();
    bool readWhole();

    virtualhid::DevicePtr keyboard;
    std::unique_ptr<FrameDeviceHolder> shell;
    DialogDeviceConnect *connection = nullptr;
    ProgressLine *line = nullptr;
    NoticeBar *notice = nullptr;
};

void TestFeedback::init()
{
    VirtualBus::instance().reset();
}

void TestFeedback::cleanup()
{
    shell.reset();
    VirtualBus::instance().reset();
}

void TestFeedback::openShell(const char *model)
{
    keyboard = VirtualBus::instance().plug(model);
    shell = std::make_unique<FrameDeviceHolder>();
    shell->show();
    connection = DialogDeviceConnect::instance();
    line = shell->findChild<ProgressLine *>();
    notice = shell->findChild<NoticeBar *>();
    connectKeyboard();
}

void TestFeedback::connectKeyboard()
{
    const std::string air = keyboard->path(sim::Channel::Bluetooth);
    QSignalSpy identified(connection, &DialogDeviceConnect::onUpdataLayer);
    connection->DoConnectDevice(keyboard->model().vendorId, keyboard->model().productId, !air.empty(),
                                QStringLiteral("null"), QString::fromStdString(air));
    QVERIFY(identified.wait());
}

bool TestFeedback::readWhole()
{
    QSignalSpy done(connection, &DialogDeviceConnect::onReadDone);
    connection->DoReadAll();
    return done.wait(20000);
}

void TestFeedback::longWorkShowsHowFarItIs()
{
    openShell("wired-500");
    QList<int> shown;
    connect(line, &QProgressBar::valueChanged, this, [this, &shown](int value) {
        if (line->isVisible())
            shown += value;
    });
    QVERIFY(line->isHidden() && notice->isHidden());
    QVERIFY(readWhole());
    QCOMPARE(line->maximum(), 99);
    QVERIFY(shown.size() > 70 && std::is_sorted(shown.begin(), shown.end()));
    QCOMPARE(shown.last(), 99);
    const auto *told = QAccessible::queryAccessibleInterface(line);
    QCOMPARE(told->role(), QAccessible::ProgressBar);
    QCOMPARE(told->text(QAccessible::Name), QStringLiteral("正在读取键盘"));
    QTRY_VERIFY(line->isHidden());
    const auto timers = shell->findChildren<QTimer *>();
    QVERIFY(std::none_of(timers.begin(), timers.end(), [](const QTimer *timer) {
        return timer->parent()->inherits("WorkMeter") && timer->isActive();
    }));

    // A slider that is dragged: many single writes, each at once.
    for (int move = 0; move < 60; ++move) {
        connection->DoSetMagnetism(0, 4, quint32(100 + move), 1);
        QTest::qWait(10);
        QVERIFY(line->isHidden());
    }

    connection->DoSetMacro(4, 1, 0, 0, QByteArray(3000, char(1)));
    QTRY_VERIFY(line->isVisible());
    QCOMPARE(line->accessibleName(), QStringLiteral("正在写入键盘"));
    QTRY_VERIFY(line->isHidden());
    QCOMPARE(line->value(), line->maximum());
}

void TestFeedback::lossInTheMiddleTakesTheProgressAway_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::newRow("on the cable") << QByteArray("wired-500");
    QTest::newRow("over the air") << QByteArray("bluetooth");
}

void TestFeedback::lossInTheMiddleTakesTheProgressAway()
{
    QFETCH(QByteArray, model);
    openShell(model.constData());
    connection->DoReadAll();
    QTRY_VERIFY(line->isVisible());
    VirtualBus::instance().unplug(keyboard);
    connection->deviceChanged();
    QTRY_VERIFY(line->isHidden());
    const auto says = [this](const char *text) {
        return notice->isVisible() && notice->accessibleName().startsWith(QString::fromUtf8(text));
    };
    QTRY_VERIFY(says("键盘已断开"));

    VirtualBus::instance().replug(keyboard);
    keyboard->denyOpens(true);
    connection->deviceChanged();
    QTRY_VERIFY(says("系统不允许"));
    keyboard->denyOpens(false);
    connection->deviceChanged();
    QTRY_VERIFY(notice->isHidden());
}

void TestFeedback::missingAnswerOffersAnotherRead()
{
    openShell("wired-500");
    keyboard->faultAtFrame(30, Fault::lost());
    connection->DoReadAll();
    QTRY_VERIFY(notice->isVisible());
    QVERIFY(connection->isReadingAll() && line->isHidden());
    QSignalSpy done(connection, &DialogDeviceConnect::onReadDone);
    QTest::mouseClick(notice->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(notice->isHidden());
    QVERIFY(done.wait(20000));
}

void TestFeedback::cardOfADeviceThatCantBeUsed_data()
{
    QTest::addColumn<QByteArray>("event");
    QTest::addColumn<QStringList>("told"); ///< name and badge of the one card of that kind
    const QString model = QStringLiteral("Orbe Magnetic 68");
    QTest::newRow("nothing") << QByteArray() << QStringList();
    QTest::newRow("unplugged") << QByteArray("unplug") << QStringList{model, QStringLiteral("已断开")};
    QTest::newRow("back again") << QByteArray("unplug replug") << QStringList();
    QTest::newRow("one of its kind is there") << QByteArray("unplug another") << QStringList();
    QTest::newRow("no right to it") << QByteArray("forget deny")
                                    << QStringList{QStringLiteral("Orbe Magnetic 68"),
                                                   QStringLiteral("没有访问权限")};
    QTest::newRow("held by another program")
        << QByteArray("forget break")
        << QStringList{QStringLiteral("Orbe Magnetic 68"), QStringLiteral("无法打开")};
    QTest::newRow("its own card still stands") << QByteArray("deny") << QStringList();
}

void TestFeedback::cardOfADeviceThatCantBeUsed()
{
    QFETCH(QByteArray, event);
    QFETCH(QStringList, told);
    Scanner scanner;
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    AbsentCards cards(layout, &window);
    keyboard = scanner.bus.plug("wired-500");
    QVERIFY(scanner.scan());
    cards.refresh(scanner.list);
    QVERIFY(layout->isEmpty());
    const QList<QByteArray> events = event.split(' ');
    if (events.contains("unplug")) {
        scanner.bus.unplug(keyboard);
        QVERIFY(scanner.scan());
    }
    if (events.contains("forget"))
        scanner.list.clear();
    keyboard->denyOpens(events.contains("deny"));
    keyboard->failOpens(events.contains("break") ? 100 : 0);
    if (events.contains("replug"))
        scanner.bus.replug(keyboard);
    if (events.contains("another"))
        scanner.bus.plug("wired-500");
    QVERIFY(scanner.scan());

    cards.refresh(scanner.list);
    window.show();
    QStringList shown;
    const auto absent = window.findChildren<FrameAbsentDevice *>();
    for (const FrameAbsentDevice *card : absent) {
        const auto *badgeLabel = card->findChild<QLabel *>(QStringLiteral("labelState"));
        if (!card->isVisible())
            continue;
        QVERIFY(badgeLabel->isVisible() && !card->toolTip().isEmpty());
        QVERIFY(card->accessibleDescription().contains(card->toolTip()));
        shown << card->accessibleName() << badgeLabel->text();
    }
    QCOMPARE(shown, told);
    if (event == "deny") {
        FrameDeviceShow *own = FrameDeviceShow::acquire(0, &window);
        own->setDevice(scanner.list.devices().constFirst());
        QCOMPARE(own->findChild<QLabel *>(QStringLiteral("labelState"))->text(),
                 QStringLiteral("没有访问权限"));
    }
}

void TestFeedback::messageBoxAsksInTheProgramsLook()
{
    QWidget hub;
    hub.show();
    const auto press = [&hub](Qt::Key key) {
        QTimer::singleShot(50, &hub, [key] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            QCOMPARE(box->text(), QStringLiteral("?"));
            const auto answers = box->buttons();
            for (const QAbstractButton *answer : answers)
                QVERIFY(answer->icon().isNull());
            QCOMPARE(box->button(QMessageBox::Yes)->text(), QStringLiteral("是"));
            QTest::keyClick(box, key);
        });
    };
    const auto ask = [&hub](QMessageBox::StandardButton byDefault) {
        return MessageBox::question(&hub, QStringLiteral("提示"), QStringLiteral("?"),
                                    QMessageBox::Yes | QMessageBox::No, byDefault);
    };
    press(Qt::Key_Escape);
    QCOMPARE(ask(QMessageBox::Yes), QMessageBox::No);
    press(Qt::Key_Return);
    QCOMPARE(ask(QMessageBox::Yes), QMessageBox::Yes);
    press(Qt::Key_Return);
    QCOMPARE(ask(QMessageBox::No), QMessageBox::No);
}

QTEST_MAIN(TestFeedback)
#include "tst_feedback.moc"
