#pragma once

#include <QIcon>
#include <QPushButton>

/// A button of a picker: a key with its legend, a function in words, or a tile for a function with a picture.
/// GUI thread only.
class PickerButton : public QPushButton
{
    Q_OBJECT

public:
    enum class Face : quint8 {
        Key,   ///< a cap; legends of two parts stand on two lines
        Words, ///< one line on a cap, cut where room is short
        Tile,  ///< a picture or a word above a caption
    };

    PickerButton(Face face, const QString &objectName, QWidget *parent);

    /// The pictures of a tile at rest and while it is checked, pressed or hovered. Without them its
    /// text stands there.
    void setPictures(const QString &rest, const QString &active);
    /// What a tile does, in two lines at most; its text unless another is set.
    void setCaption(const QString &text);

    /// Shows that the key is among those picked.
    void setMarked(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool isActive() const;
    void paintCap(QPainter &painter, const QRectF &cap) const;
    void paintLegend(QPainter &painter) const;
    void paintWords(QPainter &painter, const QRect &cap) const;
    void paintTile(QPainter &painter);

    struct Picture
    {
        QString path;
        QIcon icon; ///< loaded when it is first painted
    };

    QIcon &picture();

    Picture restPicture;
    Picture activePicture;
    QString caption;
    Face face;
    bool isMarked = false;
};
