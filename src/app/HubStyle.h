#pragma once

#include <QString>

/// The style sheets of the main window.
namespace hubstyle {
extern const QString Window;
extern const QString Header;
extern const QString ScanButton;
extern const QString SettingsMask;
} // namespace hubstyle
