#include "USBNotifier.h"

#include <memory>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <thread>

/// How news of a plug reaches the window, whoever brings it.
class TestUsbNotifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newsFromAnyThread();
    void newsWithoutAWindow();
};

void TestUsbNotifier::newsFromAnyThread()
{
    QObject window;
    USBNotifier *notifier = USBNotifier::instance(&window);
    QCOMPARE(USBNotifier::instance(&window), notifier);
    QSignalSpy news(notifier, &USBNotifier::devicePluggined);
    connect(notifier, &USBNotifier::devicePluggined, this,
            [this] { QCOMPARE(QThread::currentThread(), thread()); });

    constexpr int Burst = 20;
    std::thread([] {
        for (int i = 0; i < Burst; ++i)
            USBNotifier::report();
    }).join();
    QCOMPARE(news.count(), 0); // never inside the call
    QTRY_COMPARE(news.count(), Burst);
    QVERIFY(news.constFirst().constFirst().toBool());
}

void TestUsbNotifier::newsWithoutAWindow()
{
    auto first = std::make_unique<QObject>();
    USBNotifier::instance(first.get());
    USBNotifier::report();
    first.reset(); // the news is still under way
    QTest::qWait(10);

    QObject second;
    QSignalSpy news(USBNotifier::instance(&second), &USBNotifier::devicePluggined);
    USBNotifier::report();
    QTRY_COMPARE(news.count(), 1);
}

QTEST_GUILESS_MAIN(TestUsbNotifier)
#include "tst_usbnotifier.moc"
