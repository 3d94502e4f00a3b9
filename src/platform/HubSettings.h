#pragma once

class QSettings;

namespace platform {

/// The values that the hub keeps and shares with the sibling drivers: the brand's key of the user's registry
/// on Windows, an INI file in the user's configuration folder on Linux. One object a brand for the whole run;
/// GUI thread. In QStandardPaths' test mode, which must be set before the first call, they are other ones,
/// and the program's own.
QSettings &hubSettings(bool secondBrand);

/// Makes values that another program wrote visible. Cheap if there are none.
void fetchForeignValues(QSettings &settings);

} // namespace platform
