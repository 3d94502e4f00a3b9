#include "PictureLabel.h"

#include "Look.h"

void PictureLabel::setPicture(const QString &newPath)
{
    const qreal scale = devicePixelRatioF();
    if (newPath == path && qFuzzyCompare(scale, loadedScale))
        return;
    path = newPath;
    loadedScale = scale;
    setPixmap(look::picture(path, this));
}

void PictureLabel::showEvent(QShowEvent *event)
{
    if (!path.isEmpty())
        setPicture(path);
    QLabel::showEvent(event);
}
