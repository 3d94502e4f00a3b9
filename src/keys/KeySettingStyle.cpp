#include "KeySettingStyle.h"

namespace keysettingstyle {

const QString LowerHalf = QStringLiteral(
    "#frameB { background-color: #F6F6F6; border-radius: 24px; }"
    "#page1, #page3 { background-color: white; border-radius: 20px; }"
    "#tab21, #tab22, #tab23, #tab24 { background-color: white; border-radius: 20px;"
    " border-top-left-radius: 0px; }"
    "#labelFunc { color: #222222; font-size: 18px; font-weight: 600; }"
    "#labelNote, #labelHint, #labelTip, #label_4, #label_6, #labelTimeFlag, #labelTap, #labelHold,"
    " #labelFlag1, #labelFlag2 { color: #6B6B75; font-size: 13px; }"
    "#frameLine { background-color: #E6E6EA; border: none; }"

    "#frameMode QPushButton { border: 1px solid #E6E6EA; border-radius: 16px; background-color: white;"
    " color: #222222; font-size: 14px; padding: 0px; }"
    "#frameMode QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "#frameMode QPushButton:pressed { background-color: #F0E8FB; }"
    "#frameMode QPushButton:checked { border-color: #6329B6; background-color: #6329B6; color: white; }"
    "#frameMode QPushButton:checked:hover { border-color: #7440C0; background-color: #7440C0; }"

    // A key cap, as on the on-screen keyboard.
    "#pushButton_DKS, #pushButton_MT, #pushButton_TGL, #pushButton_Snap1, #pushButton_Snap2 {"
    " border: 1px solid #D8BDFF; border-bottom: 2px solid #CDB2F4; border-radius: 10px;"
    " background-color: #FAF7FF; color: #222222; font-size: 15px; font-weight: 600; padding: 0px 4px; }"
    "#pushButton_Snap1:hover, #pushButton_Snap2:hover { background-color: #F0E8FB; }"

    "FittingButton { border: 1px solid #E6E6EA; border-radius: 20px; background-color: #F6F6F6;"
    " color: #222222; font-size: 14px; padding: 0px; }"
    "FittingButton#pushButton_FuncKey { border-radius: 13px; font-size: 12px; }"
    "FittingButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "FittingButton:pressed { background-color: #F0E8FB; }"

    "#pushButton_OKDKS, #pushButton_OKMT, #pushButton_OKTGL, #pushButton_OKSnap {"
    " border: none; border-radius: 18px; background-color: #6329B6; color: white; font-size: 14px;"
    " padding: 0px 16px; }"
    "#pushButton_OKDKS:hover, #pushButton_OKMT:hover, #pushButton_OKTGL:hover, #pushButton_OKSnap:hover {"
    " background-color: #7440C0; }"
    "#pushButton_OKDKS:pressed, #pushButton_OKMT:pressed, #pushButton_OKTGL:pressed,"
    " #pushButton_OKSnap:pressed { background-color: #52209A; }"

    "#labelPress1, #labelPress2, #labelRelease1, #labelRelease2 { color: #6B6B75; font-size: 13px; }"
    "#labelPress1, #labelRelease2 { background-color: #F3EDFB; border-radius: 12px; color: #6329B6; }"
    "#labelPress1:hover, #labelRelease2:hover { background-color: #E6DAF6; }"

    "QLineEdit { border-color: #EDEDED; }"
    "QLineEdit:focus { border-color: #A17FD3; }"

    "QRadioButton { color: #222222; font-size: 14px; spacing: 8px; padding: 0px 8px; }"
    "QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid #B0B0B8; border-radius: 9px;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: #6329B6; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid #6329B6; }");

} // namespace keysettingstyle
