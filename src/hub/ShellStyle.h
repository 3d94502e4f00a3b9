#pragma once

#include <QString>

/// The style sheets of the device page's shell and its about page.
namespace shellstyle {
extern const QString LayerButtons; ///< for the frame around the buttons of the onboard profiles
extern const QString ActionButton; ///< for a pill button 32 high on a panel
extern const QString About;
} // namespace shellstyle
