#include "MagneticStyle.h"

namespace magneticstyle {

// A step button is named for its sign: pushButtonM1 takes away, pushButtonP1 adds.
const QString Controls = QStringLiteral(
    "QPushButton[step=\"true\"] { min-width: 28px; max-width: 28px; min-height: 28px; max-height: 28px;"
    " border: 1px solid #E0E0E4; border-radius: 15px; background-color: white; color: #222222;"
    " font-size: 16px; padding: 0px 0px 2px 0px; }"
    "QPushButton[step=\"true\"]:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "QPushButton[step=\"true\"]:pressed { background-color: #F0E8FB; }"
    "QPushButton[step=\"true\"]:disabled { background-color: #F6F6F6; border-color: #EDEDED; color: #B3B3B3; "
    "}"
    "QLineEdit { min-height: 28px; max-height: 28px; border: 1px solid #DDDDE2; border-radius: 6px;"
    " background-color: #EDEDED; color: #222222; font-size: 14px; padding: 0px 2px; }"
    "QLineEdit:disabled { background-color: #F6F6F6; border-color: #EDEDED; color: #B3B3B3; }"
    "QLabel#labelTitleS1, QLabel#labelTitleS2 { color: #222222; font-size: 14px; font-weight: 600; }"
    "QLabel#labelTitleS1:disabled, QLabel#labelTitleS2:disabled { color: #B3B3B3; }");

const QString Page =
    Controls +
    QStringLiteral(
        "#frameTop, #frameBottom { background-color: #F6F6F6; border-radius: 24px; }"
        "QFrame[card=\"true\"] { background-color: white; border-radius: 20px; }"
        "#frameNavigation QPushButton { min-height: 34px; max-height: 34px; border: 1px solid #E6E6EA;"
        " border-radius: 18px; background-color: white; color: #222222; font-size: 14px; padding: 0px 4px; }"
        "#frameNavigation QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
        "#frameNavigation QPushButton:pressed { background-color: #F0E8FB; }"
        "#frameNavigation QPushButton:checked { border-color: #6329B6; background-color: #6329B6; color: "
        "white; }"
        "#frameNavigation QPushButton:checked:hover { border-color: #7440C0; background-color: #7440C0; }"
        "QPushButton[apply=\"true\"] { min-width: 64px; min-height: 32px; max-height: 32px; border: none;"
        " border-radius: 16px; background-color: #6329B6; color: white; font-size: 15px; padding: 0px 20px; }"
        "QPushButton[apply=\"true\"]:hover { background-color: #7440C0; }"
        "QPushButton[apply=\"true\"]:pressed { background-color: #52209A; }"
        "QPushButton[tile=\"true\"] { border: 2px solid #E6E6EA; border-radius: 14px; background-color: "
        "#FBFBFB; "
        "}"
        "QPushButton[tile=\"true\"]:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
        "QPushButton[tile=\"true\"]:checked { border-color: #6329B6; background-color: #FAF7FF; }"
        "QLabel { color: #222222; font-size: 14px; }"
        "QLabel[role=\"title\"] { font-size: 15px; font-weight: 600; }"
        "QLabel[role=\"note\"] { color: #6B6B75; font-size: 12px; }"
        "QLabel:disabled { color: #B3B3B3; }"
        "QRadioButton { color: #222222; font-size: 14px; spacing: 8px; min-height: 28px; padding: 0px 2px; }"
        "QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid #C4C4CC; border-radius: 9px;"
        " background-color: white; }"
        "QRadioButton::indicator:hover { border-color: #6329B6; }"
        "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid #6329B6; }");

} // namespace magneticstyle
