#pragma once

class QWidget;

namespace platform {

/// Keeps a window of ours above all others, or stops doing so, without moving or re-creating it. Does nothing
/// for a window that was never shown.
void setTopmost(QWidget *window, bool topmost);

} // namespace platform
