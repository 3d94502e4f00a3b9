#include "KeyPage.h"

#include "KeyMatrix.h"
#include "KeyPicker.h"
#include "keySetTooltip.h"

#include <memory>
#include <QApplication>
#include <QEnterEvent>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace {

QByteArray hex(const sim::KeyEntry &entry)
{
    return bytesOf(entry).toHex(' ').toUpper();
}

void pickIn(const QWidget *picker, const QByteArrayList &steps)
{
    for (const QByteArray &step : steps) {
        bool isTab = false;
        const int tab = step.toInt(&isTab);
        const QString button = QLatin1String("pushButton_") + QLatin1String(step);
        if (isTab)
            picker->findChild<QTabWidget *>()->setCurrentIndex(tab);
        else if (!step.isEmpty() && step != "cancel")
            picker->findChild<QAbstractButton *>(button)->click();
    }
    const QString end = QLatin1String(steps.last() == "cancel" ? "pushButtonCancel" : "pushButtonOK");
    picker->findChild<QAbstractButton *>(end)->click();
}

} // namespace

ConnectedKeyboard *KeyPage::device(bool forget)
{
    static std::unique_ptr<ConnectedKeyboard> kept;
    if (forget) {
        kept.reset();
    } else if (!kept) {
        kept = std::make_unique<ConnectedKeyboard>("wired-500");
        if (!kept->readAll())
            return nullptr;
        kept->settle();
    }
    return kept.get();
}

KeyPage::KeyPage()
    : keyboard(page.findChild<ModuleKeyboard *>())
{
    page.resize(1124, 740);
    page.show();
}

void KeyPage::openTab(Tab tab) const
{
    openMode(Advanced);
    find<QTabWidget>("tabWidgetAdv")->setCurrentIndex(tab);
}

bool KeyPage::pick(const QByteArray &steps, const std::function<void()> &open) const
{
    bool came = false;
    QTimer::singleShot(0, &page, [&came, steps] {
        const auto *picker = qobject_cast<KeyPicker *>(QApplication::activeModalWidget());
        came = picker;
        if (picker)
            pickIn(picker, steps.split(' '));
    });
    open();
    QCoreApplication::processEvents();
    return came;
}

void KeyPage::useActionOf(quint8 code) const
{
    KeyboardButton *button = keyboard->keyButton(code);
    keyboard->setKeyEnabledState(button, !button->isEnabled(), true);
    device()->settle();
}

QByteArray KeyPage::commandsOf(const QByteArray &button) const
{
    device()->settle();
    const size_t before = device()->keyboard->frameCount();
    press(button);
    device()->settle();
    return device()->commands(before);
}

QString KeyPage::shown(quint8 code) const
{
    KeyboardButton *button = keyboard->keyButton(code);
    if (!button->isEnabledTo(keyboard))
        return QStringLiteral("disabled");
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(button, &enter);
    const auto *bubble = button->findChild<keySetTooltip *>();
    return bubble ? bubble->title() + QLatin1Char('|') + bubble->body() : QString();
}

QByteArray KeyPage::heldEntry(quint8 code, int layer)
{
    const sim::KeyboardState state = device()->keyboard->state();
    return hex(state.keys.key(state.profile, layer, keys::PositionOfCode(code)));
}

QByteArray KeyPage::heldFnEntry(quint8 code)
{
    return hex(device()->keyboard->state().keys.fn(keys::PositionOfCode(code)));
}

QList<quint32> KeyPage::heldValues(quint8 code, const QList<quint8> &tables)
{
    QList<quint32> values;
    for (const quint8 table : tables)
        values += device()->keyboard->state().active().magnetism.value(table, keys::PositionOfCode(code));
    return values;
}
