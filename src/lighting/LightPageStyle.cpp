#include "LightPageStyle.h"

namespace lightpagestyle {

const QString Page = QStringLiteral(
    "#page1 { background-color: #F6F6F6; border-radius: 24px; }"
    "#frameWorks, #frameColor, #frameLayers, #frameName { background-color: white; border-radius: 20px; }"
    "#frameSwatch { border: 1px solid #E0E0E4; border-radius: 20px; background-color: white; }"
    "QLabel { color: #222222; font-size: 14px; }"
    "#labelTitle1 { font-size: 15px; font-weight: 600; }"
    "QPushButton { min-width: 54px; min-height: 30px; border: 1px solid #E0E0E4; border-radius: 16px;"
    " background-color: white; color: #222222; font-size: 14px; padding: 0px 12px; }"
    "QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "QPushButton:pressed { background-color: #F0E8FB; }"
    "#pushButtonSave { border-color: #6329B6; background-color: #6329B6; color: white; }"
    "#pushButtonSave:hover { border-color: #7440C0; background-color: #7440C0; }"
    "#pushButtonSave:pressed { border-color: #52209A; background-color: #52209A; }"
    "QRadioButton { min-height: 32px; color: #222222; font-size: 14px; spacing: 8px; }"
    "QRadioButton::indicator { width: 16px; height: 16px; border: 2px solid #C4C4CC; border-radius: 10px;"
    " background-color: white; }"
    "QRadioButton::indicator:hover { border-color: #A37FD4; }"
    "QRadioButton::indicator:checked { width: 8px; height: 8px; border: 6px solid #6329B6; }"
    "QLineEdit { min-height: 32px; border: none; border-radius: 6px; background-color: #EDEDED;"
    " color: #222222; font-size: 14px; padding: 0px 10px; selection-background-color: #6329B6; }"
    "QTableView { border: none; background-color: transparent; color: #222222; font-size: 14px;"
    " outline: none; }"
    "QTableView::item { border: none; border-bottom: 1px solid #EFEFF2; padding: 0px 2px; }"
    "QTableView::item:hover { background-color: #FAF7FF; }"
    "QTableView::item:selected { background-color: #F0E8FB; color: #6329B6; }"
    "QTableView::item:focus { border: 2px solid #C1A9E2; border-radius: 6px; }"
    "QHeaderView { background-color: transparent; border: none; }"
    "QHeaderView::section { border: none; border-bottom: 1px solid #E6E6EA; background-color: transparent;"
    " color: #6B6B75; font-size: 12px; padding: 0px; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: #D0D0D6; }"
    "QScrollBar::handle:vertical:hover { background-color: #B0B0B8; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }");

QString dot(int red, int green, int blue)
{
    return QString::asprintf("background-color: rgb(%d, %d, %d);border: none; border-radius:16px;", red,
                             green, blue);
}

} // namespace lightpagestyle
