#pragma once

#include "HidEntry.h"
#include "HidHandle.h"
#include "ScanStop.h"

#include <array>
#include <chrono>

/// What a probe learnt of a device; id 0 if nothing.
struct ProbedIdentity
{
    quint32 id = 0;
    quint16 connection = 0; ///< see ConnectionTypes
};

/// Asks a device of the cloud driver family on its feature reports who it is; if a receiver answers, asks the
/// keyboard behind it. Enumeration thread; takes 150 ms for a keyboard on the cable, up to 3 s for a
/// receiver.
class WiredProbe
{
public:
    /// \a path is what \a handle was opened by; \a device any interface of the same device.
    WiredProbe(HidHandle handle, const QString &path, const HidEntry &device, const ScanStop &stop);

    /// Doesn't return while a device that is plugged in keeps the answer to itself, until told to stop.
    ProbedIdentity run();

private:
    bool askDevice(quint32 &id);
    ProbedIdentity askThroughReceiver();
    template <typename Ready>
    bool pollReceiver(Ready ready);
    bool exchange(quint8 command, std::chrono::milliseconds wait, quint8 argument = 0);
    bool isGone();
    quint32 idInReply() const;

    HidHandle handle;
    const QString path;
    const quint16 vendorId;
    const quint16 productId;
    const ScanStop &stop;
    std::array<unsigned char, 65> reply{}; ///< a read that brings nothing leaves the last one
    bool sent = false;                     ///< the last request went out
    int received = 0;                      ///< what the last read returned
};
