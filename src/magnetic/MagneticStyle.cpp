#include "MagneticStyle.h"

#include "Look.h"

namespace magneticstyle {

// A step button is named for its sign: pushButtonM1 takes away, pushButtonP1 adds.
const QString Controls = look::sheet(QStringLiteral(
    "QPushButton[step=\"true\"] { min-width: 28px; max-width: 28px; min-height: 28px; max-height: 28px;"
    " border: 1px solid @controlLine; border-radius: 15px; background-color: white; color: @text;"
    " font-size: @sign; padding: 0px 0px 2px 0px; }"
    "QPushButton[step=\"true\"]:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton[step=\"true\"]:pressed { background-color: @tintPressed; }"
    "QPushButton[step=\"true\"]:disabled { background-color: @panel; border-color: @edit; color: @disabled; "
    "}"
    "QLineEdit { min-height: 28px; max-height: 28px; border: 1px solid @controlLine; border-radius: "
    "@editRadius;"
    " background-color: @edit; color: @text; font-size: @body; padding: 0px 2px; }"
    "QLineEdit:disabled { background-color: @panel; border-color: @edit; color: @disabled; }"
    "QLabel#labelTitleS1, QLabel#labelTitleS2 { color: @text; font-size: @body; font-weight: 600; }"
    "QLabel#labelTitleS1:disabled, QLabel#labelTitleS2:disabled { color: @disabled; }"));

const QString Page =
    Controls +
    look::sheet(QStringLiteral(
        "#frameTop, #frameBottom { background-color: @panel; border-radius: @panelRadius; }"
        "QFrame[card=\"true\"] { background-color: white; border-radius: @cardRadius; }"
        "#frameNavigation QPushButton { min-height: 34px; max-height: 34px; border: 1px solid @line;"
        " border-radius: 18px; background-color: white; color: @text; font-size: @body; padding: 0px 4px; }"
        "#frameNavigation QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
        "#frameNavigation QPushButton:pressed { background-color: @tintPressed; }"
        "#frameNavigation QPushButton:checked { border-color: @accent; background-color: @accent; color: "
        "white; }"
        "#frameNavigation QPushButton:checked:hover { border-color: @accentHover; background-color: "
        "@accentHover; }"
        "QPushButton[apply=\"true\"] { min-width: 64px; min-height: 32px; max-height: 32px; border: none;"
        " border-radius: 16px; background-color: @accent; color: white; font-size: @groupTitle; padding: 0px "
        "20px; }"
        "QPushButton[apply=\"true\"]:hover { background-color: @accentHover; }"
        "QPushButton[apply=\"true\"]:pressed { background-color: @accentPressed; }"
        "QPushButton[tile=\"true\"] { border: 2px solid @line; border-radius: 14px; background-color: "
        "@key; "
        "}"
        "QPushButton[tile=\"true\"]:hover { border-color: @tintLine; background-color: @tint; }"
        "QPushButton[tile=\"true\"]:checked { border-color: @accent; background-color: @tint; }"
        "QLabel { color: @text; font-size: @body; }"
        "QLabel[role=\"title\"] { font-size: @groupTitle; font-weight: 600; }"
        "QLabel[role=\"note\"] { color: @secondary; font-size: @small; }"
        "QLabel:disabled { color: @disabled; }"
        "QRadioButton { color: @text; font-size: @body; spacing: 8px; min-height: 28px; padding: 0px 2px; }"
        "QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid @tickLine; border-radius: "
        "9px;"
        " background-color: white; }"
        "QRadioButton::indicator:hover { border-color: @accent; }"
        "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid @accent; }"));

} // namespace magneticstyle
