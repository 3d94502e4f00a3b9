#include "HubTray.h"

HubTray::HubTray(const QString &tooltip, QObject *parent)
    : QObject(parent)
    , actionShow(menu.addAction(QString()))
    , actionHide(menu.addAction(QString()))
    , trayIcon(QIcon(QStringLiteral(":/images/logo.png")))
{
    menu.addSeparator();
    actionQuit = menu.addAction(QString());
    retranslate();
    connect(actionShow, &QAction::triggered, this, &HubTray::showChosen);
    connect(actionHide, &QAction::triggered, this, &HubTray::hideChosen);
    connect(actionQuit, &QAction::triggered, this, &HubTray::quitChosen);
    connect(&trayIcon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason != QSystemTrayIcon::Context)
            Q_EMIT activated();
    });
    trayIcon.setToolTip(tooltip);
    trayIcon.setContextMenu(&menu);
    trayIcon.show();
}

void HubTray::retranslate()
{
    actionShow->setText(tr("显示窗口"));
    actionHide->setText(tr("隐藏窗口"));
    actionQuit->setText(tr("退出程序"));
}
