#include "Desktop.h"
#include "KeyState.h"
#include "Session.h"
#include "Topmost.h"

#include <array>
#include <chrono>
#include <QApplication>
#include <QTest>
#include <QWidget>

using namespace std::chrono_literals;
using platform::Key;

/// What the hub does to its own window, and what that window is told of keys and of the user's absence.
class TestOwnWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void topmostAndBack();
    void keysAreSeenWhileActive();
    void idleTimeEndsWithAKey();

private:
    std::unique_ptr<QWidget> window;
};

void TestOwnWindow::init()
{
    window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
    window->setGeometry(100, 100, 400, 300);
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void TestOwnWindow::cleanup()
{
    window.reset();
}

void TestOwnWindow::topmostAndBack()
{
    const WId id = window->winId();
    const QRect place = window->geometry();
    platform::setTopmost(window.get(), true);
    QTRY_VERIFY(Desktop::isTopmost(id));
    platform::setTopmost(window.get(), false);
    QTRY_VERIFY(!Desktop::isTopmost(id));
    QCOMPARE(window->winId(), id);
    QCOMPARE(window->geometry(), place);
    QVERIFY(Desktop::isShown(id));
    platform::setTopmost(nullptr, true);
}

void TestOwnWindow::keysAreSeenWhileActive()
{
    constexpr std::array Keys{std::pair{Qt::Key_Escape, Key::Escape},
                              std::pair{Qt::Key_Control, Key::Control}, std::pair{Qt::Key_D, Key::D}};
    for (const auto &[pressed, key] : Keys) {
        const auto isHeld = [held = pressed, wanted = key] {
            Desktop::holdKey(held, true); // again and again, as a held key repeats
            return platform::isKeyDown(wanted);
        };
        QVERIFY(!platform::isKeyDown(key));
        QTRY_VERIFY(isHeld());
        for (const Key other : {Key::Escape, Key::Control, Key::D})
            QCOMPARE(platform::isKeyDown(other), other == key);
        Desktop::holdKey(pressed, false);
        QTRY_VERIFY(!platform::isKeyDown(key));
    }
}

void TestOwnWindow::idleTimeEndsWithAKey()
{
    QTRY_VERIFY(platform::idleTime() >= 300ms);
    Desktop::holdKey(Qt::Key_Control, true);
    Desktop::holdKey(Qt::Key_Control, false);
    QTRY_VERIFY(platform::idleTime() < 300ms);
    QVERIFY(!platform::isSessionLocked());
}

int main(int argc, char *argv[])
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent"); // a machine without session service
    const Desktop desktop;
    QApplication application(argc, argv);
    TestOwnWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ownwindow.moc"
