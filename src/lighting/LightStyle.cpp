#include "LightStyle.h"

#include "Look.h"

namespace lightstyle {

const QString Picker = look::sheet(
    QStringLiteral("#DialogColorPicker { background-color: white; border: 1px solid @controlLine; "
                   "border-radius: @cardRadius; }"
                   "QLineEdit { min-height: 28px; max-height: 28px; border: 1px solid @controlLine; "
                   "border-radius: @editRadius;"
                   " background-color: @edit; color: @text; font-size: @body; padding: 0px 2px; }"
                   "QLineEdit:focus { border-color: @focusLine; }"
                   "#framePreview { border: 1px solid @controlLine; border-radius: 18px; }"
                   "#labelN0, #labelN1, #labelN2 { color: @secondary; font-size: @body; }"
                   "QPushButton { border: none; border-radius: 16px; background-color: @accent; color: white;"
                   " font-size: @body; padding: 0px 16px; }"
                   "QPushButton:hover { background-color: @accentHover; }"
                   "QPushButton:pressed { background-color: @accentPressed; }"));

const QString Panel = look::sheet(QStringLiteral(
    "ModuleEfMode, ModuleEfColor, ModuleEfLumi, ModuleEfSpeed { background-color: @panel;"
    " border-radius: @panelRadius; }"
    "QLabel { color: @text; font-size: @body; }"
    "#labelTitle1 { font-size: @groupTitle; font-weight: 600; }"
    "#labelTitle2, #labelTitleL1, #labelTitleL2, #labelDark { color: @secondary; font-size: @note; }"
    // The list of effects
    "QScrollArea, #scrollAreaWidgetContents { background: transparent; border: none; }"
    "QPushButton { border: 1px solid @line; border-radius: 14px; background-color: white; color: @text;"
    " font-size: @note; padding: 0px 8px; }"
    "QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton:pressed { background-color: @tintPressed; }"
    "QPushButton:checked { border-color: @accent; background-color: @accent; color: white; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: @scroll; }"
    "QScrollBar::handle:vertical:hover { background-color: @tickLine; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"
    "QComboBox { min-height: 28px; max-height: 28px; border: 1px solid @controlLine; border-radius: "
    "@editRadius;"
    " background-color: @edit; color: @text; font-size: @body; padding: 0px 4px 0px 10px; }"
    "QComboBox:focus { border-color: @focusLine; }"
    "QComboBox:disabled { background-color: #F1F1F3; border-color: #EAEAEE; color: @disabled; }"
    "QComboBox::drop-down { border: none; width: 24px; }"
    "QComboBox::down-arrow { image: url(:/images/hub/down.png); width: 12px; height: 12px; }"
    "QComboBox::down-arrow:disabled { image: none; }"
    "QComboBox QAbstractItemView { border: 1px solid @controlLine; background-color: white; color: @text;"
    " outline: none; selection-background-color: @tintPressed; selection-color: @text; }"
    // The tabs of the colour
    "QTabWidget, QTabWidget::pane { background: transparent; border: none; }"
    "QTabWidget::pane { border-top: 1px solid @line; }"
    "QTabWidget::tab-bar { left: 0px; }"
    "QTabBar { background: transparent; font-size: @body; }"
    "QTabBar::tab { background: transparent; border: none; border-bottom: 3px solid transparent; color: "
    "@text;"
    " padding: 4px 0px 6px 0px; margin-right: 26px; }"
    "QTabBar::tab:hover { color: @accent; }"
    "QTabBar::tab:selected { color: @accent; font-weight: 600; border-bottom-color: @accent; }"
    "QTabBar::tab:selected:focus { border-bottom-color: @focusLine; }"
    "#frameSideColor { border: 1px solid @controlLine; border-radius: 19px; }"
    "#tab1, #tab2, #tab3 { background: transparent; }"
    "QTableView { background: transparent; border: none; outline: none; }"
    "QRadioButton { min-height: 24px; color: @text; font-size: @body; spacing: 6px; }"
    "QRadioButton::indicator { width: 14px; height: 14px; border: 2px solid @tickLine; border-radius: 9px;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: @focusLine; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 5px solid @accent; }"));

} // namespace lightstyle
