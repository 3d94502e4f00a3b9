#pragma once

#include <QTabWidget>

/// A tab widget with the program's own tab bar and pages without a frame.
class NewTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit NewTabWidget(QWidget *parent = nullptr);
};
