#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

/// Tells that some device was plugged in or pulled out. One plug may be told many times; devices of other
/// kinds are told too. GUI thread only, but for report().
class USBNotifier : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// The one notifier, listening to the system; made as a child of \a parent at the first call.
    static USBNotifier *instance(QObject *parent);

    /// Tells of a change that the system doesn't know of, as of a virtual keyboard. Any thread; without a
    /// notifier or an application nothing happens.
    static void report();

    /// Takes the system's message out of the stream of messages; all others go on.
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

Q_SIGNALS:
    void devicePluggined(bool plugged); ///< always with true

private:
    explicit USBNotifier(QObject *parent);
};
