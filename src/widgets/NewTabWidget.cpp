#include "NewTabWidget.h"

#include "CustomTabBar.h"

NewTabWidget::NewTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new CustomTabBar(this));
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    tabBar()->setExpanding(false);
}
