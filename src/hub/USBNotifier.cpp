#include "USBNotifier.h"

#include "HotplugSource.h"

#include <QCoreApplication>
#include <QDebug>
#include <QPointer>

namespace {

QPointer<USBNotifier> &theNotifier()
{
    static QPointer<USBNotifier> notifier;
    return notifier;
}

} // namespace

USBNotifier *USBNotifier::instance(QObject *parent)
{
    if (!theNotifier()) {
        theNotifier() = new USBNotifier(parent);
        QCoreApplication::instance()->installNativeEventFilter(theNotifier());
    }
    return theNotifier();
}

USBNotifier::USBNotifier(QObject *parent)
    : QObject(parent)
{
    // On Windows the source is silent and the message filter speaks; elsewhere it is the other way round.
    const auto *source = new platform::HotplugSource(this);
    connect(source, &platform::HotplugSource::changed, this, [this] { Q_EMIT devicePluggined(true); });
}

void USBNotifier::report()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application)
        return;
    QMetaObject::invokeMethod(
        application,
        [] {
            if (USBNotifier *notifier = theNotifier())
                Q_EMIT notifier->devicePluggined(true);
        },
        Qt::QueuedConnection);
}

bool USBNotifier::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    const auto change = platform::deviceChangeMessage(eventType, message);
    if (!change)
        return false;
    qDebug() << "USBNotifier::nativeEventFilter: " << change->wParam << change->lParam;
    Q_EMIT devicePluggined(true);
    return true;
}
