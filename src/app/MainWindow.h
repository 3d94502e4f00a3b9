#pragma once

#include <QMainWindow>

class DialogDeviceConnect;
class QLabel;

/// The first window: says which firmware the keyboard answered with, and shows the engineering console.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

private:
    void setLayer(int layer);

    DialogDeviceConnect *connection;
    QLabel *state;
};
