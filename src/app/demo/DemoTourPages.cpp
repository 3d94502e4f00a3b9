#include "DemoTour.h"
#include "DialogDeviceConnect.h"
#include "HubWindow.h"
#include "KeyboardButton.h"
#include "ModuleKeyboard.h"
#include "PageSights.h"
#include "SuperLabel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDebug>
#include <QDialog>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTimer>

namespace {

constexpr int HexBase = 16;

/// The dialog on top, or else the hub.
QWidget *stage()
{
    if (QWidget *dialog = QApplication::activeModalWidget())
        return dialog;
    return hubWindow();
}

template <typename Widget>
Widget *showing(const QString &name)
{
    const auto candidates = stage()->findChildren<Widget *>(name);
    const auto found = std::find_if(candidates.begin(), candidates.end(),
                                    [](const Widget *widget) { return widget->isVisible(); });
    return found == candidates.end() ? nullptr : *found;
}

void click(QWidget *widget)
{
    const QPointF at(widget->rect().center());
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(widget, &event);
    }
}

bool showTab(const QString &name, int number)
{
    auto *tabs = showing<QTabWidget>(name);
    if (tabs)
        tabs->setCurrentIndex(number);
    return tabs;
}

bool press(const QString &name)
{
    if (auto *place = showing<SuperLabel>(name)) {
        click(place);
        return true;
    }
    auto *button = showing<QAbstractButton>(name);
    if (button)
        button->click();
    return button;
}

bool pressKey(const QString &code)
{
    auto *keyboard = showing<ModuleKeyboard>({});
    KeyboardButton *key = keyboard ? keyboard->keyButton(quint8(code.toUInt(nullptr, HexBase))) : nullptr;
    if (key)
        click(key);
    return key;
}

bool leaveDialog()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (dialog)
        dialog->reject();
    return dialog;
}

/// False if there is no such thing to be seen.
bool go(const QString &word)
{
    if (word == QLatin1String("^"))
        return leaveDialog();
    if (word.startsWith(u'@'))
        return pressKey(word.mid(1));
    const QStringList tab = word.split(u':');
    return tab.size() > 1 ? showTab(tab.at(0), tab.at(1).toInt()) : press(word);
}

void goOrComplain(const QString &word)
{
    if (!go(word))
        qCritical().noquote() << "The tour doesn't find" << word;
}

} // namespace

void DemoTour::planPages()
{
    for (const PageSight &sight : PageSights) {
        waitFor(QStringLiteral("the end of a read"),
                [] { return !DialogDeviceConnect::instance()->isReadingAll(); });
        const QStringList way = QString::fromLatin1(sight.way).split(u' ');
        for (const QString &word : way) {
            // A dialog holds up whoever opens it, so that is left to a turn of its own.
            if (word.startsWith(u'!'))
                act([this, word] { QTimer::singleShot(0, this, [word] { goOrComplain(word.mid(1)); }); });
            else
                act([word] { goOrComplain(word); });
        }
        picture(QString::fromLatin1(sight.picture));
    }
}
