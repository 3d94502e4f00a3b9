#include "LightStyle.h"

namespace lightstyle {

const QString Picker = QStringLiteral(
    "#DialogColorPicker { background-color: white; border: 1px solid #E0E0E4; border-radius: 20px; }"
    "QLineEdit { min-height: 28px; max-height: 28px; border: 1px solid #DDDDE2; border-radius: 6px;"
    " background-color: #EDEDED; color: #222222; font-size: 14px; padding: 0px 2px; }"
    "QLineEdit:focus { border-color: #A17FD3; }"
    "#framePreview { border: 1px solid #D8D8DE; border-radius: 18px; }"
    "#labelN0, #labelN1, #labelN2 { color: #6B6B75; font-size: 14px; }"
    "QPushButton { border: none; border-radius: 16px; background-color: #6329B6; color: white;"
    " font-size: 14px; padding: 0px 16px; }"
    "QPushButton:hover { background-color: #7440C0; }"
    "QPushButton:pressed { background-color: #52209A; }");

const QString Panel = QStringLiteral(
    "ModuleEfMode, ModuleEfColor, ModuleEfLumi, ModuleEfSpeed { background-color: #F6F6F6;"
    " border-radius: 24px; }"
    "QLabel { color: #222222; font-size: 14px; }"
    "#labelTitle1 { font-size: 15px; font-weight: 600; }"
    "#labelTitle2, #labelTitleL1, #labelTitleL2, #labelDark { color: #6B6B75; font-size: 13px; }"
    // The list of effects
    "QScrollArea, #scrollAreaWidgetContents { background: transparent; border: none; }"
    "QPushButton { border: 1px solid #E6E6EA; border-radius: 14px; background-color: white; color: #222222;"
    " font-size: 13px; padding: 0px 8px; }"
    "QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "QPushButton:pressed { background-color: #F0E8FB; }"
    "QPushButton:checked { border-color: #6329B6; background-color: #6329B6; color: white; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: #D0D0D6; }"
    "QScrollBar::handle:vertical:hover { background-color: #B0B0B8; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"
    "QComboBox { min-height: 28px; max-height: 28px; border: 1px solid #DDDDE2; border-radius: 6px;"
    " background-color: #EDEDED; color: #222222; font-size: 14px; padding: 0px 4px 0px 10px; }"
    "QComboBox:focus { border-color: #A17FD3; }"
    "QComboBox:disabled { background-color: #F1F1F3; border-color: #EAEAEE; color: #B3B3B3; }"
    "QComboBox::drop-down { border: none; width: 24px; }"
    "QComboBox::down-arrow { image: url(:/images/hub/down.png); width: 12px; height: 12px; }"
    "QComboBox::down-arrow:disabled { image: none; }"
    "QComboBox QAbstractItemView { border: 1px solid #E0E0E4; background-color: white; color: #222222;"
    " outline: none; selection-background-color: #F0E8FB; selection-color: #222222; }"
    // The tabs of the colour
    "QTabWidget, QTabWidget::pane { background: transparent; border: none; }"
    "QTabWidget::pane { border-top: 1px solid #E6E6EA; }"
    "QTabWidget::tab-bar { left: 0px; }"
    "QTabBar { background: transparent; font-size: 14px; }"
    "QTabBar::tab { background: transparent; border: none; border-bottom: 3px solid transparent; color: "
    "#222222;"
    " padding: 4px 0px 6px 0px; margin-right: 26px; }"
    "QTabBar::tab:hover { color: #6329B6; }"
    "QTabBar::tab:selected { color: #6329B6; font-weight: 600; border-bottom-color: #6329B6; }"
    "QTabBar::tab:selected:focus { border-bottom-color: #B59BDD; }"
    "#frameSideColor { border: 1px solid #D8D8DE; border-radius: 19px; }"
    "#tab1, #tab2, #tab3 { background: transparent; }"
    "QTableView { background: transparent; border: none; outline: none; }"
    "QRadioButton { min-height: 24px; color: #222222; font-size: 14px; spacing: 6px; }"
    "QRadioButton::indicator { width: 14px; height: 14px; border: 2px solid #C4C4CC; border-radius: 9px;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: #A37FD4; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid #6329B6; }");

} // namespace lightstyle
