#include "HubStyle.h"

namespace hubstyle {

const QString Window = QStringLiteral(
    "QMainWindow{ background-color: rgba(255, 255, 255, 1); border: 1px "
    "solid skyblue; border-radius: 20px; }");

const QString Header = QStringLiteral(
    "QPushButton { border: 2px solid transparent; border-radius: 18px; background-color: #F6F6F6; color: "
    "#222222;"
    " font-size: 14px; padding: 0px 8px; }"
    "QPushButton#pushButtonSet, QPushButton#pushButtonMin, QPushButton#pushButtonExit { padding: 0px; }"
    "QPushButton:hover { background-color: #E6E6EA; }"
    "QPushButton#pushButtonExit:hover { background-color: #F3D9D7; }"
    "QPushButton:pressed { background-color: #D9D9DE; }"
    "QPushButton:focus { border-color: rgba(99, 41, 182, 0.4); }");

const QString ScanButton = QStringLiteral("QPushButton { border: 2px solid transparent; border-radius: 20px; "
                                          "background-color: #6329B6; color: white;"
                                          " font-size: 15px; padding: 0px 28px; }"
                                          "QPushButton:hover { background-color: #7440C0; }"
                                          "QPushButton:pressed { background-color: #52209A; }"
                                          "QPushButton:focus { border-color: #B59BDD; }");

const QString SettingsMask = QStringLiteral(
    "QDialog { background-color: rgba(220, 220, 220, 0.96); border: none; border-radius: 20px; }");

} // namespace hubstyle
