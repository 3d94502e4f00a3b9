#include "KeptConnection.h"

#include "FuzzClock.h"
#include "FuzzProgram.h"

#include <QPlainTextEdit>
#include <QSettings>

using namespace std::chrono_literals;
using virtualhid::VirtualBus;

namespace {

constexpr auto IdentificationTime = 160ms; ///< on the cable
constexpr auto AirFactor = 4;
constexpr auto LongestTimer = 900ms;
constexpr auto LastTimers = 60ms; ///< that the longest ones set off

DialogDeviceConnect &theConnection()
{
    static DialogDeviceConnect *connection = nullptr;
    if (!connection) {
        connection = new DialogDeviceConnect;
        // Setting the log's lines would take most of the time of all runs; making them is left to "replies".
        delete connection->findChild<QPlainTextEdit *>();
        // A file for each connect, and no temporary one beside it.
        connection->findChild<QSettings *>()->setAtomicSyncRequired(false);
    }
    return *connection;
}

} // namespace

KeptConnection::KeptConnection(const char *model)
    : connection(theConnection())
    , keyboard(VirtualBus::instance().plug(model))
{
    reconnect();
    const bool wireless = !keyboard->path(sim::Channel::Bluetooth).empty();
    fuzzclock::letTimePass(IdentificationTime * (wireless ? AirFactor : 1));
    fuzzprogram::require(!connection.isReadingAll());
}

void KeptConnection::reconnect()
{
    static int number = 0;
    const sim::Model &model = keyboard->model();
    const std::string wireless = keyboard->path(sim::Channel::Bluetooth);
    connection.DoConnectDevice(model.vendorId, model.productId, !wireless.empty(), QString::number(++number),
                               QString::fromStdString(wireless));
}

KeptConnection::~KeptConnection()
{
    VirtualBus &bus = VirtualBus::instance();
    connection.disconnect(&connection);
    connection.DoStopCalibration();
    connection.DoSetLedEffect(0, 0);
    fuzzprogram::require(bus.counters().misuses == 0);
    bus.reset();
    fuzzclock::skip(LongestTimer);
    fuzzclock::letTimePass(LastTimers);
    connection.DoConnectDevice(0, 0, false, {}, {});
    connection.DoStopCalibration(); // drops what waits
    fuzzprogram::require(!connection.isConnected() && bus.openHandles() == 0);
    const_cast<DeviceCache &>(connection.deviceCache()) = {};
}
