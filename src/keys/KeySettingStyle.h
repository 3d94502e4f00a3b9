#pragma once

#include <QString>

/// Style sheets of the key settings page.
namespace keysettingstyle {

/// The modes, and what stands beside them.
extern const QString LowerHalf;

} // namespace keysettingstyle
