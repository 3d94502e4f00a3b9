#include "ScanPass.h"

#include <array>
#include <hidapi/hidapi.h>

using namespace std::chrono_literals;

namespace {

constexpr std::array<quint16, 2> Vendors{0x38EE, 0x320F};
constexpr quint16 Page = 0xFF1C;
constexpr quint16 Usage = 0x0092;

constexpr std::array<unsigned char, 8> GetIdentity{0x04, 0x00, 0x00, 0x30, 0x06, 0x00, 0x00, 0x00};
constexpr std::size_t ReplyLength = 16;
constexpr std::size_t CommandAt = 3;
constexpr std::size_t IdAt = 11;
constexpr int MostRounds = 10;
constexpr auto PauseBeforeRead = 20ms;
constexpr auto AnswerTime = 50ms;
constexpr auto PauseBeforeRetry = 10ms;

/// The number that the device answers, or -1 if it doesn't.
int ask(hid_device *device, const ScanStop &stop)
{
    std::array<unsigned char, ReplyLength> reply{};
    int received = 0;
    for (int round = 0; round < MostRounds; ++round) {
        hid_write(device, GetIdentity.data(), GetIdentity.size());
        if (!stop.pause(PauseBeforeRead))
            return -1;
        received = hid_read_timeout(device, reply.data(), reply.size(), int(AnswerTime.count()));
        if (reply[CommandAt] == GetIdentity[CommandAt] && reply[CommandAt + 1] == GetIdentity[CommandAt + 1])
            break;
        if (!stop.pause(PauseBeforeRetry))
            return -1;
    }
    return received > int(IdAt) ? reply[IdAt] : -1;
}

void visit(ScanPass &pass, const HidEntry &entry)
{
    hid_device *device = pass.kept.open(entry.path);
    if (!device) {
        pass.missOpen(entry, entry.path, UsbConnection);
        return;
    }
    const int id = ask(device, pass.stop);
    if (id < 0)
        return;
    pass.addDevice(entry, quint64(id), NoVendorPath, entry.path, UsbConnection, WsFamily);
    pass.see(entry.path);
}

} // namespace

void scanWsFamily(ScanPass &pass)
{
    for (const quint16 vendor : Vendors) {
        for (const HidEntry &entry : listHid(vendor)) {
            if (pass.tarnwickBuild || pass.stop.asked())
                break;
            if (isSiblingProduct(entry.productId) && entry.hasUsage(Page, Usage))
                visit(pass, entry);
        }
    }
}
