#pragma once

class DemoDesk;
class QRect;
class QString;

/// The hands of the tour: they do what a user would, with the hub's widgets and with the keys of the virtual
/// keyboards. GUI thread only.
namespace demohands {

/// Carries out one word of a way (see PageSights.h), but for the mark of a dialog. False if there is nothing
/// to be seen that it could mean.
bool carryOut(const QString &word, DemoDesk &desk);

/// Puts the pointer where it touches nothing of the hub.
void parkPointer();

/// What is to be seen of the program, in coordinates of the screen: its windows, with all that lies on them.
QRect whatShows();

} // namespace demohands
