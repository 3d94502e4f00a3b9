#pragma once

#include <array>
#include <cstdlib>
#include <memory>
#include <QByteArray>
#include <xcb/xcb.h>

/// The X server that Qt's windows are on, for what Qt itself doesn't offer. GUI thread only.
namespace x11 {

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

/// Qt's own connection, so that requests about Qt's windows arrive in order; null where the desktop isn't
/// X11.
xcb_connection_t *connection();
xcb_window_t rootWindow();
/// Asking for an extension that the server lacks would end the connection, and the program with it.
bool hasExtension(xcb_extension_t *extension);

xcb_atom_t atom(const char *name);

/// Waits for the server to carry out a checked request about some program's window, which may be gone by now.
/// False and a line in the log if it refused.
bool isDone(xcb_void_cookie_t checkedRequest, const char *operation);
/// The same without waiting and without the line.
void letGo(xcb_void_cookie_t checkedRequest);

using MessageData = std::array<quint32, 5>;
/// Sends a client message about \a window to the window manager.
void tellWindowManager(xcb_window_t window, xcb_atom_t type, const MessageData &data);
/// Sends a client message to \a window itself.
void tellWindow(xcb_window_t window, xcb_atom_t type, const MessageData &data);

} // namespace x11
