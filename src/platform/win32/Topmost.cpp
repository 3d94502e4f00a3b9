#include "Topmost.h"

#include <QWidget>
#include <windows.h>

namespace platform {

void setTopmost(QWidget *window, bool topmost)
{
    if (!window || !window->testAttribute(Qt::WA_WState_Created))
        return;
    SetWindowPos(reinterpret_cast<HWND>(window->winId()), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE);
}

} // namespace platform
