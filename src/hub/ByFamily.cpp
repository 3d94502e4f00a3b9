#include "HidHandle.h"
#include "ScanPass.h"

#include <algorithm>
#include <array>
#include <hidapi/hidapi.h>
#include <numeric>

using namespace std::chrono_literals;

namespace {

constexpr quint16 Vendor = 0x38EE;
constexpr quint16 Product = 0x0016;
constexpr quint16 Page = 0xFF60;

constexpr std::array<unsigned char, 7> GetIdentity{0x09, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
constexpr std::size_t ReportLength = 64;
constexpr int TextAt = 7;
constexpr int TextBytes = 6;
constexpr auto AnswerTime = 50ms;

/// The 12 digits by which the device and its driver know each other. The reply comes into the request's
/// place: where there is none, the text is that of the request, all zeros.
QString ask(hid_device *device)
{
    std::array<unsigned char, ReportLength> report{};
    std::copy(GetIdentity.begin(), GetIdentity.end(), report.begin());
    report.back() = static_cast<unsigned char>(~std::accumulate(report.begin(), report.end() - 1, 0u));
    hid_write(device, report.data(), report.size());
    hid_read_timeout(device, report.data(), report.size(), int(AnswerTime.count()));
    const auto *text = reinterpret_cast<const char *>(report.data()) + TextAt;
    return QString::fromLatin1(QByteArray(text, TextBytes).toHex());
}

} // namespace

void scanByFamily(ScanPass &pass)
{
    for (const HidEntry &entry : listHid(Vendor, Product)) {
        if (pass.stop.asked())
            return;
        if (entry.usagePage != Page)
            continue;
        const HidHandle handle = HidHandle::open(entry.path.toUtf8());
        if (!handle)
            continue;
        const QString text = ask(handle.get());
        const quint64 id = text.toULongLong(); // decimal: with a letter among the digits it is 0
        pass.addDevice(entry, id, text, text, UsbConnection, ByFamily);
        pass.see(text);
    }
}
