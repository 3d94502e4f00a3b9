#pragma once

#include <QtGlobal>
#include <vector>

/// config/enumsetting.ini beside the program, read anew at every call; an optional file. Any thread.
namespace enumsettings {

/// Vendors of the cloud driver family in the order in which they are asked; one listed twice is asked twice.
/// What is no number counts as 0, and vendor 0 means all vendors.
std::vector<quint16> cloudVendors();

} // namespace enumsettings
