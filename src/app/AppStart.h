#pragma once

#include <functional>

/// Prepares the process (scaling, locale, translators, fonts, style), shows the main window and runs until it
/// is left; gives the exit code. \a beforeWindow, if any, is called with the application in place and no
/// window yet.
int runHub(int argc, char **argv, const std::function<void()> &beforeWindow = {});
