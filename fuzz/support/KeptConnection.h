#pragma once

#include "DialogDeviceConnect.h"
#include "VirtualBus.h"

/// The connection, which is far too dear to be made for every run, and a keyboard of a model, which is new in
/// each. A run begins with both connected, nothing waiting and the cache as the connect leaves it. What the
/// console's table holds stays from run to run.
class KeptConnection
{
public:
    /// Plugs the keyboard and connects.
    explicit KeptConnection(const char *model);
    /// Ends all that goes on. Fails the run if a handle is still open, or was used after its end.
    ~KeptConnection();
    KeptConnection(const KeptConnection &) = delete;
    KeptConnection &operator=(const KeptConnection &) = delete;

    /// Connects again, from the front.
    void reconnect();

    DialogDeviceConnect &connection;
    const virtualhid::DevicePtr keyboard;
};
