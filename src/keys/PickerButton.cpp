#include "PickerButton.h"

#include "KeyStyle.h"
#include "Look.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr QSize WordsSize(80, 36);
constexpr QSize TileSize(88, 124);
constexpr int PictureSize = 44;
constexpr int CaptionLine = 16;
constexpr int TileRadius = 16;
constexpr int SignSize = 14; ///< pixels; of one sign or an F key
constexpr int WordSize = 11;
constexpr int SmallestWord = 8;
constexpr int LineGap = 4;
constexpr int CaptionSize = 12;
constexpr int LongestSign = 3; ///< characters
constexpr int Margin = 2;

/// A legend as it is printed on a cap, in one line or two.
struct Legend
{
    QString upper;
    QString lower; ///< the only line, if upper is empty
    bool isSigns;  ///< short enough for large type
};

/// "1 !" puts the sign of Shift above, "Num-7", "L-Ctrl" and "BackSpace" break between their parts.
Legend legendOf(const QString &text)
{
    const qsizetype space = text.indexOf(QLatin1Char(' '));
    if (space > 0)
        return {text.mid(space + 1), text.left(space), true};
    const qsizetype dash = text.indexOf(QLatin1Char('-'));
    if (dash > 0 && dash + 1 < text.size())
        return {text.left(dash), text.mid(dash + 1), false};
    for (qsizetype i = 1; i < text.size(); ++i) {
        if (text.at(i).isUpper() && text.at(i - 1).isLower())
            return {text.left(i), text.mid(i), false};
    }
    const bool isFunctionKey = text.size() <= LongestSign && text.startsWith(QLatin1Char('F'));
    return {{}, text, text.size() <= 2 || isFunctionKey};
}

/// The font in that size, or as much smaller as the longer of the texts needs to fit the width.
QFont fitting(const QFont &font, const Legend &legend, int size, qreal width)
{
    QFont result = look::sized(font, size, QFont::DemiBold);
    const auto reach = [&result](const QString &text) {
        return QFontMetricsF(result).horizontalAdvance(text);
    };
    while (size > SmallestWord && qMax(reach(legend.upper), reach(legend.lower)) > width)
        result.setPixelSize(--size);
    return result;
}

} // namespace

PickerButton::PickerButton(Face shown, const QString &objectName, QWidget *parent)
    : QPushButton(parent)
    , face(shown)
{
    setObjectName(objectName);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setAutoDefault(false); // Return is for the OK of the dialog
    if (face == Face::Tile)
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PickerButton::setPictures(const QString &rest, const QString &active)
{
    restPicture = {rest, {}};
    activePicture = {active, {}};
    update();
}

void PickerButton::setCaption(const QString &text)
{
    caption = text;
    setAccessibleName(text);
    update();
}

void PickerButton::setMarked(bool on)
{
    if (isMarked == on)
        return;
    isMarked = on;
    update();
}

QSize PickerButton::sizeHint() const
{
    return face == Face::Tile ? TileSize : WordsSize;
}

bool PickerButton::isActive() const
{
    return isEnabled() && (isChecked() || isDown() || underMouse());
}

void PickerButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    switch (face) {
    case Face::Key:
        paintCap(painter, rect());
        paintLegend(painter);
        break;
    case Face::Words:
        paintCap(painter, rect());
        paintWords(painter, rect());
        break;
    case Face::Tile:
        paintTile(painter);
        break;
    }
    if (hasFocus())
        look::drawFocusRing(painter, rect(), face == Face::Tile ? TileRadius : look::KeyRadius);
}

/// Paints a cap and leaves the painter with the pen for what stands on it.
void PickerButton::paintCap(QPainter &painter, const QRectF &cap) const
{
    keystyle::Colors colors{look::KeyPlain, keystyle::PlainBorder, look::Text};
    if (!isEnabled()) {
        colors = {look::KeyDisabled, look::KeyDisabled, keystyle::DisabledText};
    } else if (isDown()) {
        colors = {look::AccentPressed, look::AccentPressed, look::OnAccent};
    } else if (isChecked() || isMarked || (face == Face::Tile && underMouse())) {
        colors = {look::Accent, look::Accent, look::OnAccent};
    } else if (underMouse()) {
        colors = {look::KeyModified, look::KeyModifiedBorder, look::Accent};
    }
    keystyle::paintCap(painter, cap, keystyle::Shape::Key, colors, isEnabled() && !isDown());
    painter.setPen(colors.text);
}

void PickerButton::paintLegend(QPainter &painter) const
{
    if (text().isEmpty())
        return;
    const Legend legend = legendOf(text());
    const QRectF place = QRectF(rect()).adjusted(Margin, 0, -Margin, -1);
    const bool isAlone = legend.upper.isEmpty();
    const int size = legend.isSigns ? (isAlone ? SignSize : SignSize - 1) : WordSize;
    painter.setFont(fitting(font(), legend, size, place.width()));
    if (isAlone) {
        painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, legend.lower);
        return;
    }
    const qreal line = size + LineGap;
    const qreal middle = place.center().y();
    painter.drawText(QRectF(place.left(), middle - line, place.width(), line),
                     Qt::AlignCenter | Qt::TextSingleLine, legend.upper);
    painter.drawText(QRectF(place.left(), middle, place.width(), line), Qt::AlignCenter | Qt::TextSingleLine,
                     legend.lower);
}

void PickerButton::paintWords(QPainter &painter, const QRect &cap) const
{
    painter.setFont(look::sized(font(), look::BodySize, QFont::Normal));
    const QRect place = cap.adjusted(look::Space4, 0, -look::Space4, 0);
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
}

QIcon &PickerButton::picture()
{
    Picture &shown = isActive() ? activePicture : restPicture;
    if (shown.icon.isNull())
        shown.icon = QIcon(shown.path);
    return shown.icon;
}

void PickerButton::paintTile(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(isActive() ? look::KeyModified : look::Panel);
    painter.drawRoundedRect(rect(), TileRadius, TileRadius);

    const int top = (height() - PictureSize - look::Space8 - CaptionLine) / 2;
    if (restPicture.path.isEmpty()) {
        const QRect cap(look::Space8, top, width() - 2 * look::Space8, PictureSize);
        paintCap(painter, cap);
        paintWords(painter, cap);
    } else {
        picture().paint(&painter, QRect((width() - PictureSize) / 2, top, PictureSize, PictureSize));
    }

    painter.setFont(look::sized(font(), CaptionSize, QFont::Normal));
    painter.setPen(isActive() ? look::Accent : look::TextSecondary);
    const int captionTop = top + PictureSize + look::Space8;
    const QRect place(look::Space4, captionTop, width() - 2 * look::Space4,
                      height() - look::Space4 - captionTop);
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     caption.isEmpty() ? text() : caption);
}
