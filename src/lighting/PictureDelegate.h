#pragma once

#include <QCache>
#include <QPixmap>
#include <QStyledItemDelegate>

/// Draws the preview of a light work into its cell. A picture that can't be decoded leaves a blank card.
class PictureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PictureDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    const QPixmap &decoded(const QByteArray &base64, const QSize &size, qreal scale) const;

    mutable QCache<QByteArray, QPixmap> pictures; ///< ready to be drawn; costs in KiB
    mutable QSize cachedSize;                     ///< that they are in, in pixels of the screen
};
