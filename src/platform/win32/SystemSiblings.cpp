#include "SystemSiblings.h"

#include <windows.h>

namespace {

HWND handle(SiblingOperations::Window window)
{
    return reinterpret_cast<HWND>(window);
}

HWND insertAfter(SiblingOperations::Order order)
{
    switch (order) {
    case SiblingOperations::Order::Top:
        return HWND_TOP;
    case SiblingOperations::Order::Bottom:
        return HWND_BOTTOM;
    case SiblingOperations::Order::Topmost:
        return HWND_TOPMOST;
    case SiblingOperations::Order::NotTopmost:
        return HWND_NOTOPMOST;
    }
    return HWND_TOP;
}

} // namespace

struct SystemSiblings::Desktop
{
};

SystemSiblings::SystemSiblings(QSettings &shared)
    : settings(shared)
{
}

SystemSiblings::~SystemSiblings() = default;

SiblingOperations::Window SystemSiblings::findWindow(const QString &title)
{
    return Window(FindWindowW(nullptr, reinterpret_cast<const wchar_t *>(title.utf16())));
}

void SystemSiblings::setStyles(Window window, quint32 style, quint32 extendedStyle)
{
    SetWindowLongPtrW(handle(window), GWL_STYLE, LONG_PTR(style));
    SetWindowLongPtrW(handle(window), GWL_EXSTYLE, LONG_PTR(extendedStyle));
}

void SystemSiblings::setParent(Window window, Window parent)
{
    SetParent(handle(window), handle(parent));
}

void SystemSiblings::place(Window window, Order order, const QRect &rect, unsigned flags)
{
    SetWindowPos(handle(window), insertAfter(order), rect.x(), rect.y(), rect.width(), rect.height(), flags);
}

void SystemSiblings::show(Window window)
{
    ::ShowWindow(handle(window), SW_SHOW);
}

void SystemSiblings::hide(Window window)
{
    ::ShowWindow(handle(window), SW_HIDE);
}

void SystemSiblings::bringToTop(Window window)
{
    BringWindowToTop(handle(window));
}

void SystemSiblings::move(Window window, const QRect &rect)
{
    MoveWindow(handle(window), rect.x(), rect.y(), rect.width(), rect.height(), TRUE);
}

void SystemSiblings::setForeground(Window window)
{
    SetForegroundWindow(handle(window));
}

void SystemSiblings::redraw(Window window, unsigned flags)
{
    RedrawWindow(handle(window), nullptr, nullptr, flags);
}

QRect SystemSiblings::rect(Window window)
{
    RECT rect{};
    if (!GetWindowRect(handle(window), &rect))
        return {};
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

void SystemSiblings::shapeRoundBottom(Window window, const QSize &size, int cornerSize, int squareTop)
{
    const int width = size.width();
    const int height = size.height();
    const HRGN round = CreateRoundRectRgn(0, 0, width, height, cornerSize, cornerSize);
    const HRGN whole = CreateRectRgn(0, 0, width, height);
    const HRGN top = CreateRectRgn(0, 0, width, squareTop);
    const HRGN shape = CreateRectRgn(0, 0, 0, 0);
    CombineRgn(shape, round, whole, RGN_AND);
    CombineRgn(shape, shape, top, RGN_OR);
    if (!SetWindowRgn(handle(window), shape, TRUE)) // it belongs to the window from here on
        DeleteObject(shape);
    for (const HRGN source : {round, whole, top})
        DeleteObject(source);
}

void SystemSiblings::postClose(Window window)
{
    PostMessageW(handle(window), WM_CLOSE, 0, 0);
}
