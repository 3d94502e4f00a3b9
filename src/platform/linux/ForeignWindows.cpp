#include "ForeignWindows.h"

#include "X11.h"

#include <chrono>
#include <QCoreApplication>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace {

/// A window that gets its title after it was made, and is not shown, is noticed after this time at the
/// latest.
constexpr auto LongestTrust = 2s;
/// A window manager puts a program's window into frames of its own, one or two deep.
constexpr int DeepestLevel = 3;
constexpr auto SettlingTime = 500ms;
constexpr quint32 LongestTitle = 256; // in units of four bytes

xcb_get_property_cookie_t askProperty(xcb_window_t window, xcb_atom_t property)
{
    return xcb_get_property(x11::connection(), 0, window, property, XCB_ATOM_ANY, 0, LongestTitle);
}

QByteArray takeProperty(xcb_get_property_cookie_t cookie)
{
    const x11::Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(x11::connection(), cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

/// The questions about one window. They all go out before the first answer is waited for.
struct Inquiry
{
    explicit Inquiry(xcb_window_t id)
        : window(id)
        , tree(xcb_query_tree(x11::connection(), id))
        , windowClass(askProperty(id, XCB_ATOM_WM_CLASS))
        , title(askProperty(id, x11::atom("_NET_WM_NAME")))
        , oldTitle(askProperty(id, XCB_ATOM_WM_NAME))
    {
    }

    /// The title of a program's own window; empty for a frame or a window inside one.
    QString takeTitle() const
    {
        const QByteArray utf8 = takeProperty(title);
        const QByteArray latin1 = takeProperty(oldTitle);
        if (takeProperty(windowClass).isEmpty())
            return {};
        return utf8.isEmpty() ? QString::fromLatin1(latin1) : QString::fromUtf8(utf8);
    }

    void takeChildren(std::vector<xcb_window_t> &to) const
    {
        const x11::Reply<xcb_query_tree_reply_t> reply(
            xcb_query_tree_reply(x11::connection(), tree, nullptr));
        if (!reply)
            return;
        const xcb_window_t *first = xcb_query_tree_children(reply.get());
        to.insert(to.end(), first, first + xcb_query_tree_children_length(reply.get()));
    }

    xcb_window_t window;
    xcb_query_tree_cookie_t tree;
    xcb_get_property_cookie_t windowClass;
    xcb_get_property_cookie_t title;
    xcb_get_property_cookie_t oldTitle;
};

bool isShown(xcb_window_t window)
{
    const auto cookie = xcb_get_window_attributes(x11::connection(), window);
    const x11::Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x11::connection(), cookie, nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

} // namespace

xcb_window_t ForeignWindows::find(const QString &title)
{
    if (!listening)
        listen();
    if (outdated || trusted.hasExpired())
        readList();
    const Entry entry = windows.value(title.toLower());
    const bool settled = entry.window && (entry.settling.hasExpired() || isShown(entry.window));
    return settled ? entry.window : xcb_window_t(XCB_WINDOW_NONE);
}

bool ForeignWindows::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    constexpr int SentByProgram = 0x80;
    switch (static_cast<const xcb_generic_event_t *>(message)->response_type & ~SentByProgram) {
    case XCB_CREATE_NOTIFY:
    case XCB_DESTROY_NOTIFY:
    case XCB_MAP_NOTIFY:
    case XCB_REPARENT_NOTIFY:
        outdated = true;
        break;
    default:
        break;
    }
    return false;
}

// Qt has its own choice of the root window's events, which this one is added to.
void ForeignWindows::listen()
{
    listening = true;
    const auto cookie = xcb_get_window_attributes(x11::connection(), x11::rootWindow());
    const x11::Reply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(x11::connection(), cookie, nullptr));
    if (!reply)
        return;
    const quint32 mask = reply->your_event_mask | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x11::connection(), x11::rootWindow(), XCB_CW_EVENT_MASK, &mask);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void ForeignWindows::readList()
{
    const QHash<QString, Entry> before = std::exchange(windows, {});
    std::vector<xcb_window_t> level;
    Inquiry(x11::rootWindow()).takeChildren(level);
    for (int depth = 1; depth <= DeepestLevel && !level.empty(); ++depth) {
        const std::vector<Inquiry> inquiries(level.begin(), level.end());
        level.clear();
        // The topmost window comes last and a framed one after its frame: the last of a title counts.
        for (const Inquiry &inquiry : inquiries) {
            inquiry.takeChildren(level);
            const QString title = inquiry.takeTitle().toLower();
            if (title.isEmpty())
                continue;
            const Entry known = before.value(title);
            windows.insert(title, known.window == inquiry.window
                                      ? known
                                      : Entry{inquiry.window, QDeadlineTimer(SettlingTime)});
        }
    }
    outdated = false;
    trusted.setRemainingTime(LongestTrust);
}
