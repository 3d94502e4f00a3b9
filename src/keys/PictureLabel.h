#pragma once

#include <QLabel>

/// A label with a picture that stays sharp on whatever screen the label comes to. It is loaded when the label
/// shows. GUI thread only.
class PictureLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Shows the picture at a resource path; one that can't be read leaves the label empty.
    void setPicture(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void load();

    QString path;
    QString loadedPath;
    qreal loadedScale = 0;
};
