#pragma once

#include "HidHandle.h"

#include <map>
#include <QString>

/// The handles that probes leave open for the life of the process: one for each path, used again by every
/// pass. Enumeration thread only.
class KeptHandles
{
public:
    /// The handle for that path, with nothing in its input queue, as if it were new; null if it can't be
    /// opened. One that died with an unplug is replaced. Valid until the next call.
    hid_device *open(const QString &path);

    /// Closes what the pass that ends here didn't open: those devices are gone.
    void endPass();

private:
    struct Kept
    {
        HidHandle handle;
        bool used = false; ///< in the present pass
    };
    std::map<QString, Kept> kept;
};
