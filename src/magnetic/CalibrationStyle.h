#pragma once

#include <QRect>
#include <QString>

class QDialog;
class QPushButton;
class QWidget;

/// What the two windows of the calibration have in common.
namespace calibrationstyle {

/// Makes the dialog a frameless translucent window that covers a rectangle of the screen.
void cover(QDialog *dialog, const QRect &screenRect);

/// Makes a white box with its texts; the main button stands out in the accent.
void dressBox(QWidget *box, QPushButton *plainButton, QPushButton *mainButton);

} // namespace calibrationstyle
