#include "ShellStyle.h"

#include "Look.h"

namespace shellstyle {

const QString LayerButtons = look::sheet(QStringLiteral(
    "QPushButton { border: 1px solid @line; border-radius: 16px; background-color: white;"
    " color: @text; font-size: @body; padding: 0px 12px; }"
    "QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton:pressed { background-color: @tintPressed; }"
    "QPushButton:checked { border-color: @accent; background-color: @accent; color: white; }"
    "QPushButton:checked:hover { border-color: @accentHover; background-color: @accentHover; }"
    "QPushButton:checked:pressed { border-color: @accentPressed; background-color: @accentPressed; }"));

const QString ActionButton = look::sheet(QStringLiteral(
    "QPushButton { border: 1px solid @controlLine; border-radius: 16px; background-color: transparent;"
    " color: @text; font-size: @body; padding: 0px 16px; }"
    "QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton:pressed { background-color: @tintPressed; }"));

const QString About = look::sheet(QStringLiteral(
    "#frameTLeft, #frameTRight, #frameBotttom { background-color: @panel; border-radius: @panelRadius; }"
    "#labelTitle1 { color: @text; font-size: @pageTitle; font-weight: 600; }"
    "#labelTitleL1, #labelTitleL2, #labelTitleL3, #labelTitleL4 { color: @secondary; font-size: @body; }"
    "QScrollArea, #scrollAreaWidgetContents { background: transparent; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: #D0D0D6; }"
    "QScrollBar::handle:vertical:hover { background-color: @tickLine; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"));

} // namespace shellstyle
