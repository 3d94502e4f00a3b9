#include "LightPageStyle.h"

#include "Look.h"

namespace lightpagestyle {

const QString Page = look::sheet(QStringLiteral(
    "#page1 { background-color: @panel; border-radius: @panelRadius; }"
    "#frameWorks, #frameColor, #frameLayers, #frameName { background-color: white; border-radius: "
    "@cardRadius; }"
    "#frameSwatch { border: 1px solid @controlLine; border-radius: @cardRadius; background-color: white; }"
    "QLabel { color: @text; font-size: @body; }"
    "#labelTitle1 { font-size: @groupTitle; font-weight: 600; }"
    "QPushButton { min-width: 54px; min-height: 30px; border: 1px solid @controlLine; border-radius: 16px;"
    " background-color: white; color: @text; font-size: @body; padding: 0px 12px; }"
    "QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton:pressed { background-color: @tintPressed; }"
    "#pushButtonSave { border-color: @accent; background-color: @accent; color: white; }"
    "#pushButtonSave:hover { border-color: @accentHover; background-color: @accentHover; }"
    "#pushButtonSave:pressed { border-color: @accentPressed; background-color: @accentPressed; }"
    "QRadioButton { min-height: 32px; color: @text; font-size: @body; spacing: 8px; }"
    "QRadioButton::indicator { width: 16px; height: 16px; border: 2px solid @tickLine; border-radius: "
    "@keyRadius;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: @focusLine; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 6px solid @accent; }"
    "QLineEdit { min-height: 32px; border: none; border-radius: @editRadius; background-color: @edit;"
    " color: @text; font-size: @body; padding: 0px 10px; selection-background-color: @accent; }"
    "QTableView { border: none; background-color: transparent; color: @text; font-size: @body;"
    " outline: none; }"
    "QTableView::item { border: none; border-bottom: 1px solid #EFEFF2; padding: 0px 2px; }"
    "QTableView::item:hover { background-color: @tint; }"
    "QTableView::item:selected { background-color: @tintPressed; color: @accent; }"
    "QTableView::item:focus { border: 2px solid @focusLine; border-radius: @editRadius; }"
    "QHeaderView { background-color: transparent; border: none; }"
    "QHeaderView::section { border: none; border-bottom: 1px solid @line; background-color: transparent;"
    " color: @secondary; font-size: @small; padding: 0px; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: @scroll; }"
    "QScrollBar::handle:vertical:hover { background-color: @tickLine; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"));

QString dot(int red, int green, int blue)
{
    return QString::asprintf("background-color: rgb(%d, %d, %d);border: none; border-radius:16px;", red,
                             green, blue);
}

} // namespace lightpagestyle
