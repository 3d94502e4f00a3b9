#pragma once

#include <QString>

/// Style sheets of the colour picker and of the effect controls.
namespace lightstyle {

extern const QString Picker;

/// A panel of effect controls, whatever its kind: title, note texts, and what each of them uses of buttons,
/// radio buttons, combo box and scroll bar.
extern const QString Panel;

} // namespace lightstyle
