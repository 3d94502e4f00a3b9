#pragma once

#include <QDialog>
#include <QPixmap>

/// A small frameless window that hovers over the main window and acts like a button: the two scroll arrows
/// and the way back from an embedded driver. A window of its own, because a foreign window may lie beneath
/// it.
class FloatButton : public QDialog
{
    Q_OBJECT

public:
    enum class Look {
        Arrow, ///< the picture fills the button, lightly see-through
        Pill   ///< a dark rounded pill with the picture inside
    };

    FloatButton(Look look, const QString &picture, QWidget *parent);

Q_SIGNALS:
    void released();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Look look;
    QPixmap picture;
};
