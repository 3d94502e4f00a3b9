#pragma once

#include <array>

/// What the tour of a native keyboard's pages shows: a picture's name, and the way to what is on it from
/// where the last one was taken. A way is a row of words:
///
///   name         presses the button, or the place of the navigation, of that name
///   @code        clicks the key with that key code (hexadecimal) on the keyboard that shows
///   name:number  shows that tab of a tab widget
///   !word        the same as the word, which opens a dialog
///   ^            leaves the dialog without a change
struct PageSight
{
    const char *picture;
    const char *way;
};

constexpr std::array PageSights{
    PageSight{"home", "label1"},
    PageSight{"keys-custom", "label2 pushButtonSet1"},
    PageSight{"picker-keys", "!@04"},
    PageSight{"picker-macros", "tabWidgetKey:1"},
    PageSight{"picker-system", "tabWidgetKey:2"},
    PageSight{"picker-mouse", "tabWidgetKey:3"},
    PageSight{"keys-dks", "^ pushButtonSet2 tabWidgetAdv:0 @04"},
    PageSight{"picker-advanced", "!pushButton_FuncKey"},
    PageSight{"keys-mt", "^ tabWidgetAdv:1 @05"},
    PageSight{"keys-tgl", "tabWidgetAdv:2 @06"},
    PageSight{"keys-snap", "tabWidgetAdv:3 @07"},
    PageSight{"keys-options", "pushButtonSet3"},
    PageSight{"keys-fn", "pushButtonSet4"},
    PageSight{"magnetic-travel", "label3 pushButtonSet0 @14 @1A @08"},
    PageSight{"magnetic-dead-zones", "pushButtonSet1"},
    PageSight{"magnetic-switches", "pushButtonSet2"},
    PageSight{"magnetic-stabilisation", "pushButtonSet3"},
    PageSight{"magnetic-test", "pushButtonSet4"},
    PageSight{"macros", "label4"},
    PageSight{"macros-added", "pushButtonAddMacro"},
    PageSight{"macros-insert", "!pushButtonInsert"},
    PageSight{"light", "^ label5 @14 @1A @08"},
    PageSight{"calibration-guide", "!pushButtonFixline"},
    PageSight{"calibration", "!pushButtonStart"},
    PageSight{"settings", "^ !pushButtonSet"},
    PageSight{"close-question", "^ !pushButtonExit"},
    PageSight{"still-there", "^"},
};
