#pragma once

#include <QDialog>
#include <QImage>
#include <QPoint>
#include <QTimer>

/// Takes colours from anywhere on the screen: a window too small and too transparent to be seen follows the
/// pointer, so that the program gets the pointer's presses wherever it is. Nothing runs while it is hidden.
/// GUI thread only.
class ScreenPipette : public QDialog
{
    Q_OBJECT

public:
    explicit ScreenPipette(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The pointer came upon a pixel of this colour. Stays away where the system lets no program see the
    /// screen.
    void colorSeen(const QColor &color);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followPointer();
    void showCursor();

    QTimer timer;
    QPoint lastPosition; ///< of the pointer, in global coordinates
    QImage lastPixel;    ///< of the screen; null before the first
};
