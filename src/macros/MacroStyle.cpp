#include "MacroStyle.h"

namespace macrostyle {

const QString Panels =
    QStringLiteral("#frameList, #frameEditor { background-color: #F6F6F6; border-radius: 24px; }"
                   "#frameGrid { background-color: white; border-radius: 20px; }"
                   "#labelListTitle, #labelMacroName { color: #222222; font-size: 18px; font-weight: 600; }"
                   "#labelSize { color: #6B6B75; font-size: 14px; }"
                   "#labelHint { color: #6B6B75; font-size: 14px; }");

const QString Legend = QStringLiteral("QLabel { color: #6B6B75; font-size: 12px; }"
                                      "#frameChipUp { background-color: #6329B6; border-radius: 6px; }"
                                      "#frameChipDown { background-color: #E6D9F9; border-radius: 6px; }"
                                      "#frameChipDelay { background-color: #FFF3E2; border-radius: 6px; }"
                                      "#frameDotUp { background-color: white; border-radius: 4px; }"
                                      "#frameDotDown { background-color: #222222; border-radius: 4px; }"
                                      "#frameDotDelay { background-color: #FFA73C; border-radius: 4px; }");

const QString AccentButton =
    QStringLiteral("QPushButton { border: none; border-radius: 16px; background-color: #6329B6; color: white;"
                   " font-size: 14px; padding: 0px 11px; }"
                   "QPushButton:hover { background-color: #7440C0; }"
                   "QPushButton:pressed { background-color: #52209A; }"
                   "QPushButton:checked { background-color: #FFA73C; color: #222222; }"
                   "QPushButton:checked:hover { background-color: #FFB55C; }"
                   "QPushButton:disabled { background-color: #E4E4EA; color: #B3B3B3; }");

const QString PlainButton =
    QStringLiteral("QPushButton { border: 1px solid #E0E0E4; border-radius: 16px; background-color: white;"
                   " color: #222222; font-size: 14px; padding: 0px 10px; }"
                   "QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
                   "QPushButton:pressed { background-color: #F0E8FB; }"
                   "QPushButton:disabled { color: #B3B3B3; background-color: #F6F6F6; }");

const QString RoundButton =
    QStringLiteral("QPushButton { border: none; border-radius: 15px; background-color: #6329B6; }"
                   "QPushButton:hover { background-color: #7440C0; }"
                   "QPushButton:pressed { background-color: #52209A; }");

const QString NumberBox =
    QStringLiteral("QSpinBox { border: none; border-radius: 6px; background-color: #EDEDED; color: #222222;"
                   " font-size: 14px; padding: 0px 8px; selection-background-color: #6329B6;"
                   " selection-color: white; }"
                   "QSpinBox:disabled { color: #B3B3B3; }"
                   "QLineEdit { border: none; background: transparent; min-height: 0px; padding: 0px; }");

const QString SquareBox = QStringLiteral(
    "QSpinBox { border: 1px solid #6329B6; border-radius: 6px; background-color: white; color: #222222;"
    " font-size: 12px; padding: 0px 1px; selection-background-color: #6329B6; selection-color: white; }"
    "QLineEdit { border: none; background: transparent; min-height: 0px; padding: 0px; font-size: 12px; }");

const QString SquareButton =
    QStringLiteral("QToolButton { border: none; border-radius: 12px; background-color: white; }"
                   "QToolButton:hover { background-color: #F0E8FB; }"
                   "QToolButton:pressed { background-color: #D8BDFF; }");

const QString Row =
    QStringLiteral("#MacroItem { border-radius: 18px; background-color: white; }"
                   "#MacroItem:hover { background-color: #FAF7FF; }"
                   "#labelName { color: #222222; font-size: 14px; background-color: transparent; }");

const QString SelectedRow =
    QStringLiteral("#MacroItem { border-radius: 18px; background-color: #6329B6; }"
                   "#labelName { color: white; font-size: 14px; background-color: transparent; }");

const QString RowButton =
    QStringLiteral("QToolButton { border: none; border-radius: 13px; background-color: transparent; }"
                   "QToolButton:hover { background-color: rgba(160, 120, 220, 0.35); }"
                   "QToolButton:pressed { background-color: rgba(160, 120, 220, 0.6); }");

const QString RowEdit =
    QStringLiteral("QLineEdit { border: none; border-radius: 6px; background-color: #EDEDED; color: #222222;"
                   " min-height: 28px; font-size: 14px; padding: 0px 6px; selection-background-color: "
                   "#6329B6; selection-color: white; }");

const QString ScrollArea = QStringLiteral(
    "QScrollArea, QWidget#scrollContents { background: transparent; border: none; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle:vertical { min-height: 32px; border-radius: 4px; background-color: #D0D0D6; }"
    "QScrollBar::handle:vertical:hover { background-color: #B0B0B8; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }");

const QString Card = QStringLiteral(
    "#ModuleAddMacroSquare { background-color: white; border-radius: 24px; }"
    "#labelTitle { color: #222222; font-size: 18px; font-weight: 600; }"
    "QRadioButton, QCheckBox, QLabel { color: #222222; font-size: 14px; spacing: 8px; }"
    "QRadioButton { font-weight: 600; }"
    "QRadioButton::indicator, QCheckBox::indicator { width: 16px; height: 16px; border: 2px solid #B0B0B8;"
    " background-color: white; }"
    "QRadioButton::indicator { border-radius: 10px; }"
    "QCheckBox::indicator { border-radius: 6px; }"
    "QRadioButton::indicator:checked { border: 6px solid #6329B6; width: 8px; height: 8px; }"
    "QCheckBox::indicator:checked { border-color: #6329B6; background-color: #6329B6;"
    " image: url(:/images/macroedit/tick.png); }"
    "QRadioButton::indicator:hover, QCheckBox::indicator:hover { border-color: #6329B6; }"
    "QCheckBox:disabled, QLabel:disabled { color: #B3B3B3; }"
    "QLineEdit { border: none; border-radius: 6px; background-color: #EDEDED; color: #222222;"
    " min-height: 32px; font-size: 14px; padding: 0px 10px; }"
    "QLineEdit:disabled { color: #B3B3B3; }");

} // namespace macrostyle
