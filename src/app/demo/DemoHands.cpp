#include "DemoHands.h"

#include "DemoDesk.h"
#include "HubWindow.h"
#include "KeyboardButton.h"
#include "ModuleKeyboard.h"
#include "SuperLabel.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QTableView>
#include <QTabWidget>

namespace {

constexpr int HexBase = 16;
constexpr QChar Enter = u'\r';

/// The first that is called so and can be seen; an empty name stands for any. A class's name does as well
/// where the widget has none of its own.
template <typename Widget>
Widget *showingIn(const QWidget *window, const QString &path)
{
    const qsizetype slash = path.indexOf(u'/');
    if (slash >= 0) {
        const auto *folder = showingIn<QWidget>(window, path.first(slash));
        return folder ? showingIn<Widget>(folder, path.sliced(slash + 1)) : nullptr;
    }
    const auto candidates = window->findChildren<Widget *>(path);
    const auto found = std::find_if(candidates.begin(), candidates.end(),
                                    [](const Widget *widget) { return widget->isVisible(); });
    return found == candidates.end() ? nullptr : *found;
}

/// Looks into the dialog on top, or else into the hub and the small windows beside it.
template <typename Widget>
Widget *showing(const QString &path)
{
    if (const QWidget *dialog = QApplication::activeModalWidget())
        return showingIn<Widget>(dialog, path);
    if (Widget *widget = showingIn<Widget>(hubWindow(), path))
        return widget;
    const QString first = path.section(u'/', 0, 0);
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window == hubWindow() || !window->isVisible())
            continue;
        const bool named = !first.isEmpty() && (window->objectName() == first ||
                                                first == QLatin1String(window->metaObject()->className()));
        if (named && first == path)
            return qobject_cast<Widget *>(window);
        if (Widget *widget = showingIn<Widget>(window, named ? path.section(u'/', 1) : path))
            return widget;
    }
    return nullptr;
}

void click(QWidget *widget, const QPoint &place, Qt::MouseButton button = Qt::LeftButton)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, widget->mapToGlobal(place), button, button, {});
        QApplication::sendEvent(widget, &event);
    }
}

bool press(const QString &name)
{
    // A place of the navigation is a button, too, to all but its class.
    if (auto *button = showing<QAbstractButton>(name)) {
        button->click();
        return true;
    }
    auto *widget = showing<QWidget>(name);
    if (widget)
        click(widget, widget->rect().center());
    return widget;
}

bool pressEffect(const QString &id)
{
    const QString ending = QStringLiteral("(%1)").arg(id);
    const auto buttons = hubWindow()->findChildren<QAbstractButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&ending](const QAbstractButton *button) {
        return button->isVisible() && button->text().endsWith(ending);
    });
    if (found == buttons.end())
        return false;
    (*found)->click();
    if (auto *area = showing<QScrollArea>(QStringLiteral("frameLEDMode/scrollArea")))
        area->ensureWidgetVisible(*found);
    return true;
}

bool showTab(const QString &name, int number)
{
    auto *tabs = showing<QTabWidget>(name);
    if (tabs)
        tabs->setCurrentIndex(number);
    return tabs;
}

bool pressCell(const QString &name, int row, int column)
{
    auto *table = showing<QTableView>(name);
    const QModelIndex cell = table ? table->model()->index(row, column) : QModelIndex();
    if (cell.isValid())
        click(table->viewport(), table->visualRect(cell).center());
    return cell.isValid();
}

void type(QWidget *widget, const QString &text)
{
    for (const QChar letter : text) {
        const int key = letter == Enter ? int(Qt::Key_Return) : letter.toUpper().unicode();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(letter));
            QApplication::sendEvent(widget, &event);
        }
    }
}

bool typeOnComputer(const QString &text)
{
    QWidget *focused = QApplication::focusWidget();
    type(focused ? focused : hubWindow(), text);
    return true;
}

bool setValue(const QString &name, const QString &value)
{
    if (auto *edit = showing<QLineEdit>(name)) {
        edit->selectAll();
        type(edit, value);
        return true;
    }
    if (auto *slider = showing<QAbstractSlider>(name)) {
        slider->setValue(value.toInt());
        return true;
    }
    if (auto *box = showing<QSpinBox>(name)) {
        box->setValue(value.toInt());
        return true;
    }
    auto *choice = showing<QComboBox>(name);
    if (choice)
        choice->setCurrentIndex(value.toInt());
    return choice;
}

KeyboardButton *keyOf(const QString &code)
{
    const auto *keyboard = showing<ModuleKeyboard>({});
    return keyboard ? keyboard->keyButton(quint8(code.toUInt(nullptr, HexBase))) : nullptr;
}

bool pressKey(const QString &code)
{
    KeyboardButton *key = keyOf(code);
    if (key)
        click(key, key->rect().center());
    return key;
}

bool pressKeyRight(const QString &code)
{
    const KeyboardButton *key = keyOf(code);
    if (key)
        click(key->parentWidget(), key->geometry().center(), Qt::RightButton);
    return key;
}

bool restOn(const QWidget *widget)
{
    if (widget)
        QCursor::setPos(widget->mapToGlobal(widget->rect().center()));
    return widget;
}

bool leaveDialog()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (dialog)
        dialog->reject();
    return dialog;
}

bool leaveSmallWindow()
{
    hubWindow()->activateWindow();
    return true;
}

bool carryOutMarked(QChar mark, const QString &rest, DemoDesk &desk)
{
    switch (mark.unicode()) {
    case u'+':
        return pressEffect(rest);
    case u'@':
        return pressKey(rest);
    case u'&':
        return pressKeyRight(rest);
    case u'?':
        return restOn(keyOf(rest));
    case u'<':
        return restOn(showing<QWidget>(rest));
    case u'*':
        return desk.holdKey(rest.toInt(nullptr, HexBase));
    case u'~':
        return typeOnComputer(rest == QLatin1String("Enter") ? QString(Enter) : rest);
    default:
        return false;
    }
}

} // namespace

bool demohands::carryOut(const QString &word, DemoDesk &desk)
{
    static const QString Marks = QStringLiteral("+@&?<*~");
    static const QRegularExpression Cell(QStringLiteral("^(.+)\\[(\\d+),(\\d+)\\]$"));
    if (word == QLatin1String("^"))
        return leaveDialog();
    if (word == QLatin1String("_"))
        return leaveSmallWindow();
    if (Marks.contains(word.front()))
        return carryOutMarked(word.front(), word.sliced(1), desk);
    if (const QRegularExpressionMatch cell = Cell.match(word); cell.hasMatch())
        return pressCell(cell.captured(1), cell.captured(2).toInt(), cell.captured(3).toInt());
    if (const qsizetype sign = word.indexOf(u'='); sign > 0)
        return setValue(word.first(sign), word.sliced(sign + 1));
    if (const qsizetype sign = word.indexOf(u':'); sign > 0)
        return showTab(word.first(sign), word.sliced(sign + 1).toInt());
    return press(word);
}

void demohands::parkPointer()
{
    QCursor::setPos(hubWindow()->screen()->geometry().bottomRight());
}

QRect demohands::whatShows()
{
    const QWidget *hub = hubWindow();
    const auto placeOf = [](const QWidget *window) {
        const bool framed = !window->windowFlags().testFlag(Qt::FramelessWindowHint);
        return framed ? window->frameGeometry() : QRect(window->mapToGlobal(QPoint()), window->size());
    };
    QRect all = hub->isVisible() ? placeOf(hub) : QRect();
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const bool shows = window->isVisible() && !window->isMinimized() && window->windowOpacity() > 0;
        // One that doesn't touch the hub isn't at its place yet.
        if (shows && (!hub->isVisible() || placeOf(window).intersects(placeOf(hub))))
            all |= placeOf(window);
    }
    return all & hub->screen()->geometry();
}
