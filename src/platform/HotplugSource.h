#pragma once

#include <memory>
#include <optional>
#include <QObject>

namespace platform {

/// Tells that some device was plugged in or pulled out, as the operating system tells it: often several times
/// for one plug, and for devices of all kinds. GUI thread only. On Windows it stays silent, since the news
/// comes as a message to the program's windows there.
class HotplugSource : public QObject
{
    Q_OBJECT

public:
    explicit HotplugSource(QObject *parent = nullptr);
    ~HotplugSource() override;

Q_SIGNALS:
    void changed();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// Whether the system is at work on devices that came or went, so that one which can't be opened yet may be
/// in a moment. Any thread. Always false on Windows.
bool devicesAreBeingSetUp();

/// The two parameters of a message that says that devices changed.
struct DeviceChangeMessage
{
    quintptr wParam;
    qintptr lParam;
};

/// Reads a native message, as QAbstractNativeEventFilter gets it; nothing if it says something else.
std::optional<DeviceChangeMessage> deviceChangeMessage(const QByteArray &eventType, void *message);

} // namespace platform
