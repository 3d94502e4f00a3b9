#include "PictureLabel.h"

#include "Look.h"

void PictureLabel::setPicture(const QString &newPath)
{
    path = newPath;
    if (isVisible())
        load();
}

void PictureLabel::load()
{
    const qreal scale = devicePixelRatioF();
    if (path == loadedPath && qFuzzyCompare(scale, loadedScale))
        return;
    loadedPath = path;
    loadedScale = scale;
    setPixmap(look::picture(path, this));
}

void PictureLabel::showEvent(QShowEvent *event)
{
    load();
    QLabel::showEvent(event);
}
