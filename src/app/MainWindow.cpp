#include "MainWindow.h"

#include "DialogDeviceConnect.h"

#include <QLabel>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , connection(new DialogDeviceConnect(this))
    , state(new QLabel(this))
{
    setCentralWidget(state);
    connect(connection, &DialogDeviceConnect::onUpdataLayer, this, &MainWindow::setLayer);
    connect(connection, &DialogDeviceConnect::onReadDone, this,
            [this] { state->setText(QString::asprintf("0x%08X", connection->deviceCache().deviceId)); });
    connection->show();
    connection->deviceChanged();
}

void MainWindow::setLayer(int layer)
{
    if (layer >= 0 && layer < 4)
        connection->DoSetProfile(quint8(layer));
}
