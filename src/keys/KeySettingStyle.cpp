#include "KeySettingStyle.h"

#include "Look.h"

namespace keysettingstyle {

const QString LowerHalf = look::sheet(QStringLiteral(
    "#frameB { background-color: @panel; border-radius: @panelRadius; }"
    "#page1, #page3 { background-color: white; border-radius: @cardRadius; }"
    "#tab21, #tab22, #tab23, #tab24 { background-color: white; border-radius: @cardRadius;"
    " border-top-left-radius: 0px; }"
    "#labelFunc { color: @text; font-size: @section; font-weight: 600; }"
    "#labelNote, #labelHint, #labelTip, #label_4, #label_6, #labelTimeFlag, #labelTap, #labelHold,"
    " #labelFlag1, #labelFlag2 { color: @secondary; font-size: @note; }"
    "#frameLine { background-color: @line; border: none; }"

    "#frameMode QPushButton { border: 1px solid @line; border-radius: 16px; background-color: white;"
    " color: @text; font-size: @body; padding: 0px; }"
    "#frameMode QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "#frameMode QPushButton:pressed { background-color: @tintPressed; }"
    "#frameMode QPushButton:checked { border-color: @accent; background-color: @accent; color: white; }"
    "#frameMode QPushButton:checked:hover { border-color: @accentHover; background-color: @accentHover; }"

    // A key cap, as on the on-screen keyboard.
    "#pushButton_DKS, #pushButton_MT, #pushButton_TGL, #pushButton_Snap1, #pushButton_Snap2 {"
    " border: 1px solid @tintLine; border-bottom: 2px solid #CDB2F4; border-radius: @keyRadius;"
    " background-color: @tint; color: @text; font-size: @groupTitle; font-weight: 600; padding: 0px 4px; }"
    "#pushButton_Snap1:hover, #pushButton_Snap2:hover { background-color: @tintPressed; }"

    "FittingButton { border: 1px solid @line; border-radius: @cardRadius; background-color: @panel;"
    " color: @text; font-size: @body; padding: 0px; }"
    "FittingButton#pushButton_FuncKey { border-radius: 13px; font-size: @small; }"
    "FittingButton:hover { border-color: @tintLine; background-color: @tint; }"
    "FittingButton:pressed { background-color: @tintPressed; }"

    "#pushButton_OKDKS, #pushButton_OKMT, #pushButton_OKTGL, #pushButton_OKSnap {"
    " border: none; border-radius: 18px; background-color: @accent; color: white; font-size: @body;"
    " padding: 0px 16px; }"
    "#pushButton_OKDKS:hover, #pushButton_OKMT:hover, #pushButton_OKTGL:hover, #pushButton_OKSnap:hover {"
    " background-color: @accentHover; }"
    "#pushButton_OKDKS:pressed, #pushButton_OKMT:pressed, #pushButton_OKTGL:pressed,"
    " #pushButton_OKSnap:pressed { background-color: @accentPressed; }"

    "#labelPress1, #labelPress2, #labelRelease1, #labelRelease2 { color: @secondary; font-size: @note; }"
    "#labelPress1, #labelRelease2 { background-color: #F3EDFB; border-radius: 12px; color: @accent; }"
    "#labelPress1:hover, #labelRelease2:hover { background-color: #E6DAF6; }"

    "QLineEdit { border-color: @edit; }"
    "QLineEdit:focus { border-color: @focusLine; }"

    "QRadioButton { color: @text; font-size: @body; spacing: 8px; padding: 0px 8px; }"
    "QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid @tickLine; border-radius: 9px;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: @accent; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid @accent; }"));

} // namespace keysettingstyle
