#include "MacroStyle.h"

#include "Look.h"

namespace macrostyle {

const QString Panels = look::sheet(
    QStringLiteral("#frameList, #frameEditor { background-color: @panel; border-radius: @panelRadius; }"
                   "#frameGrid { background-color: white; border-radius: @cardRadius; }"
                   "#labelListTitle, #labelMacroName { color: @text; font-size: @section; font-weight: 600; }"
                   "#labelSize { color: @secondary; font-size: @body; }"
                   "#labelHint { color: @secondary; font-size: @body; }"));

const QString Legend =
    look::sheet(QStringLiteral("QLabel { color: @secondary; font-size: @small; }"
                               "#frameChipUp { background-color: @accent; border-radius: @editRadius; }"
                               "#frameChipDown { background-color: #E6D9F9; border-radius: @editRadius; }"
                               "#frameChipDelay { background-color: #FFF3E2; border-radius: @editRadius; }"
                               "#frameDotUp { background-color: white; border-radius: 4px; }"
                               "#frameDotDown { background-color: @text; border-radius: 4px; }"
                               "#frameDotDelay { background-color: @pressSide; border-radius: 4px; }"));

const QString AccentButton = look::sheet(
    QStringLiteral("QPushButton { border: none; border-radius: 16px; background-color: @accent; color: white;"
                   " font-size: @body; padding: 0px 10px; }"
                   "QPushButton:hover { background-color: @accentHover; }"
                   "QPushButton:pressed { background-color: @accentPressed; }"
                   "QPushButton:checked { background-color: @pressSide; color: @text; }"
                   "QPushButton:checked:hover { background-color: #FFB55C; }"
                   "QPushButton:disabled { background-color: #E4E4EA; color: @disabled; }"));

const QString PlainButton = look::sheet(QStringLiteral(
    "QPushButton { border: 1px solid @controlLine; border-radius: 16px; background-color: white;"
    " color: @text; font-size: @body; padding: 0px 10px; }"
    "QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton:pressed { background-color: @tintPressed; }"
    "QPushButton:disabled { color: @disabled; background-color: @panel; }"));

const QString RoundButton =
    look::sheet(QStringLiteral("QPushButton { border: none; border-radius: 15px; background-color: @accent; }"
                               "QPushButton:hover { background-color: @accentHover; }"
                               "QPushButton:pressed { background-color: @accentPressed; }"));

const QString NumberBox = look::sheet(QStringLiteral(
    "QSpinBox { border: none; border-radius: @editRadius; background-color: @edit; color: @text;"
    " font-size: @body; padding: 0px 8px; selection-background-color: @accent;"
    " selection-color: white; }"
    "QSpinBox:disabled { color: @disabled; }"
    "QLineEdit { border: none; background: transparent; min-height: 0px; padding: 0px; }"));

const QString SquareBox = look::sheet(QStringLiteral(
    "QSpinBox { border: 1px solid @accent; border-radius: @editRadius; background-color: white; color: @text;"
    " font-size: @small; padding: 0px 1px; selection-background-color: @accent; selection-color: white; }"
    "QLineEdit { border: none; background: transparent; min-height: 0px; padding: 0px; font-size: @small; "
    "}"));

const QString SquareButton =
    look::sheet(QStringLiteral("QToolButton { border: none; border-radius: 12px; background-color: white; }"
                               "QToolButton:hover { background-color: @tintPressed; }"
                               "QToolButton:pressed { background-color: @tintLine; }"));

const QString Row = look::sheet(
    QStringLiteral("#MacroItem { border-radius: 18px; background-color: white; }"
                   "#MacroItem:hover { background-color: @tint; }"
                   "#labelName { color: @text; font-size: @body; background-color: transparent; }"));

const QString SelectedRow = look::sheet(
    QStringLiteral("#MacroItem { border-radius: 18px; background-color: @accent; }"
                   "#labelName { color: white; font-size: @body; background-color: transparent; }"));

const QString RowButton =
    QStringLiteral("QToolButton { border: none; border-radius: 13px; background-color: transparent; }"
                   "QToolButton:hover { background-color: rgba(160, 120, 220, 0.35); }"
                   "QToolButton:pressed { background-color: rgba(160, 120, 220, 0.6); }");

const QString RowEdit = look::sheet(QStringLiteral(
    "QLineEdit { border: none; border-radius: @editRadius; background-color: @edit; color: @text;"
    " min-height: 28px; font-size: @body; padding: 0px 6px; selection-background-color: "
    "@accent; selection-color: white; }"));

const QString ScrollArea = look::sheet(QStringLiteral(
    "QScrollArea, QWidget#scrollContents { background: transparent; border: none; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: @scroll; }"
    "QScrollBar::handle:vertical:hover { background-color: @tickLine; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"));

const QString Card = look::sheet(QStringLiteral(
    "#ModuleAddMacroSquare { background-color: white; border-radius: @panelRadius; }"
    "#labelTitle { color: @text; font-size: @section; font-weight: 600; }"
    "QRadioButton, QCheckBox, QLabel { color: @text; font-size: @body; spacing: 8px; }"
    "QRadioButton { font-weight: 600; }"
    "QRadioButton::indicator, QCheckBox::indicator { width: 16px; height: 16px; border: 2px solid @tickLine;"
    " background-color: white; }"
    "QRadioButton::indicator { border-radius: @keyRadius; }"
    "QCheckBox::indicator { border-radius: @editRadius; }"
    "QRadioButton::indicator:checked { border: 6px solid @accent; width: 8px; height: 8px; }"
    "QCheckBox::indicator:checked { border-color: @accent; background-color: @accent;"
    " image: url(:/images/macroedit/tick.png); }"
    "QRadioButton::indicator:hover, QCheckBox::indicator:hover { border-color: @accent; }"
    "QCheckBox:disabled, QLabel:disabled { color: @disabled; }"
    "QLineEdit { border: none; border-radius: @editRadius; background-color: @edit; color: @text;"
    " min-height: 32px; font-size: @body; padding: 0px 10px; }"
    "QLineEdit:disabled { color: @disabled; }"));

} // namespace macrostyle
