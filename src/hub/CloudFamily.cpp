// The cloud driver family with the native keyboards: on the cable, behind a receiver and over Bluetooth.

#include "CommandCatalogue.h"
#include "EnumSettings.h"
#include "Framing.h"
#include "HidHandle.h"
#include "ScanPass.h"
#include "WiredProbe.h"

#include <array>
#include <hidapi/hidapi.h>
#include <mutex>
#include <QMutex>
#include <QtEndian>

using namespace std::chrono_literals;

namespace {

constexpr quint16 BluetoothPage = 0xFF55;
constexpr quint16 BluetoothUsage = 0x0202;
constexpr quint16 CommandPage = 0xFFFF;
constexpr quint16 CommandUsage = 0x0002;
constexpr quint16 ScreenPage = 0xFF01;
constexpr quint16 ScreenUsage = 0x0001;
constexpr quint16 ScreenVendor = 0x3151;
constexpr quint16 ScreenProduct = 0x504A;
constexpr QLatin1String ScreenVendorPath("HitScreen");

constexpr int MostBluetoothRounds = 5;
constexpr auto BluetoothAnswerTime = 200ms;
constexpr auto PauseBeforeRetry = 100ms;
constexpr auto AirPause = 5ms;
constexpr std::size_t CommandAt = 2; // after report id and prefix
constexpr std::size_t IdAt = 3;

/// Waits for the pump's question to be answered; false if the thread is to leave.
bool enterAir(std::unique_lock<QMutex> &air, const ScanStop &stop)
{
    while (!air.try_lock()) {
        if (!stop.pause(AirPause))
            return false;
    }
    return true;
}

quint32 askOverBluetooth(hid_device *device, const ScanStop &stop)
{
    const QByteArray request = framing::wrapWireless(framing::close(QByteArray(1, char(command::GetInfo))));
    std::array<unsigned char, framing::WirelessReportLength> reply{};
    for (int round = 0; round < MostBluetoothRounds; ++round) {
        std::unique_lock air(airMutex(), std::defer_lock);
        if (!enterAir(air, stop))
            return 0;
        hid_write(device, reinterpret_cast<const unsigned char *>(request.constData()),
                  std::size_t(request.size()));
        hid_read_timeout(device, reply.data(), reply.size(), int(BluetoothAnswerTime.count()));
        if (reply[CommandAt] == command::GetInfo || reply[CommandAt] == command::GetSideLedParam)
            break;
        air.unlock();
        if (!stop.pause(PauseBeforeRetry))
            return 0;
    }
    return qFromLittleEndian<quint32>(reply.data() + IdAt);
}

/// Walks the interfaces of one vendor after another. A keyboard's command interface sets both pending paths
/// and is probed at once; one that can't be opened stays pending and is tried again when the next interface
/// comes by.
class CloudScan
{
public:
    explicit CloudScan(ScanPass &scanPass)
        : pass(scanPass)
    {
    }

    void visit(const HidEntry &entry)
    {
        if (entry.hasUsage(BluetoothPage, BluetoothUsage)) {
            visitBluetooth(entry);
            return;
        }
        const bool screen = entry.hasUsage(ScreenPage, ScreenUsage) && entry.vendorId == ScreenVendor &&
                            entry.productId == ScreenProduct;
        const bool command = entry.hasUsage(CommandPage, CommandUsage);
        if (command || screen) {
            pendingVendorPath = screen ? QString(ScreenVendorPath) : entry.path;
            pendingDevicePath = entry.path;
        }
        if (command || screen || entry.usagePage == BluetoothPage)
            probePending(entry);
    }

private:
    void visitBluetooth(const HidEntry &entry)
    {
        pendingDevicePath = entry.path;
        pass.see(entry.path);
        hid_device *device = pass.kept.open(entry.path);
        if (!device) {
            pass.missOpen(entry, entry.path, BluetoothConnection);
            return;
        }
        if (const quint32 id = askOverBluetooth(device, pass.stop))
            pass.addDevice(entry, id, NoVendorPath, entry.path, BluetoothConnection, CloudFamily);
    }

    void probePending(const HidEntry &entry)
    {
        if (pendingVendorPath.isEmpty() || pendingDevicePath.isEmpty())
            return;
        pass.see(pendingDevicePath);
        HidHandle handle = HidHandle::open(pendingDevicePath.toUtf8());
        if (!handle) {
            pass.missOpen(entry, pendingDevicePath, UsbConnection);
            return;
        }
        const ProbedIdentity identity =
            WiredProbe(std::move(handle), pendingDevicePath, entry, pass.stop).run();
        pass.addDevice(entry, identity.id, pendingVendorPath, pendingDevicePath, identity.connection,
                       CloudFamily);
        pendingVendorPath.clear();
        pendingDevicePath.clear();
    }

    ScanPass &pass;
    QString pendingVendorPath;
    QString pendingDevicePath;
};

} // namespace

void scanCloudFamily(ScanPass &pass)
{
    CloudScan scan(pass);
    for (const quint16 vendor : enumsettings::cloudVendors()) {
        if (pass.stop.asked())
            return;
        for (const HidEntry &entry : listHid(vendor)) {
            if (pass.stop.asked())
                return;
            if (!isSiblingProduct(entry.productId))
                scan.visit(entry);
        }
    }
}
