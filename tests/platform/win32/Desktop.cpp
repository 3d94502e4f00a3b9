#include "Desktop.h"

#include <QByteArray>
#include <windows.h>

namespace {

HWND handle(quintptr window)
{
    return reinterpret_cast<HWND>(window);
}

} // namespace

struct Desktop::Private
{
};

Desktop::Desktop()
{
    qputenv("QT_QPA_PLATFORM", "windows");
}

Desktop::~Desktop() = default;

bool Desktop::isShown(quintptr window)
{
    return IsWindowVisible(handle(window));
}

quintptr Desktop::parentOf(quintptr window)
{
    return quintptr(GetAncestor(handle(window), GA_PARENT));
}

bool Desktop::isTopmost(quintptr window)
{
    return GetWindowLongPtrW(handle(window), GWL_EXSTYLE) & WS_EX_TOPMOST;
}

bool Desktop::covers(quintptr window, QPoint point)
{
    const HRGN shape = CreateRectRgn(0, 0, 0, 0);
    const bool inside =
        GetWindowRgn(handle(window), shape) != ERROR && PtInRegion(shape, point.x(), point.y());
    DeleteObject(shape);
    return inside;
}

void Desktop::holdKey(Qt::Key key, bool down)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key == Qt::Key_Escape ? VK_ESCAPE : key == Qt::Key_Control ? VK_CONTROL : 'D';
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}
