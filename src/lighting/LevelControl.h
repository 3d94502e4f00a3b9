#pragma once

#include <QObject>

class QLabel;
class QSlider;

/// What brightness and speed have in common: a slider in quarters with its percentage beside it. Lives no
/// longer than the two widgets. GUI thread only.
class LevelControl : public QObject
{
    Q_OBJECT

public:
    LevelControl(QSlider *slider, QLabel *percentage, QObject *parent);

    /// Shows a level that the keyboard reported, without a signal; it is kept to the slider's range.
    void show(int level);

Q_SIGNALS:
    /// The user chose a level, 0 to 4.
    void chosen(int level);

private:
    void takeValue(int value);

    QSlider *slider;
    QLabel *percentage;
    bool fromKeyboard = false;
};
