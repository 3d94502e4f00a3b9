#pragma once

#include <QColor>
#include <QList>
#include <QRectF>
#include <QString>

class QWidget;

/// A piece of text that a window paints.
struct DrawnText
{
    QString text;
    QRectF rect; ///< what the glyphs take, in the window's coordinates
    QRectF clip; ///< what of the window may be painted on
    QColor color;
    qreal pixelSize = 0;
    bool bold = false;
};

/// Everything that the window and all that shows in it writes now, in the order of painting.
QList<DrawnText> drawnTexts(QWidget *window);
