#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QKeyEvent;
class QMouseEvent;
class QWidget;

/// Listens while a macro is recorded: to every key typed into the page's window, which then reaches nothing
/// else, and to what the mouse does on the page where no control takes it. GUI thread only.
class MacroRecorder : public QObject
{
    Q_OBJECT

public:
    /// The page owns the recorder.
    explicit MacroRecorder(QWidget *page);
    ~MacroRecorder() override;

    void start();
    void stop();
    bool isActive() const { return isRecording; }

Q_SIGNALS:
    /// Comes ahead of a step: the milliseconds since the one before it, cut to 16 bits; 0 for the first one.
    void gapMeasured(quint16 milliseconds);
    /// A key that has a code went down or up; repeats of a held one don't count.
    void keyRecorded(quint8 code, bool down);
    /// \a button is 1 (left), 2 (right) or 4 (middle). A double click is told as two clicks at once, and the
    /// mouse then counts again 200 ms later.
    void buttonRecorded(int button, bool down);
    /// The user went to another window, where keys are out of reach.
    void interrupted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isOfWindow(QObject *watched) const;
    void takeKey(const QKeyEvent &event);
    bool takeMouse(const QMouseEvent &event);
    void measureGap();

    QWidget *page;
    QElapsedTimer sinceLast;
    QTimer doubleClickRest; ///< runs while the clicks that trail a double click are swallowed
    bool isRecording = false;
};
