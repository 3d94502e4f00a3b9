#include "ShellStyle.h"

namespace shellstyle {

const QString LayerButtons =
    QStringLiteral("QPushButton { border: 1px solid #E6E6EA; border-radius: 16px; background-color: white;"
                   " color: #222222; font-size: 14px; padding: 0px 12px; }"
                   "QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
                   "QPushButton:pressed { background-color: #F0E8FB; }"
                   "QPushButton:checked { border-color: #6329B6; background-color: #6329B6; color: white; }"
                   "QPushButton:checked:hover { border-color: #7440C0; background-color: #7440C0; }"
                   "QPushButton:checked:pressed { border-color: #52209A; background-color: #52209A; }");

const QString ActionButton = QStringLiteral(
    "QPushButton { border: 1px solid #E0E0E4; border-radius: 16px; background-color: transparent;"
    " color: #222222; font-size: 14px; padding: 0px 16px; }"
    "QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "QPushButton:pressed { background-color: #F0E8FB; }");

const QString About = QStringLiteral(
    "#frameTLeft, #frameTRight, #frameBotttom { background-color: #F6F6F6; border-radius: 24px; }"
    "#labelTitle1 { color: #222222; font-size: 20px; font-weight: 600; }"
    "#labelTitleL1, #labelTitleL2, #labelTitleL3, #labelTitleL4 { color: #6B6B75; font-size: 14px; }"
    "QScrollArea, #scrollAreaWidgetContents { background: transparent; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: #D0D0D6; }"
    "QScrollBar::handle:vertical:hover { background-color: #B0B0B8; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }");

} // namespace shellstyle
