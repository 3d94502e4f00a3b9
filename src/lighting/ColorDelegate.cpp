#include "ColorDelegate.h"

#include "Look.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTableView>

namespace {

constexpr double MiddleScale = 1.3;
const QString MiddlePicture = QStringLiteral(":/images/Color-picked.png");

bool isClick(const QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        return static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
    return event->type() == QEvent::KeyPress && static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Space;
}

} // namespace

ColorDelegate::ColorDelegate(QTableView *view)
    : QStyledItemDelegate(view)
    , table(view)
{
    view->setItemDelegate(this);
}

bool ColorDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                                const QModelIndex &index)
{
    if (!isClick(event))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    clickedColumn = index.column();
    Q_EMIT onClicked(clickedColumn);
    table->viewport()->update();
    return true;
}

void ColorDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const bool middle = index.column() == MiddleColumn;
    const QPointF centre = QRectF(option.rect).center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (middle) {
        const QPixmap picture = look::picture(MiddlePicture, table);
        const QSizeF size = picture.deviceIndependentSize();
        painter->drawPixmap(centre - QPointF(size.width() / 2, size.height() / 2), picture);
    }
    // Drawn as a circle as high as its font's letters: fonts place and size the sign itself each in its own
    // way.
    const auto dotFont = index.data(Qt::FontRole).value<QFont>();
    const double diameter = QFontInfo(dotFont).pixelSize() * (middle ? MiddleScale : 1.0);
    painter->setPen(Qt::NoPen);
    painter->setBrush(index.data(Qt::ForegroundRole).value<QBrush>());
    painter->drawEllipse(centre, diameter / 2, diameter / 2);
    if (option.state & QStyle::State_HasFocus) {
        const double reach = diameter / 2 + 2 * look::RingWidth;
        look::drawFocusRing(*painter, QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach),
                            reach);
    }
    painter->restore();
}
