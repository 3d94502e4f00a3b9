#include "EmbeddedWindows.h"

#include "X11.h"

#include <chrono>
#include <QDeadlineTimer>
#include <QThread>

using namespace std::chrono_literals;

namespace {

// How long to wait for the window manager to let go of a window. One that does so later puts it back on the
// desktop, from where it is taken again.
constexpr auto ReleasePatience = 100ms;
constexpr auto ReleaseCheck = 1ms;
constexpr auto InsistPeriod = 100ms;
constexpr int InsistRounds = 10;

xcb_window_t parentOf(xcb_window_t window)
{
    const auto cookie = xcb_query_tree(x11::connection(), window);
    const x11::Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(x11::connection(), cookie, nullptr));
    return tree ? tree->parent : xcb_window_t(XCB_WINDOW_NONE);
}

bool isManaged(xcb_window_t window)
{
    constexpr quint32 Withdrawn = 0;
    const xcb_atom_t property = x11::atom("WM_STATE");
    const auto cookie = xcb_get_property(x11::connection(), 0, window, property, property, 0, 1);
    const x11::Reply<xcb_get_property_reply_t> state(
        xcb_get_property_reply(x11::connection(), cookie, nullptr));
    return state && state->value_len > 0 &&
           *static_cast<const quint32 *>(xcb_get_property_value(state.get())) != Withdrawn;
}

void waitForRelease(xcb_window_t window)
{
    const QDeadlineTimer patience(ReleasePatience);
    while (!patience.hasExpired() && (isManaged(window) || parentOf(window) != x11::rootWindow()))
        QThread::msleep(ReleaseCheck.count());
}

bool reparent(xcb_window_t window, xcb_window_t parent)
{
    return x11::isDone(xcb_reparent_window_checked(x11::connection(), window, parent, 0, 0), "embed");
}

} // namespace

EmbeddedWindows::EmbeddedWindows()
{
    connect(&insistTimer, &QTimer::timeout, this, &EmbeddedWindows::insist);
}

void EmbeddedWindows::take(xcb_window_t window, xcb_window_t parent)
{
    if (!contains(window))
        waitForRelease(window);
    if (!reparent(window, parent))
        return;
    parents.insert(window, parent);
    anyTaken = true;
    roundsLeft = InsistRounds;
    insistTimer.start(InsistPeriod);
}

void EmbeddedWindows::insist()
{
    if (--roundsLeft <= 0)
        insistTimer.stop();
    for (auto window = parents.begin(); window != parents.end();) {
        const xcb_window_t actual = parentOf(window.key());
        const bool gone = actual == XCB_WINDOW_NONE;
        if (gone || (actual != window.value() && !reparent(window.key(), window.value()))) {
            window = parents.erase(window);
        } else {
            ++window;
        }
    }
}
