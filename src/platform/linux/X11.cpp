#include "X11.h"

#include "PlatformLog.h"

#include <QGuiApplication>
#include <QHash>

namespace x11 {

namespace {

void sendMessage(xcb_window_t to, quint32 mask, xcb_window_t window, xcb_atom_t type, const MessageData &data)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::copy(data.begin(), data.end(), message.data.data32);
    const auto request =
        xcb_send_event_checked(connection(), 0, to, mask, reinterpret_cast<const char *>(&message));
    isDone(request, "send a message to");
}

} // namespace

xcb_connection_t *connection()
{
    const auto *application =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return application ? application->connection() : nullptr;
}

xcb_window_t rootWindow()
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

bool hasExtension(xcb_extension_t *extension)
{
    const xcb_query_extension_reply_t *reply = xcb_get_extension_data(connection(), extension);
    return reply && reply->present;
}

xcb_atom_t atom(const char *name)
{
    static QHash<QByteArray, xcb_atom_t> known;
    const auto found = known.constFind(name);
    if (found != known.constEnd())
        return *found;
    const auto cookie = xcb_intern_atom(connection(), 0, quint16(qstrlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection(), cookie, nullptr));
    return *known.insert(name, reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE));
}

bool isDone(xcb_void_cookie_t checkedRequest, const char *operation)
{
    const Reply<xcb_generic_error_t> error(xcb_request_check(connection(), checkedRequest));
    if (error)
        qCInfo(lcPlatform) << "The X server refuses to" << operation << "window" << error->resource_id;
    return !error;
}

void letGo(xcb_void_cookie_t checkedRequest)
{
    xcb_discard_reply(connection(), checkedRequest.sequence);
    xcb_flush(connection());
}

void tellWindowManager(xcb_window_t window, xcb_atom_t type, const MessageData &data)
{
    sendMessage(rootWindow(), XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                window, type, data);
}

void tellWindow(xcb_window_t window, xcb_atom_t type, const MessageData &data)
{
    sendMessage(window, XCB_EVENT_MASK_NO_EVENT, window, type, data);
}

} // namespace x11
