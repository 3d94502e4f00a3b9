#include "ConnectedKeyboard.h"

#include <QTest>

using virtualhid::VirtualBus;

namespace {

constexpr int Layers = 4;
/// Longer than the longest pause between two steps over a quiet wireless link.
constexpr int QuietTime = 150;

virtualhid::DevicePtr plugAlone(const char *model, const sim::DeviceOptions &options)
{
    VirtualBus::instance().reset();
    return VirtualBus::instance().plug(model, options);
}

} // namespace

ConnectedKeyboard::ConnectedKeyboard(const char *model, const sim::DeviceOptions &options)
    : keyboard(plugAlone(model, options))
{
    QObject::connect(&connection, &DialogDeviceConnect::onUpdataLayer, &connection, [this](int layer) {
        if (layer >= 0 && layer < Layers)
            connection.DoSetProfile(quint8(layer));
    });
    QObject::connect(&connection, &DialogDeviceConnect::onReadAll, &connection,
                     [this] { framesBeforeSequence = keyboard->frameCount(); });
}

ConnectedKeyboard::~ConnectedKeyboard()
{
    VirtualBus::instance().reset();
}

void ConnectedKeyboard::connectDevice()
{
    const sim::Model &model = keyboard->model();
    const std::string wireless = keyboard->path(sim::Channel::Bluetooth);
    const std::string path = wireless.empty() ? keyboard->path(sim::Channel::Command) : wireless;
    connection.DoConnectDevice(model.vendorId, model.productId, !wireless.empty(), QStringLiteral("null"),
                               QString::fromStdString(path));
}

bool ConnectedKeyboard::readAll()
{
    readDone.clear();
    connectDevice();
    return readDone.wait(20000);
}

bool ConnectedKeyboard::waitForFrames(size_t count, int limitMs) const
{
    return QTest::qWaitFor([this, count] { return keyboard->frameCount() >= count; }, limitMs);
}

void ConnectedKeyboard::settle() const
{
    size_t before = 0;
    do {
        before = keyboard->frameCount();
        QTest::qWait(QuietTime);
    } while (keyboard->frameCount() != before);
}

QByteArray ConnectedKeyboard::commands(size_t first) const
{
    const auto frames = keyboard->frames();
    QByteArray bytes;
    for (size_t i = first; i < frames.size(); ++i)
        bytes += char(frames[i].command());
    return bytes.toHex(' ').toUpper();
}

QByteArray ConnectedKeyboard::frame(size_t index, int length) const
{
    const auto frames = keyboard->frames();
    if (index >= frames.size())
        return {};
    return bytesOf(frames[index].frame.data()).first(length).toHex(' ').toUpper();
}
