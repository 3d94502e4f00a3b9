#include "SystemSiblings.h"

#include "EmbeddedWindows.h"
#include "ForeignWindows.h"
#include "PlatformLog.h"
#include "X11.h"

#include <array>
#include <cmath>
#include <vector>
#include <xcb/shape.h>

namespace {

xcb_window_t id(SiblingOperations::Window window)
{
    return xcb_window_t(window);
}

void configure(SiblingOperations::Window window, quint16 mask, const std::vector<quint32> &values)
{
    x11::isDone(xcb_configure_window_checked(x11::connection(), id(window), mask, values.data()), "place");
}

} // namespace

struct SystemSiblings::Desktop
{
    /// Whether the desktop has foreign windows at all; says so once for each operation if it hasn't.
    bool offers(const char *operation)
    {
        if (x11::connection())
            return true;
        if (!told.contains(operation)) {
            told.insert(operation);
            qCInfo(lcPlatform) << "This desktop has no way to" << operation << "windows of other programs";
        }
        return false;
    }

    ForeignWindows windows;
    EmbeddedWindows embedded;
    QSet<QByteArray> told;
};

SystemSiblings::SystemSiblings(QSettings &shared)
    : settings(shared)
    , desktop(std::make_unique<Desktop>())
{
}

SystemSiblings::~SystemSiblings() = default;

SiblingOperations::Window SystemSiblings::findWindow(const QString &title)
{
    return desktop->offers("find") ? desktop->windows.find(title) : 0;
}

// Of all styles the frame is what a window manager can be asked for; the hint has been common to all of them
// since Motif.
void SystemSiblings::setStyles(Window window, quint32 style, quint32)
{
    constexpr quint32 CaptionStyle = 0x00C00000;
    constexpr quint32 DecorationsFlag = 1u << 1;
    if (!desktop->offers("style"))
        return;
    const quint32 decorations = (style & CaptionStyle) == CaptionStyle ? 1 : 0;
    const std::array<quint32, 5> hints{DecorationsFlag, 0, decorations, 0, 0};
    const xcb_atom_t property = x11::atom("_MOTIF_WM_HINTS");
    x11::isDone(xcb_change_property_checked(x11::connection(), XCB_PROP_MODE_REPLACE, id(window), property,
                                            property, 32, quint32(hints.size()), hints.data()),
                "style");
}

void SystemSiblings::setParent(Window window, Window parent)
{
    if (!desktop->offers("embed"))
        return;
    hide(window); // withdrawn, so that the window manager lets go of it
    desktop->embedded.take(id(window), id(parent));
}

void SystemSiblings::place(Window window, Order order, const QRect &rect, unsigned flags)
{
    if (!desktop->offers("place"))
        return;
    if (flags & HideWindow)
        hide(window);
    quint16 mask = 0;
    std::vector<quint32> values;
    if (!(flags & NoMove)) {
        mask |= XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y;
        values.insert(values.end(), {quint32(rect.x()), quint32(rect.y())});
    }
    if (!(flags & NoSize)) {
        mask |= XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT;
        values.insert(values.end(), {quint32(rect.width()), quint32(rect.height())});
    }
    mask |= XCB_CONFIG_WINDOW_STACK_MODE;
    values.push_back(order == Order::Bottom ? XCB_STACK_MODE_BELOW : XCB_STACK_MODE_ABOVE);
    configure(window, mask, values);
    if (flags & ShowWindow)
        show(window);
}

void SystemSiblings::show(Window window)
{
    if (!desktop->offers("show"))
        return;
    x11::isDone(xcb_map_window_checked(x11::connection(), id(window)), "show");
}

void SystemSiblings::hide(Window window)
{
    if (!desktop->offers("hide"))
        return;
    // Comes several times a second while the hub shows, so nothing is waited for.
    xcb_connection_t *server = x11::connection();
    x11::letGo(xcb_unmap_window_checked(server, id(window)));
    if (desktop->embedded.contains(id(window)))
        return;
    // A top-level window is withdrawn only once its manager has been told, too.
    xcb_unmap_notify_event_t notice{};
    notice.response_type = XCB_UNMAP_NOTIFY;
    notice.event = x11::rootWindow();
    notice.window = id(window);
    x11::letGo(
        xcb_send_event_checked(server, 0, x11::rootWindow(),
                               XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                               reinterpret_cast<const char *>(&notice)));
}

void SystemSiblings::bringToTop(Window window)
{
    if (desktop->offers("raise"))
        configure(window, XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_ABOVE});
}

void SystemSiblings::move(Window window, const QRect &rect)
{
    if (desktop->offers("move")) {
        configure(window,
                  XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                      XCB_CONFIG_WINDOW_HEIGHT,
                  {quint32(rect.x()), quint32(rect.y()), quint32(rect.width()), quint32(rect.height())});
    }
}

void SystemSiblings::setForeground(Window window)
{
    constexpr quint32 FromPager = 2;
    if (desktop->offers("activate")) {
        x11::tellWindowManager(id(window), x11::atom("_NET_ACTIVE_WINDOW"),
                               {FromPager, XCB_CURRENT_TIME, 0, 0, 0});
    }
}

void SystemSiblings::redraw(Window window, unsigned)
{
    if (!desktop->offers("redraw"))
        return;
    constexpr quint8 WithExposure = 1;
    x11::isDone(xcb_clear_area_checked(x11::connection(), WithExposure, id(window), 0, 0, 0, 0), "redraw");
}

QRect SystemSiblings::rect(Window window)
{
    if (!desktop->offers("measure"))
        return {};
    xcb_connection_t *server = x11::connection();
    const auto geometryCookie = xcb_get_geometry(server, id(window));
    const auto originCookie = xcb_translate_coordinates(server, id(window), x11::rootWindow(), 0, 0);
    const x11::Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(server, geometryCookie, nullptr));
    const x11::Reply<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(server, originCookie, nullptr));
    if (!geometry || !origin)
        return {};
    return {origin->dst_x, origin->dst_y, geometry->width, geometry->height};
}

void SystemSiblings::shapeRoundBottom(Window window, const QSize &size, int cornerSize, int squareTop)
{
    if (!desktop->offers("shape") || !x11::hasExtension(&xcb_shape_id))
        return;
    // One rectangle for all that is as wide as the window, and one a line for the round corners below it.
    const int radius = std::min(cornerSize / 2, size.height() / 2);
    const int straight = std::max(squareTop, size.height() - radius);
    std::vector<xcb_rectangle_t> lines{{0, 0, quint16(size.width()), quint16(straight)}};
    for (int y = straight; y < size.height(); ++y) {
        const double down = y + 0.5 - (size.height() - radius);
        const int inset = int(std::lround(radius - std::sqrt(radius * radius - down * down)));
        lines.push_back({qint16(inset), qint16(y), quint16(std::max(0, size.width() - 2 * inset)), 1});
    }
    x11::isDone(xcb_shape_rectangles_checked(x11::connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                                             XCB_CLIP_ORDERING_YX_BANDED, id(window), 0, 0,
                                             quint32(lines.size()), lines.data()),
                "shape");
}

void SystemSiblings::postClose(Window window)
{
    if (desktop->offers("close")) {
        x11::tellWindow(id(window), x11::atom("WM_PROTOCOLS"),
                        {x11::atom("WM_DELETE_WINDOW"), XCB_CURRENT_TIME, 0, 0, 0});
    }
}
