#pragma once

#include <QStringList>

class QWidget;

/// What must hold for everything that shows in a window. Each check gives one line for each offender.
namespace pagechecks {

/// Every control tells assistive tools its name and a role that fits.
QStringList nameless(QWidget *window);
/// No control is too small to be hit.
QStringList tooSmall(QWidget *window);
/// The pointer shows what can be pressed and where can be typed.
QStringList wrongCursor(QWidget *window);
/// A button with nothing but a picture explains itself.
QStringList unexplained(QWidget *window);
/// Tab comes by every control, in reading order, and each shows that it has the focus. Moves the focus.
QStringList outOfReach(QWidget *window);
/// No text is cut, shortened or written over another.
QStringList clipped(QWidget *window);
/// Text stands out from what it is written on.
QStringList pale(QWidget *window);

} // namespace pagechecks
