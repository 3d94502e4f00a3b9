#include "PictureDelegate.h"

#include "LightWorksModel.h"
#include "Look.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace {

constexpr int Margin = 4;            ///< between the picture and the edge of its cell
constexpr int LargestSide = 4096;    ///< pixels; a file can claim to be anything
constexpr qsizetype CacheKiB = 8192; ///< about a hundred previews on a plain screen

QImage decode(const QByteArray &base64)
{
    QByteArray png = QByteArray::fromBase64(base64);
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > LargestSide || size.height() > LargestSide)
        return {};
    // Scaled with its few colours, a preview would end up dithered.
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

PictureDelegate::PictureDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , pictures(CacheKiB)
{
}

const QPixmap &PictureDelegate::decoded(const QByteArray &base64, const QSize &size, qreal scale) const
{
    const QSize pixels = (QSizeF(size) * scale).toSize();
    if (pixels != cachedSize) {
        pictures.clear();
        cachedSize = pixels;
    }
    if (const QPixmap *known = pictures.object(base64))
        return *known;
    const QImage image = decode(base64);
    auto *picture = new QPixmap;
    if (!image.isNull()) {
        *picture = QPixmap::fromImage(image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        picture->setDevicePixelRatio(scale);
    }
    const qsizetype cost = qBound<qsizetype>(1, qsizetype(pixels.width()) * pixels.height() / 256, CacheKiB);
    pictures.insert(base64, picture, cost);
    return *picture;
}

void PictureDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QRect place = option.rect.adjusted(Margin, Margin, -Margin, -Margin);
    if (place.isEmpty())
        return;
    const QByteArray base64 = index.data(LightWorksModel::PictureRole).toByteArray();
    const QPixmap &picture = decoded(base64, place.size(), painter->device()->devicePixelRatioF());
    if (!picture.isNull()) {
        painter->drawPixmap(place.topLeft(), picture);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(look::Edit);
    painter->drawRoundedRect(place, look::KeyRadius, look::KeyRadius);
    painter->restore();
}
