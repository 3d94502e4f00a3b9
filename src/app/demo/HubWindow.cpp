#include "HubWindow.h"

#include <QApplication>
#include <QWidget>

QWidget *hubWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("MainWindow"))
            return widget;
    }
    return nullptr;
}
