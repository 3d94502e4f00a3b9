#pragma once

#include <QString>

/// The program that the user's autostart would start, read as the desktop reads it; empty for none.
QString autostartedProgram();

/// Switches the entry off as a desktop does it in its own settings.
void switchOffInTheDesktop();
