#pragma once

#include "ScanResult.h"

#include <memory>
#include <QList>
#include <QObject>
#include <vector>

class OrbeDeviceEnum;

/// The records of all devices that were found, in the order of first sighting. GUI thread only.
class DeviceList : public QObject
{
    Q_OBJECT

public:
    explicit DeviceList(QObject *parent = nullptr);
    ~DeviceList() override;

    /// Applies the results of \a enumeration as its passes end, on this object's thread.
    void watch(OrbeDeviceEnum *enumeration);

    /// Records are never removed but by clear() and by another device on their path; their order never
    /// changes.
    const QList<DeviceEnumInfo *> &devices() const { return listed; }
    int onlineCount() const;
    /// Whether the pass that ended last met a device on that path.
    bool isOnBus(const QString &devicePath) const { return seenPaths.contains(devicePath); }
    /// What the pass that ended last couldn't open.
    const std::vector<UnopenedDevice> &unopened() const { return unopenedDevices; }

    /// The record that the open page shows, or null. Its loss is told by currentDeviceLost().
    void setCurrentDevice(const DeviceEnumInfo *device) { current = device; }
    const DeviceEnumInfo *currentDevice() const { return current; }

    /// Empties the list, as the scan button does. Cards and pages may go on using records that they hold.
    void clear();

    /// Sets the record with the path of \a sighting online, with the id it answered now; everything else of
    /// the record stays. Without such a record, or if it is that of another vendor, product, connection or
    /// family, a new one is appended and takes the place of the old.
    void addDevice(const DeviceSighting &sighting);
    /// Adds the sightings of a pass, ages all records and emits oEnumDeiceDone().
    void applyPass(const ScanResult &pass);

Q_SIGNALS:
    /// The current device was not on the bus in the pass that ended, or another one had its path; whoever
    /// shows its page goes back to the cards. Told at every such pass, before oEnumDeiceDone().
    void currentDeviceLost();
    /// A pass has ended and the records are up to date.
    void oEnumDeiceDone();

private:
    using Record = std::unique_ptr<DeviceEnumInfo>;

    DeviceEnumInfo *recordOf(const QString &devicePath) const;
    Record newRecord(const QString &devicePath);
    void replace(DeviceEnumInfo *gone);
    void age(const ScanResult &pass);
    void tellLoss();

    std::vector<Record> records;
    std::vector<Record> retired; ///< cleared from the list, but perhaps held by a card or a page
    QList<DeviceEnumInfo *> listed;
    const DeviceEnumInfo *current = nullptr;
    QSet<QString> seenPaths;
    std::vector<UnopenedDevice> unopenedDevices;
};
