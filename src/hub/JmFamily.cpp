#include "ScanPass.h"

namespace {

constexpr quint16 Vendor = 0x3554;
constexpr quint16 Page = 0xFF02;
constexpr quint16 Usage = 0x0002;
constexpr quint64 DeviceId = 0xFB29;

} // namespace

/// These devices aren't asked: all of them have the same id.
void scanJmFamily(ScanPass &pass)
{
    for (const HidEntry &entry : listHid(Vendor)) {
        if (pass.tarnwickBuild || pass.stop.asked())
            return;
        if (!entry.hasUsage(Page, Usage))
            continue;
        pass.addDevice(entry, DeviceId, NoVendorPath, entry.path, UsbConnection, JmFamily);
        pass.see(entry.path);
    }
}
