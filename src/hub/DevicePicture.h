#pragma once

#include <QString>

class QLabel;
class QWidget;

/// The pictures of devices, from the images folder beside the program.
namespace devicepicture {

/// The picture of a device of that name, as a path; empty if there is none. Nothing outside the folder is
/// opened, whatever the name is.
QString ofName(const QString &deviceName);

/// Shows a picture on a card, or the default one of the device type if it can't be read, and gives label and
/// card their sizes from it; \a gray shows it as out of use. Returns the path of what is shown.
QString show(QWidget *card, QLabel *label, const QString &path, int deviceType, bool gray);

/// The resource path of the picture of a connection; that of the cable for one that isn't known.
QString ofConnection(int connectionType);

} // namespace devicepicture
