#pragma once

#include <QObject>
#include <QTimer>

class QLineEdit;
class QSlider;

/// Keeps a slider and a line edit on the same value. The edit follows the slider at once; the slider follows
/// the edit when the text has stood still for 300 ms, with what is out of its range clamped. A text that is
/// being typed is left alone until the user leaves it. GUI thread only.
class SliderEdit : public QObject
{
    Q_OBJECT

public:
    using Format = QString (*)(int value);
    /// The value that a text stands for, in any range; 0 for none.
    using Parse = double (*)(const QString &text);

    /// Lives as long as the line edit. The edit keeps its text until the slider moves.
    SliderEdit(QSlider *slider, QLineEdit *edit, Format format, Parse parse);

private:
    void showValue();
    void takeText();
    void endTyping();

    QSlider *slider;
    QLineEdit *edit;
    Format format;
    Parse parse;
    QTimer timer;
    bool takingText = false;
};

/// What stands in a text before the first character that is neither a digit nor a point.
QString leadingNumber(const QString &text);
