#include "KeyState.h"

#include "EmbeddedWindows.h"
#include "X11.h"

#include <array>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMultiHash>
#include <QSet>

namespace platform {

namespace {

/// Follows the keys that the program's windows are told of. What is held when another program takes over
/// counts as released: its release goes there.
class HeldKeys : public QObject
{
public:
    HeldKeys()
        : QObject(QCoreApplication::instance())
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool contains(int key) const { return held.contains(key); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
            held.insert(static_cast<QKeyEvent *>(event)->key());
            break;
        case QEvent::KeyRelease:
            if (!static_cast<QKeyEvent *>(event)->isAutoRepeat())
                held.remove(static_cast<QKeyEvent *>(event)->key());
            break;
        case QEvent::ApplicationStateChange:
            held.clear();
            break;
        default:
            break;
        }
        return false;
    }

private:
    QSet<int> held;
};

/// What a key is called where: by Qt, by the X server's keyboard map (two names), and the key code of the
/// usual keyboard, for layouts that have no such letter.
struct KeyNames
{
    Qt::Key qt;
    std::array<xcb_keysym_t, 2> symbols;
    xcb_keycode_t usual;
};

const KeyNames &namesOf(Key key)
{
    static constexpr KeyNames Escape{Qt::Key_Escape, {0xFF1B, 0xFF1B}, 9};
    static constexpr KeyNames Control{Qt::Key_Control, {0xFFE3, 0xFFE4}, 37};
    static constexpr KeyNames D{Qt::Key_D, {'d', 'D'}, 40};
    switch (key) {
    case Key::Escape:
        return Escape;
    case Key::Control:
        return Control;
    case Key::D:
        break;
    }
    return D;
}

/// Asks the X server, which knows of keys that go to a driver's window inside ours, too.
class ServerKeys
{
public:
    bool contains(const KeyNames &names)
    {
        const bool active = QGuiApplication::applicationState() == Qt::ApplicationActive;
        if (active && !wasActive)
            readMapping(); // the user may have changed the layout meanwhile
        wasActive = active;
        if (!active)
            return false;
        const auto cookie = xcb_query_keymap(x11::connection());
        const x11::Reply<xcb_query_keymap_reply_t> keys(
            xcb_query_keymap_reply(x11::connection(), cookie, nullptr));
        if (!keys)
            return false;
        const auto isDown = [&keys](xcb_keycode_t code) { return keys->keys[code / 8] >> (code % 8) & 1; };
        bool known = false;
        for (const xcb_keysym_t symbol : names.symbols) {
            const auto range = codes.equal_range(symbol);
            for (auto code = range.first; code != range.second; ++code) {
                known = true;
                if (isDown(*code))
                    return true;
            }
        }
        return !known && isDown(names.usual);
    }

private:
    void readMapping()
    {
        codes.clear();
        const xcb_setup_t *setup = xcb_get_setup(x11::connection());
        const auto count = quint8(setup->max_keycode - setup->min_keycode + 1);
        const auto cookie = xcb_get_keyboard_mapping(x11::connection(), setup->min_keycode, count);
        const x11::Reply<xcb_get_keyboard_mapping_reply_t> mapping(
            xcb_get_keyboard_mapping_reply(x11::connection(), cookie, nullptr));
        if (!mapping)
            return;
        const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
        for (int i = 0; i < count * mapping->keysyms_per_keycode; ++i) {
            if (symbols[i]) {
                codes.insert(symbols[i],
                             xcb_keycode_t(setup->min_keycode + i / mapping->keysyms_per_keycode));
            }
        }
    }

    QMultiHash<xcb_keysym_t, xcb_keycode_t> codes;
    bool wasActive = false;
};

} // namespace

bool isKeyDown(Key key)
{
    if (!QCoreApplication::instance())
        return false;
    static const auto *ownKeys = new HeldKeys; // belongs to the application object
    // The question to the server costs a wait of its own, 30 times a second: only for who needs it.
    if (x11::connection() && EmbeddedWindows::wasAnyTaken()) {
        static ServerKeys serverKeys;
        return serverKeys.contains(namesOf(key));
    }
    return ownKeys->contains(namesOf(key).qt);
}

} // namespace platform
