#include "Desktop.h"

#include <algorithm>
#include <cstdlib>
#include <QFile>
#include <QGuiApplication>
#include <QRect>
#include <QTemporaryDir>
#include <QThread>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <xcb/shape.h>
#include <xcb/xtest.h>

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// The answer of the request xcb_NAME, or null.
#define ASK(name, ...)                                                                                       \
    Reply<xcb_##name##_reply_t>(xcb_##name##_reply(server(), xcb_##name(server(), __VA_ARGS__), nullptr),    \
                                &std::free)

xcb_connection_t *server()
{
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

xcb_atom_t atom(QByteArrayView name)
{
    return ASK(intern_atom, 0, quint16(name.size()), name.data())->atom;
}

/// A program that ends with the test, however that ends.
pid_t run(const std::vector<const char *> &arguments)
{
    const pid_t process = ::fork();
    if (process == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        std::vector<char *> copy;
        copy.reserve(arguments.size() + 1);
        for (const char *argument : arguments)
            copy.push_back(const_cast<char *>(argument));
        copy.push_back(nullptr);
        ::execvp(copy[0], copy.data());
        ::_exit(127);
    }
    return process;
}

void end(pid_t process)
{
    if (process > 0) {
        ::kill(process, SIGTERM);
        ::waitpid(process, nullptr, 0);
    }
}

/// Starts an X server on a number of its own choice, which it writes to a pipe once it is ready.
QByteArray startServer(pid_t &process)
{
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("no pipe for the X server");
    process = run({"Xvfb", "-displayfd", QByteArray::number(ends[1]).constData(), "-screen", "0",
                   "1920x1200x24", "-nolisten", "tcp", "-noreset"});
    ::close(ends[1]);
    char text[16]{};
    const ssize_t length = ::read(ends[0], text, sizeof text - 1);
    ::close(ends[0]);
    if (length <= 0)
        qFatal("Xvfb doesn't start");
    return ':' + QByteArray(text).trimmed();
}

/// Starts a window manager, which makes a file once it serves windows; before that it loses some.
pid_t startManager()
{
    const QTemporaryDir folder;
    const QString ready = folder.filePath(QStringLiteral("ready"));
    const pid_t process =
        run({"openbox", "--sm-disable", "--startup", ("touch " + ready.toUtf8()).constData()});
    for (int round = 0; !QFile::exists(ready); ++round) {
        if (round == 500)
            qFatal("openbox doesn't start");
        QThread::msleep(10);
    }
    return process;
}

} // namespace

struct Desktop::Private
{
    pid_t server = 0;
    pid_t manager = 0;
};

Desktop::Desktop()
    : d(std::make_unique<Private>())
{
    qputenv("DISPLAY", startServer(d->server));
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"); // no services of the user's own desktop
    if (qgetenv("ORBE_TEST_DESKTOP") != "bare")
        d->manager = startManager();
}

Desktop::~Desktop()
{
    end(d->manager);
    end(d->server);
}

bool Desktop::isShown(quintptr window)
{
    const auto attributes = ASK(get_window_attributes, xcb_window_t(window));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

quintptr Desktop::parentOf(quintptr window)
{
    const auto tree = ASK(query_tree, xcb_window_t(window));
    return tree ? tree->parent : 0;
}

bool Desktop::isTopmost(quintptr window)
{
    const auto states =
        ASK(get_property, 0, xcb_window_t(window), atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 0, 16);
    const auto *first = static_cast<const xcb_atom_t *>(xcb_get_property_value(states.get()));
    return std::count(first, first + states->value_len, atom("_NET_WM_STATE_ABOVE")) > 0;
}

bool Desktop::covers(quintptr window, QPoint point)
{
    const auto shape = ASK(shape_get_rectangles, xcb_window_t(window), XCB_SHAPE_SK_BOUNDING);
    const xcb_rectangle_t *first = xcb_shape_get_rectangles_rectangles(shape.get());
    return std::any_of(first, first + shape->rectangles_len, [point](const xcb_rectangle_t &part) {
        return QRect(part.x, part.y, part.width, part.height).contains(point);
    });
}

void Desktop::holdKey(Qt::Key key, bool down)
{
    // key codes of the usual keyboard
    const quint8 code = key == Qt::Key_Escape ? 9 : key == Qt::Key_Control ? 37 : 40;
    xcb_test_fake_input(server(), down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, code, XCB_CURRENT_TIME,
                        XCB_WINDOW_NONE, 0, 0, 0);
    xcb_flush(server());
}
