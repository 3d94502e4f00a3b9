#include "CalibrationStyle.h"

#include "FocusRing.h"
#include "Look.h"

#include <QDialog>
#include <QPushButton>

namespace calibrationstyle {

namespace {

const QString Box =
    look::sheet(QStringLiteral("#%1 { background-color: white; border-radius: @cardRadius; }"
                               "QLabel { background: transparent; color: @secondary; }"
                               "QLabel#labelTitle { color: @text; font-size: @section; font-weight: 600; }"));

const QString PlainButton = look::sheet(QStringLiteral(
    "QPushButton { border: 1px solid @controlLine; border-radius: 18px; background-color: transparent;"
    " color: @text; font-size: @body; padding: 0px 20px; }"
    "QPushButton:hover { border-color: @tintLine; background-color: @tint; }"
    "QPushButton:pressed { background-color: @tintPressed; }"));

const QString MainButton =
    look::sheet(QStringLiteral("QPushButton { border: none; border-radius: 18px; background-color: @accent;"
                               " color: white; font-size: @body; padding: 0px 20px; }"
                               "QPushButton:hover { background-color: @accentHover; }"
                               "QPushButton:pressed { background-color: @accentPressed; }"));

} // namespace

void cover(QDialog *dialog, const QRect &screenRect)
{
    dialog->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    dialog->setAttribute(Qt::WA_TranslucentBackground);
    dialog->setModal(true);
    dialog->move(screenRect.topLeft());
    dialog->setFixedSize(screenRect.size().expandedTo(QSize(1, 1)));
}

void dressBox(QWidget *box, QPushButton *plainButton, QPushButton *mainButton)
{
    look::setStyleOnce(box, Box.arg(box->objectName()));
    look::setStyleOnce(plainButton, PlainButton);
    look::setStyleOnce(mainButton, MainButton);
    for (QPushButton *button : {plainButton, mainButton})
        FocusRing::follow(button, look::PillRadius);
}

} // namespace calibrationstyle
