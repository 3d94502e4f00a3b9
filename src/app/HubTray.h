#pragma once

#include <QMenu>
#include <QSystemTrayIcon>

/// The hub's icon in the system tray with its menu. On a desktop without a tray nothing shows, and nothing
/// else changes.
class HubTray : public QObject
{
    Q_OBJECT

public:
    explicit HubTray(const QString &tooltip, QObject *parent = nullptr);

    void hide() { trayIcon.hide(); }
    /// Sets the menu's texts in the language of the moment.
    void retranslate();

Q_SIGNALS:
    /// The icon was clicked in any way but for its menu.
    void activated();
    void showChosen();
    void hideChosen();
    void quitChosen();

private:
    QMenu menu;
    QAction *actionShow;
    QAction *actionHide;
    QAction *actionQuit;
    QSystemTrayIcon trayIcon;
};
