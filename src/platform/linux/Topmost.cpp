#include "Topmost.h"

#include "X11.h"

#include <QWidget>

namespace platform {

void setTopmost(QWidget *window, bool topmost)
{
    constexpr quint32 Remove = 0;
    constexpr quint32 Add = 1;
    constexpr quint32 FromApplication = 1;
    if (!window || !window->testAttribute(Qt::WA_WState_Created) || !x11::connection())
        return;
    x11::tellWindowManager(xcb_window_t(window->winId()), x11::atom("_NET_WM_STATE"),
                           {topmost ? Add : Remove, x11::atom("_NET_WM_STATE_ABOVE"), 0, FromApplication, 0});
}

} // namespace platform
