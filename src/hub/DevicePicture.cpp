#include "DevicePicture.h"

#include "DeviceEnumInfo.h"

#include <array>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPixmap>

namespace {

constexpr int KeyboardWidth = 970;
constexpr int SmallDeviceWidth = 280;
constexpr int ReceiverType = 2; ///< a device type of custom lists, shown like a mouse
constexpr int PictureMargin = 40;
constexpr int PictureHeight = 210;
constexpr int CardMargin = 80;
constexpr int SmallestCard = 290;
constexpr int OutOfUseOpacity = 110; ///< of 255

constexpr std::array ConnectionImages{"usb.png", "2.4g.png", "ble.png"};

QString imageFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/images/");
}

QSize fitted(const QSize &picture, int available)
{
    const double ratio = double(picture.width()) / picture.height();
    if (ratio > 1) {
        const int height = int(available / ratio);
        return height > PictureHeight ? QSize(int(ratio * PictureHeight), PictureHeight)
                                      : QSize(available, height);
    }
    const int width = int(ratio * PictureHeight);
    return width > available ? QSize(available, int(available / ratio)) : QSize(width, PictureHeight);
}

QPixmap grayed(const QPixmap &picture)
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int gray = qGray(line[x]);
            line[x] = qRgba(gray, gray, gray, qAlpha(line[x]) * OutOfUseOpacity / 255);
        }
    }
    return QPixmap::fromImage(image);
}

} // namespace

namespace devicepicture {

// The name comes from a file that anyone may edit, so it is only compared with what the folder holds and
// never becomes a part of a path.
QString ofName(const QString &deviceName)
{
    const QStringList present = QDir(imageFolder()).entryList(QDir::Files);
    const QString file = deviceName + QLatin1String(".png");
    const QString dashed = QString(file).replace(QLatin1Char(' '), QLatin1Char('-'));
    for (const QString &wanted : {file, dashed}) {
        if (present.contains(wanted))
            return imageFolder() + wanted;
    }
    return {};
}

QString show(QWidget *card, QLabel *label, const QString &path, int deviceType, bool gray)
{
    if (deviceType == KeyboardType)
        card->setFixedWidth(KeyboardWidth);
    else if (deviceType == MouseType || deviceType == ReceiverType)
        card->setFixedWidth(SmallDeviceWidth);

    QString shown = path;
    QPixmap picture(shown);
    if (picture.isNull()) {
        shown = imageFolder() + QStringLiteral("default%1.png").arg(deviceType);
        picture.load(shown);
    }
    if (!picture.isNull()) {
        const QSize size = fitted(picture.size(), card->width() - PictureMargin);
        label->setFixedSize(size);
        card->setFixedWidth(qMax(size.width() + CardMargin, SmallestCard));
    }
    label->setScaledContents(true);
    label->setPixmap(gray && !picture.isNull() ? grayed(picture) : picture);
    return shown;
}

QString ofConnection(int connectionType)
{
    const auto index = size_t(connectionType);
    return QLatin1String(":/images/dev/") +
           QLatin1String(ConnectionImages[index < ConnectionImages.size() ? index : size_t(UsbConnection)]);
}

} // namespace devicepicture
