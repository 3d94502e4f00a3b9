#include "HubStyle.h"

#include "Look.h"

namespace hubstyle {

const QString Window = QStringLiteral("QMainWindow{ background-color: rgba(255, 255, 255, 1); border: 1px "
                                      "solid skyblue; border-radius: 20px; }");

const QString Header = look::sheet(QStringLiteral(
    "QPushButton { border: 2px solid transparent; border-radius: 18px; background-color: @panel; color: "
    "@text;"
    " font-size: @body; padding: 0px 8px; }"
    "QPushButton#pushButtonSet, QPushButton#pushButtonMin, QPushButton#pushButtonExit { padding: 0px; }"
    "QPushButton:hover { background-color: @line; }"
    "QPushButton#pushButtonExit:hover { background-color: #F3D9D7; }"
    "QPushButton:pressed { background-color: #D9D9DE; }"
    "QPushButton:focus { border-color: rgba(99, 41, 182, 0.4); }"));

const QString ScanButton =
    look::sheet(QStringLiteral("QPushButton { border: 2px solid transparent; border-radius: 20px; "
                               "background-color: @accent; color: white;"
                               " font-size: @groupTitle; padding: 0px 28px; }"
                               "QPushButton:hover { background-color: @accentHover; }"
                               "QPushButton:pressed { background-color: @accentPressed; }"
                               "QPushButton:focus { border-color: @focusLine; }"));

const QString SettingsMask = QStringLiteral(
    "QDialog { background-color: rgba(220, 220, 220, 0.96); border: none; border-radius: 20px; }");

} // namespace hubstyle
