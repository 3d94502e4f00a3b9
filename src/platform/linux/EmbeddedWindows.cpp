#include "EmbeddedWindows.h"

#include "X11.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

// A window manager that learns late that a window was withdrawn puts it back on the desktop.
constexpr auto InsistPeriod = 100ms;
constexpr int InsistRounds = 10;

xcb_window_t parentOf(xcb_window_t window)
{
    const auto cookie = xcb_query_tree(x11::connection(), window);
    const x11::Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(x11::connection(), cookie, nullptr));
    return tree ? tree->parent : xcb_window_t(XCB_WINDOW_NONE);
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
    if (!reparent(window, parent))
        return;
    parents.insert(window, parent);
    roundsLeft = InsistRounds;
    insistTimer.start(InsistPeriod);
}

void EmbeddedWindows::insist()
{
    if (--roundsLeft <= 0)
        insistTimer.stop();
    for (auto window = parents.cbegin(); window != parents.cend();) {
        const xcb_window_t actual = parentOf(window.key());
        const bool gone = actual == XCB_WINDOW_NONE;
        if (gone || (actual != window.value() && !reparent(window.key(), window.value())))
            window = parents.erase(window);
        else
            ++window;
    }
}
