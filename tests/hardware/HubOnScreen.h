#pragma once

#include <functional>
#include <QMainWindow>
#include <QString>

class QAbstractButton;
class FrameDeviceShow;

/// The running hub as its user sees it.
namespace hub {

/// The main window; null before there is one.
QMainWindow *window();

template <typename Widget>
Widget *find(const char *name)
{
    return window()->findChild<Widget *>(QLatin1String(name));
}

/// Cards of devices, on whatever page the hub is.
int cards();
/// The one card; null unless there is exactly one.
FrameDeviceShow *onlyCard();
/// Waits for the hub to be through with its keyboard; false if it isn't by then. Until then it drops what is
/// written, and doesn't look for devices.
bool settle(int limitMs);
void click(const char *button);
/// Opens the page of the navigation column with that label.
void openPage(const char *label);

/// Calls \a open, which shows a dialog and comes back when it is left, and takes \a steps in it; leaves it
/// after them in any case. False if no dialog came.
bool inDialog(const std::function<void()> &open, const std::function<void(QWidget &dialog)> &steps);

/// Leaves a picture of the screen, "NAME.png", in the current folder. False if that fails.
bool picture(const QString &name);

} // namespace hub
