#include "HotplugSource.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QTest>
#include <QWidget>
#include <windows.h>

namespace {

/// Notes the changes of devices among the messages that the program gets.
class Listener : public QAbstractNativeEventFilter
{
public:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) override
    {
        if (const auto change = platform::deviceChangeMessage(eventType, message))
            changes.append(*change);
        return false;
    }

    QList<platform::DeviceChangeMessage> changes;
};

} // namespace

/// News of plugged and pulled devices, which come as a broadcast to the program's windows.
class TestHotplug : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void broadcastIsRead();
};

void TestHotplug::broadcastIsRead()
{
    Listener listener;
    qApp->installNativeEventFilter(&listener);
    QWidget window;
    const auto handle = reinterpret_cast<HWND>(window.winId());
    SendMessageW(handle, WM_DEVICECHANGE, 7, 0);
    SendMessageW(handle, WM_POWERBROADCAST, 7, 0);
    SendMessageW(handle, WM_DEVICECHANGE, 0x8000, 42);
    qApp->removeNativeEventFilter(&listener);
    QCOMPARE(listener.changes.size(), 2);
    QCOMPARE(listener.changes[0].wParam, quintptr(7));
    QCOMPARE(listener.changes[1].wParam, quintptr(0x8000));
    QCOMPARE(listener.changes[1].lParam, qintptr(42));
    QVERIFY(!platform::deviceChangeMessage("xcb_generic_event_t", nullptr));
}

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "windows");
    QApplication application(argc, argv);
    TestHotplug test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hotplug.moc"
