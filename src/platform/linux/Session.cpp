#include "Session.h"

#include "PlatformLog.h"
#include "X11.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QElapsedTimer>
#include <xcb/screensaver.h>

using namespace std::chrono_literals;

namespace platform {

namespace {

/// What the system's session service said last about the user's session. It is asked anew with every look at
/// the answer, and never waited for.
class LockedHint : public QObject
{
public:
    LockedHint()
        : QObject(QCoreApplication::instance())
    {
    }

    bool isLocked()
    {
        if (!waiting)
            ask();
        return locked;
    }

    /// Zero while the session isn't locked.
    std::chrono::milliseconds lockedFor() const
    {
        return locked ? std::chrono::milliseconds(sinceLocked.elapsed()) : 0ms;
    }

private:
    void ask()
    {
        QDBusConnection bus = QDBusConnection::systemBus();
        if (!bus.isConnected()) {
            tell(QStringLiteral("there is no system bus"));
            return;
        }
        QDBusMessage question = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1/session/auto"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        question.setArguments(
            {QStringLiteral("org.freedesktop.login1.Session"), QStringLiteral("LockedHint")});
        waiting = true;
        auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
            const QDBusPendingReply<QDBusVariant> reply = *watcher;
            watcher->deleteLater();
            waiting = false;
            if (reply.isError())
                tell(reply.error().message());
            setLocked(!reply.isError() && reply.value().variant().toBool());
        });
    }

    void setLocked(bool now)
    {
        if (now && !locked)
            sinceLocked.start();
        locked = now;
    }

    void tell(const QString &reason)
    {
        if (!told)
            qCInfo(lcPlatform) << "The session counts as unlocked:" << reason;
        told = true;
    }

    QElapsedTimer sinceLocked;
    bool locked = false;
    bool waiting = false;
    bool told = false;
};

LockedHint &lockedHint()
{
    static auto *hint = new LockedHint; // belongs to the application object
    return *hint;
}

} // namespace

bool isSessionLocked()
{
    return lockedHint().isLocked();
}

// The desktops' own services disagree about how to ask and in what units, so where the X server doesn't
// count, a locked session counts as idle since it was locked.
std::chrono::milliseconds idleTime()
{
    xcb_connection_t *connection = x11::connection();
    if (!connection || !x11::hasExtension(&xcb_screensaver_id))
        return lockedHint().lockedFor();
    const auto cookie = xcb_screensaver_query_info(connection, x11::rootWindow());
    const x11::Reply<xcb_screensaver_query_info_reply_t> info(
        xcb_screensaver_query_info_reply(connection, cookie, nullptr));
    return std::chrono::milliseconds(info ? info->ms_since_user_input : 0);
}

} // namespace platform
