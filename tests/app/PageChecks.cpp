#include "PageChecks.h"

#include "CustomTooltip.h"
#include "KeyboardButton.h"
#include "Look.h"
#include "SuperLabel.h"
#include "TextRecorder.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

namespace {

constexpr int RingReach = 4;
constexpr int MostStops = 400;
constexpr qreal CutTolerance = 1.0;
constexpr qreal LargeContrast = 3.0;
constexpr qreal LargeSize = 24.0; ///< pixels
constexpr qreal LargeBoldSize = 18.66;

QString nameOf(const QWidget *widget)
{
    const QString className = QString::fromLatin1(widget->metaObject()->className());
    QStringList path;
    for (const QWidget *up = widget; up && path.size() < 3;
         up = up->isWindow() ? nullptr : up->parentWidget()) {
        if (!up->objectName().isEmpty() && !up->objectName().startsWith(QLatin1String("qt_")))
            path.prepend(up->objectName());
    }
    return QStringLiteral("%1 (%2)").arg(path.join(u'/'), className);
}

QString boxOf(const QRectF &rect)
{
    return QStringLiteral("%1,%2 %3x%4")
        .arg(qRound(rect.x()))
        .arg(qRound(rect.y()))
        .arg(rect.width(), 0, 'f', 1)
        .arg(rect.height(), 0, 'f', 1);
}

bool isPartOfControl(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent) ||
           qobject_cast<const QTabBar *>(parent) || widget->objectName().startsWith(QLatin1String("qt_"));
}

/// A picture or a text on a control takes the pointer's shape from it.
bool isOnControl(const QWidget *widget)
{
    for (const QWidget *up = widget->parentWidget(); up; up = up->parentWidget()) {
        if (up->focusPolicy() & Qt::TabFocus)
            return true;
    }
    return false;
}

bool isControl(const QWidget *widget)
{
    if (qobject_cast<const QScrollBar *>(widget) || isPartOfControl(widget))
        return false;
    if (qobject_cast<const QScrollArea *>(widget) || qobject_cast<const QHeaderView *>(widget) ||
        widget->focusProxy())
        return false;
    const bool isHand =
        widget->testAttribute(Qt::WA_SetCursor) && widget->cursor().shape() == Qt::PointingHandCursor;
    // A button without either is the picture of a key.
    if (qobject_cast<const QAbstractButton *>(widget))
        return isHand || widget->focusPolicy() != Qt::NoFocus;
    return qobject_cast<const QAbstractSlider *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QTabBar *>(widget) || qobject_cast<const QAbstractItemView *>(widget) ||
           (widget->focusPolicy() & Qt::TabFocus) || (isHand && !isOnControl(widget));
}

QList<QWidget *> controlsIn(QWidget *window)
{
    QList<QWidget *> result;
    const auto all = window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (widget->window() == window && widget->isVisible() && !widget->size().isEmpty() &&
            isControl(widget))
            result.append(widget);
    }
    return result;
}

QRect placeIn(const QWidget *window, const QWidget *widget)
{
    return {widget->mapTo(window, QPoint()), widget->size()};
}

/// Whether a scroll area shows only a part of the widget.
bool isScrolledAway(const QWidget *widget)
{
    for (const QWidget *up = widget; up && !up->isWindow(); up = up->parentWidget()) {
        const auto *area = qobject_cast<QAbstractScrollArea *>(up->parentWidget());
        if (area && area->viewport() == up && !up->rect().contains(placeIn(up, widget)))
            return true;
    }
    return false;
}

bool fitsControl(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::NoRole:
    case QAccessible::Client:
    case QAccessible::Pane:
    case QAccessible::StaticText:
    case QAccessible::Graphic:
    case QAccessible::Window:
    case QAccessible::Grouping:
    case QAccessible::Border:
    case QAccessible::Canvas:
        return false;
    default:
        return true;
    }
}

/// A group of which only one member is a stop for Tab, and the arrow keys lead to the others.
bool sharesStop(const QWidget *widget, const QList<QWidget *> &stops)
{
    if (!(widget->focusPolicy() & Qt::TabFocus)) {
        return std::any_of(stops.begin(), stops.end(), [widget](const QWidget *stop) {
            return stop->metaObject() == widget->metaObject() &&
                   stop->parentWidget() == widget->parentWidget();
        });
    }
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    const QButtonGroup *group = button ? button->group() : nullptr;
    return std::any_of(stops.begin(), stops.end(), [=](const QWidget *stop) {
        const auto *other = qobject_cast<const QAbstractButton *>(stop);
        if (!button || !other)
            return false;
        if (group)
            return group->exclusive() && other->group() == group;
        return button->autoExclusive() && other->autoExclusive() &&
               other->parentWidget() == button->parentWidget();
    });
}

/// Neither to the right of nor below what comes before.
bool goesBack(const QRect &before, const QRect &after)
{
    return !before.contains(after) && after.left() < before.right() &&
           after.center().y() <= before.center().y();
}

/// Where Tab leads to in a window that has no focus yet.
QWidget *firstStop(QWidget *window)
{
    QWidget *stop = window->nextInFocusChain();
    while (stop != window && (!(stop->focusPolicy() & Qt::TabFocus) || !stop->isVisible() ||
                              !stop->isEnabled() || stop->focusProxy()))
        stop = stop->nextInFocusChain();
    return stop;
}

QImage imageOf(QWidget *window, const QRect &part)
{
    const qreal ratio = window->devicePixelRatioF();
    QImage image((QSizeF(part.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    window->render(&image, QPoint(), part);
    return image;
}

/// What most of the picture has; glyphs cover less than what they are written on.
QColor commonest(const QImage &image, const QRect &part)
{
    QHash<QRgb, int> counts;
    const QRect inside = part & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[image.pixel(x, y)];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? QColor() : QColor(most.key());
}

const QWidget *writerOf(QWidget *window, const DrawnText &drawn)
{
    const QRectF seen = drawn.rect & drawn.clip;
    const QPoint place = (seen.isEmpty() ? drawn.clip : seen).center().toPoint();
    const QWidget *widget = window->childAt(place);
    return widget ? widget : window;
}

QString describe(QWidget *window, const DrawnText &drawn)
{
    return QStringLiteral("%1 \"%2\"").arg(nameOf(writerOf(window, drawn)), drawn.text);
}

/// Of the drawn line what its glyphs surely take: no leading, and half of the room above small letters.
QRectF bodyOf(const DrawnText &drawn)
{
    return drawn.rect.adjusted(1, drawn.rect.height() * 0.3, -1, -drawn.rect.height() * 0.25);
}

} // namespace

QStringList pagechecks::nameless(QWidget *window)
{
    QStringList faults;
    const auto controls = controlsIn(window);
    for (QWidget *control : controls) {
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(control);
        const QString name = face ? face->text(QAccessible::Name).trimmed() : QString();
        if (name.isEmpty())
            faults << QStringLiteral("has no name: ") + nameOf(control);
        if (!face || !fitsControl(face->role()))
            faults << QStringLiteral("has the role %1: ").arg(face ? int(face->role()) : -1) +
                          nameOf(control);
        const auto *view = qobject_cast<const QAbstractItemView *>(control);
        for (int row = 0; view && row < view->model()->rowCount(); ++row) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                const QModelIndex cell = view->model()->index(row, column);
                if (cell.data().toString().isEmpty() &&
                    cell.data(Qt::AccessibleTextRole).toString().isEmpty())
                    faults << QStringLiteral("cell %1,%2 has no name: ").arg(row).arg(column) +
                                  nameOf(control);
            }
        }
    }
    return faults;
}

QStringList pagechecks::tooSmall(QWidget *window)
{
    QStringList faults;
    const auto controls = controlsIn(window);
    for (const QWidget *control : controls) {
        if (control->width() < look::SmallestTarget || control->height() < look::SmallestTarget)
            faults << QStringLiteral("is %1x%2: ").arg(control->width()).arg(control->height()) +
                          nameOf(control);
    }
    return faults;
}

QStringList pagechecks::wrongCursor(QWidget *window)
{
    QStringList faults;
    const auto controls = controlsIn(window);
    for (const QWidget *control : controls) {
        const bool isPressed = qobject_cast<const QAbstractButton *>(control) ||
                               qobject_cast<const QSlider *>(control) ||
                               qobject_cast<const QComboBox *>(control);
        const bool isTyped = qobject_cast<const QLineEdit *>(control);
        const Qt::CursorShape shape = control->cursor().shape();
        if (control->isEnabled() &&
            ((isPressed && shape != Qt::PointingHandCursor) || (isTyped && shape != Qt::IBeamCursor)))
            faults << QStringLiteral("has the pointer %1: ").arg(int(shape)) + nameOf(control);
    }
    return faults;
}

QStringList pagechecks::unexplained(QWidget *window)
{
    QStringList faults;
    const auto controls = controlsIn(window);
    for (QWidget *control : controls) {
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        const auto *place = qobject_cast<const SuperLabel *>(control);
        if (qobject_cast<const KeyboardButton *>(control) || (!button && !place))
            continue;
        if (button && (!button->text().isEmpty() || button->icon().isNull()))
            continue;
        const auto *bubble = control->findChild<CustomTooltip *>();
        if (control->toolTip().isEmpty() && (!bubble || bubble->text().isEmpty()))
            faults << QStringLiteral("has no tooltip: ") + nameOf(control);
    }
    return faults;
}

QStringList pagechecks::outOfReach(QWidget *window)
{
    QStringList faults;
    if (window != QApplication::activeWindow() || window->focusPolicy() != Qt::NoFocus ||
        firstStop(window) == window)
        return faults; // a bubble is one control, and goes with the focus
    const QPointer<QWidget> before = QApplication::focusWidget();
    if (QWidget *focused = window->focusWidget())
        focused->clearFocus();
    QList<QWidget *> stops;
    while (stops.size() < MostStops) {
        QWidget *from = stops.isEmpty() ? nullptr : stops.last();
        if (from)
            QTest::keyClick(from, Qt::Key_Tab);
        else
            firstStop(window)->setFocus(Qt::TabFocusReason);
        QWidget *stop = QApplication::focusWidget();
        if (stop && stop == from) { // a box that takes any key took this one
            QTest::keyClick(from, Qt::Key_Tab);
            stop = QApplication::focusWidget();
        }
        if (!stop || stops.contains(stop))
            break;
        const QRect place = placeIn(window, stop).adjusted(-RingReach, -RingReach, RingReach, RingReach);
        const QImage focused = imageOf(window, place);
        stop->clearFocus();
        if (focused == imageOf(window, place))
            faults << QStringLiteral("doesn't show the focus: ") + nameOf(stop);
        stop->setFocus(Qt::TabFocusReason);
        if (!stops.isEmpty() && goesBack(placeIn(window, stops.last()), placeIn(window, stop)))
            faults << QStringLiteral("Tab goes back to %1 from %2").arg(nameOf(stop), nameOf(stops.last()));
        stops.append(stop);
    }
    const auto controls = controlsIn(window);
    for (QWidget *control : controls) {
        if (control->isEnabled() && !stops.contains(control) && !sharesStop(control, stops))
            faults << QStringLiteral("is out of Tab's reach: ") + nameOf(control);
    }
    if (before)
        before->setFocus();
    return faults;
}

QStringList pagechecks::clipped(QWidget *window)
{
    QStringList faults;
    const QList<DrawnText> texts = drawnTexts(window);
    for (const DrawnText &drawn : texts) {
        const QWidget *writer = writerOf(window, drawn);
        if (isScrolledAway(writer))
            continue;
        QRectF body = drawn.rect.adjusted(CutTolerance, drawn.rect.height() / 4, -CutTolerance,
                                          -drawn.rect.height() / 4);
        if (qobject_cast<const QAbstractItemView *>(
                writer->parentWidget())) // whose rows are scrolled away, too
            body &= QRectF(body.left(), drawn.clip.top(), body.width(), drawn.clip.height());
        if (!drawn.clip.contains(body)) {
            faults << QStringLiteral("is cut (%1 in %2): ").arg(boxOf(drawn.rect), boxOf(drawn.clip)) +
                          describe(window, drawn);
        } else if (drawn.text.contains(QChar(0x2026)) && !qobject_cast<const QLineEdit *>(writer)) {
            faults << QStringLiteral("is shortened (%1): ").arg(boxOf(drawn.rect)) + describe(window, drawn);
        }
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        for (qsizetype k = i + 1; k < texts.size(); ++k) {
            const QRectF both =
                bodyOf(texts.at(i)) & bodyOf(texts.at(k)) & texts.at(i).clip & texts.at(k).clip;
            if (!both.isEmpty())
                faults << QStringLiteral("is written over %1: ").arg(describe(window, texts.at(i))) +
                              describe(window, texts.at(k));
        }
    }
    return faults;
}

QStringList pagechecks::pale(QWidget *window)
{
    QStringList faults;
    const QImage image = imageOf(window, window->rect());
    const qreal ratio = image.devicePixelRatio();
    const auto texts = drawnTexts(window);
    for (const DrawnText &drawn : texts) {
        const QWidget *writer = writerOf(window, drawn);
        const QRectF seen = drawn.rect & drawn.clip;
        if (!writer->isEnabled() || seen.isEmpty())
            continue;
        const QColor ground =
            commonest(image, QRectF(seen.topLeft() * ratio, seen.size() * ratio).toAlignedRect());
        const qreal found = look::contrast(look::laidOver(drawn.color, ground), ground);
        const bool large = drawn.pixelSize >= (drawn.bold ? LargeBoldSize : LargeSize);
        if (found < (large ? LargeContrast : look::LeastContrast) - 0.005)
            faults << QStringLiteral("%1:1, %2 on %3: ")
                              .arg(found, 0, 'f', 2)
                              .arg(drawn.color.name(QColor::HexArgb), ground.name()) +
                          describe(window, drawn);
    }
    return faults;
}
