#pragma once

#include <QFile>
#include <QSettings>
#include <QVariantMap>
#include <QWidget>

class QLabel;

/// Plays a sibling driver. What it is to do stands in an INI file beside the program, of the program's name:
///   title        of its window
///   settings     the values shared with the hub: an INI file, or a key of the registry
///   report       file that gets a line for whatever happens
///   hidden       true: the window is made but not shown
///   handle       true: the window's handle goes to "OrbeWnd"
///   returnAfter  ms after a device was handed over, when it asks the hub back; 0 or nothing: never
class StandInWindow : public QWidget
{
    Q_OBJECT

public:
    explicit StandInWindow(const QSettings &orders);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void watchValues();
    void askForReturn();
    void report(const QString &line);

    QSettings values;
    QFile reportFile;
    QVariantMap seen; ///< the hand-over values as they were last
    QLabel *deviceLabel;
    const int returnAfter;
};
