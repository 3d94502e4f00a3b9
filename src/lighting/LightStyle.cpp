#include "LightStyle.h"

namespace lightstyle {

const QString Picker = QStringLiteral(
    "#DialogColorPicker { background-color: white; border: 1px solid #E0E0E4; border-radius: 20px; }"
    "QLineEdit { min-height: 28px; max-height: 28px; border: 1px solid #DDDDE2; border-radius: 6px;"
    " background-color: #EDEDED; color: #222222; font-size: 14px; padding: 0px 2px; }"
    "QLineEdit:focus { border-color: #A17FD3; }"
    "#labelN0, #labelN1, #labelN2 { color: #6B6B75; font-size: 14px; }"
    "QPushButton { border: none; border-radius: 16px; background-color: #6329B6; color: white;"
    " font-size: 14px; padding: 0px 16px; }"
    "QPushButton:hover { background-color: #7440C0; }"
    "QPushButton:pressed { background-color: #52209A; }");

} // namespace lightstyle
