#pragma once

#include <QString>

/// Whether the program starts when the user logs in. Any thread.
namespace autostart {

/// Whether an entry for the program stands in the user's autostart.
bool isEnabled();
/// Makes the user's entry start \a program, a path with blanks and all.
void enable(const QString &program);
/// Removes the user's entry.
void disable();
/// Removes an entry that an installer may have made for all users. Without the right to do so nothing
/// happens.
void removeForAllUsers();

} // namespace autostart
