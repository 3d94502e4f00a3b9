#include "CalibrationStyle.h"

#include "FocusRing.h"
#include "Look.h"

#include <QDialog>
#include <QPushButton>

namespace calibrationstyle {

namespace {

const QString Box =
    QStringLiteral("#%1 { background-color: white; border-radius: 20px; }"
                   "QLabel { background: transparent; color: #6B6B75; }"
                   "QLabel#labelTitle { color: #222222; font-size: 18px; font-weight: 600; }");

const QString PlainButton = QStringLiteral(
    "QPushButton { border: 1px solid #E0E0E4; border-radius: 18px; background-color: transparent;"
    " color: #222222; font-size: 14px; padding: 0px 20px; }"
    "QPushButton:hover { border-color: #D8BDFF; background-color: #FAF7FF; }"
    "QPushButton:pressed { background-color: #F0E8FB; }");

const QString MainButton =
    QStringLiteral("QPushButton { border: none; border-radius: 18px; background-color: #6329B6;"
                   " color: white; font-size: 14px; padding: 0px 20px; }"
                   "QPushButton:hover { background-color: #7440C0; }"
                   "QPushButton:pressed { background-color: #52209A; }");

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
