#pragma once

class CustumSlider;
class QLabel;
class QLineEdit;
class QPushButton;

/// What a travel is set with: a titled slider, and a text box between two step buttons.
struct TravelControls
{
    QLabel *title;
    CustumSlider *slider;
    QPushButton *minus;
    QLineEdit *box;
    QPushButton *plus;
};

namespace travelcontrols {

/// Lets the buttons, and the arrow keys in the box, take \a step from the slider's value and add it, and gives all but the slider, which has
/// its own, a focus ring.
void connectSteps(const TravelControls &controls, int step);

/// Tells screen readers which travel each control belongs to; to be called again in another language.
void showNames(const TravelControls &controls);

} // namespace travelcontrols
