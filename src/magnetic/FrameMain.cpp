#include "FrameMain.h"

#include "Look.h"
#include "ui_FrameMain.h"

namespace {

/// The picture in the largest size that fits into the room, at most its own.
QPixmap fitted(const QPixmap &picture, const QSize &room, qreal scale)
{
    const QSize largest = (QSizeF(room) * scale).toSize().boundedTo(picture.size());
    QPixmap result = picture.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    result.setDevicePixelRatio(scale);
    return result;
}

} // namespace

FrameMain::FrameMain(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameMain>())
{
    ui->setupUi(this);
    ui->labelPic->setPixmap(look::picture(QStringLiteral(":/images/Orbe-Kb3.png"), this));
    ui->labelPic->hide();
}

FrameMain::~FrameMain() = default;

void FrameMain::setDevicePicture(const QString &path)
{
    const QPixmap picture(path);
    if (!picture.isNull()) {
        const QMargins margins = ui->layoutInfo->contentsMargins();
        const QSize room = ui->frameInfo->size().shrunkBy(margins);
        ui->labelPic->setPixmap(fitted(picture, room, devicePixelRatioF()));
    }
    ui->labelPic->show();
}
