#pragma once

#include <QString>

/// Style texts of the magnetic pages.
namespace magneticstyle {

/// Step buttons and text boxes of travels, and the titles above them.
extern const QString Controls;

/// The same, and panels, cards, texts and buttons of FrameMagic.
extern const QString Page;

} // namespace magneticstyle
