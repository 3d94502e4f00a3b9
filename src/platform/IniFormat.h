#pragma once

#include <QSettings>

namespace platform {

/// The format of the hub's own settings files: INI as QSettings has it, for texts, numbers and truth values.
/// QSettings' own writer puts a cut file in the place of a good one when the disk is full; with this format
/// the old file stays, the status is an error, and one line in the log says so. GUI thread.
QSettings::Format iniFormat();

} // namespace platform
