#pragma once

class QSettings;

namespace platform {

/// The values that the hub keeps and shares with the sibling drivers: the brand's key of the user's registry
/// on Windows, an INI file in the user's configuration folder on Linux. One object a brand for the whole run;
/// GUI thread.
QSettings &hubSettings(bool secondBrand);

} // namespace platform
