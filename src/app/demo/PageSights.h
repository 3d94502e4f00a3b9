#pragma once

#include <array>

/// What the tour of a native keyboard's pages shows: a picture's name, and the way to what is on it from
/// where the last one was taken. A way is a row of words. Where a word names something, the first of that
/// name that can be seen is meant, in the dialog on top if there is one; folder/name looks in there only.
///
///   name          presses the button, the label, or the place of the navigation
///   name:number   shows that tab of a tab widget
///   name[r,c]     presses the cell of a table
///   name=text     types the text into a line edit, or sets a slider, a number or a choice
///   +id           presses the light effect with that number (two hexadecimal digits)
///   @code         presses the key with that key code (hexadecimal) on the keyboard that shows
///   &code         presses it with the right button
///   ?code         rests the pointer on it; for <name on anything else
///   *code         a finger holds down the key of the keyboard itself for a while
///   ~letters      types on the computer's own keyboard; ~Enter is that key
///   .             waits for what takes its time
///   !word         the same as the word, which opens a dialog
///   ^             leaves the dialog without a change
///   _             leaves a small window that isn't one, such as a menu
struct PageSight
{
    const char *picture;
    const char *way;
};

constexpr std::array PageSights{
    PageSight{"home", "label1 . . ."},
    PageSight{"home-effect", "+04 comboBoxPic=2 frameLEDBright/horizontalSlider=3"},
    PageSight{"home-colour", "tabWidget:1"},
    PageSight{"home-strip", "tabWidget:2 pushButton2 pushButtonCol1 radioButtonL3 radioButtonS2"},
    PageSight{"home-picker", "<labelPickup labelPickup ."},
    PageSight{"macros-empty", "DialogColorPicker/pushButton tabWidget:0 label4"},
    PageSight{"macros-added", "pushButtonAddMacro"},
    PageSight{"macros-insert", "!pushButtonInsert"},
    PageSight{"macros-recording", "^ pushButtonRecord ~GGWP"},
    PageSight{
        "macros",
        "pushButtonRecord toolButtonRename lineEditName=GGWP ~Enter spinBoxDelay=30 pushButtonSetDelay"},
    PageSight{"macros-step", "MacroSquare"},
    PageSight{"keys-custom", "_ label2 pushButtonSet1"},
    PageSight{"picker-keys", "!@39 pushButton_Hid224 pushButton_Hid006"},
    PageSight{"picker-macros", "pushButtonOK !@3A tabWidgetKey:1 pushButton_Micro08"},
    PageSight{"picker-system", "pushButtonOK !@45 tabWidgetKey:2 pushButton_F09"},
    PageSight{"picker-mouse", "pushButtonOK !@35 tabWidgetKey:3 pushButton_Mouse03"},
    PageSight{"keys-disable", "pushButtonOK &E3"},
    PageSight{"keys-bound", "CustomTooltip ?39"},
    PageSight{"keys-dks", "pushButtonSet2 tabWidgetAdv:0 @08"},
    PageSight{"picker-advanced", "!frameDKS1/pushButton_FuncKey pushButton_Hid026"},
    PageSight{"keys-dks-travel", "pushButtonOK !labelPress1"},
    PageSight{"keys-dks-set",
              "^ !frameDKS2/pushButton_FuncKey pushButton_Hid225 pushButtonOK pushButton_OKDKS ?08"},
    PageSight{"keys-mt", "tabWidgetAdv:1 @2B !pushButton_MT1 pushButton_Hid043 pushButtonOK "
                         "!pushButton_MT2 pushButton_Hid225 pushButtonOK pushButton_OKMT"},
    PageSight{"keys-tgl",
              "tabWidgetAdv:2 @19 !pushButton_TGL1 pushButton_Hid025 pushButtonOK pushButton_OKTGL"},
    PageSight{"keys-snap", "tabWidgetAdv:3 radioButton_Snap1 @04 radioButton_Snap2 @07 pushButton_OKSnap"},
    PageSight{"keys-options", "pushButtonSet3"},
    PageSight{"keys-fn", "pushButtonSet4 ?3A"},
    PageSight{"magnetic-travel",
              "label3 pushButtonSet0 @1A @04 @16 @07 frameLinear/lineEditValue1=0.8 pushButtonSetRT . . ."},
    PageSight{"magnetic-rapid",
              "checkBoxFullRT checkBoxRTPress frame1/lineEditValue1=0.3 . pushButtonSetRT . . ."},
    PageSight{"magnetic-dead-zones", "pushButtonSet1 @1A @04 @16 @07"},
    PageSight{"magnetic-switches", "pushButtonSet2 pushButtonMT6 @1A @04 @16 @07"},
    PageSight{"magnetic-stabilisation", "pushButtonSet3"},
    PageSight{"magnetic-test", "pushButtonSet4"},
    PageSight{"magnetic-testing", "checkBoxKeytest0 checkBoxKeytest1 ~WASD *1A"},
    PageSight{"light-empty", "checkBoxKeytest0 checkBoxKeytest1 label5"},
    PageSight{"light-picker", "<labelColor labelColor . lineEditR=255 lineEditG=60 lineEditB=0"},
    PageSight{"light",
              "DialogColorPicker/pushButton @1A @04 @16 @07 lineEditName=WASD pushButtonSave . . . . . ."},
    PageSight{"light-question", "!tableView[0,2]"},
    PageSight{"calibration-guide", "^ !pushButtonFixline"},
    PageSight{"calibration", "!pushButtonStart *29 *3A *3B *1E *1F *14 *1A *08 *04 *16 *07 . ."},
    PageSight{"settings", "^ !pushButtonSet"},
    PageSight{"close-question", "^ !pushButtonExit"},
    PageSight{"still-there", "^"},
};
