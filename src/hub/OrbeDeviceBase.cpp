#include "OrbeDeviceBase.h"

#include "DeviceEnumInfo.h"
#include "HubFiles.h"

#include <array>
#include <optional>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

/// The arrays of a catalogue in the order in which they are searched: an id that stands in two of them has
/// the type of the first.
struct CatalogueArray
{
    QLatin1String key;
    quint8 deviceType;
};
constexpr std::array CatalogueArrays{
    CatalogueArray{QLatin1String("keyboard"), KeyboardType},
    CatalogueArray{QLatin1String("mouse"), MouseType},
    CatalogueArray{QLatin1String("hitBoxKeyboard"), HitBoxType},
    CatalogueArray{QLatin1String("hitBoxScreen"), HitBoxType},
};

constexpr qint64 LargestFile = qint64(32) * 1024 * 1024;

constexpr QLatin1String CustomListMarker("////CustomDeviceList////");
constexpr qsizetype LeastCustomColumns = 6; // the name, a seventh, may be missing

QJsonDocument readCatalogue(QLatin1String name)
{
    QFile file(hubfiles::configPath(name));
    if (!hubfiles::isReadable(file.fileName(), LargestFile) || !file.open(QIODevice::ReadOnly))
        return {};
    // By way of a string: a byte order mark goes, and bytes that are no UTF-8 spoil one name, not the file.
    return QJsonDocument::fromJson(QString::fromUtf8(file.readAll()).toUtf8());
}

std::optional<QString> nameIn(const QJsonArray &devices, quint32 deviceId)
{
    for (const auto &device : devices) {
        if (quint32(device[QLatin1String("id")].toInt()) == deviceId)
            return device[QLatin1String("displayName")].toString().trimmed();
    }
    return {};
}

QString nameInCatalogue(QLatin1String file, quint32 deviceId, quint16 &deviceType)
{
    const QJsonDocument catalogue = readCatalogue(file);
    if (catalogue.isArray()) {
        if (const auto name = nameIn(catalogue.array(), deviceId))
            return *name;
    }
    for (const CatalogueArray &array : CatalogueArrays) {
        if (const auto name = nameIn(catalogue[array.key].toArray(), deviceId)) {
            deviceType = array.deviceType;
            return *name;
        }
    }
    deviceType = UnknownType;
    return {};
}

struct CustomDevice
{
    quint16 deviceId;
    quint16 vendorId;
    quint16 productId;
    quint64 probeId;
    quint16 deviceType;
    quint16 connection;
    QString name;
};

std::optional<CustomDevice> customDevice(QString line)
{
    static constexpr std::array Ornaments{u'{', u'}', u'"'};
    for (const char16_t ornament : Ornaments)
        line.remove(QChar(ornament));
    const QStringList columns = line.split(u',');
    if (columns.size() < LeastCustomColumns)
        return {};
    const auto number = [&columns](qsizetype column) { return hubfiles::number(columns[column]); };
    return CustomDevice{quint16(number(0)), quint16(number(1)), quint16(number(2)),        number(3),
                        quint16(number(4)), quint16(number(5)), columns.value(6).trimmed()};
}

/// The first device of the custom list for which \a matches is true.
template <typename Matches>
std::optional<CustomDevice> findCustom(Matches matches)
{
    QFile file(hubfiles::configPath(QLatin1String("CustomDeviceList.json")));
    if (!hubfiles::isReadable(file.fileName(), LargestFile) || !file.open(QIODevice::ReadOnly))
        return {};
    QTextStream text(&file);
    QString line;
    while (text.readLineInto(&line) && line.trimmed() != CustomListMarker) {
    }
    while (text.readLineInto(&line)) {
        auto device = customDevice(line);
        if (device && matches(*device))
            return device;
    }
    return {};
}

QString nameInCustomList(quint32 deviceId, quint16 &deviceType)
{
    const auto device = findCustom([deviceId](const CustomDevice &it) { return it.deviceId == deviceId; });
    deviceType = UnknownType;
    if (!device)
        return {};
    deviceType = device->deviceType;
    return device->name;
}

} // namespace

QString OrbeDeviceBase::lookupName(quint32 deviceId, quint16 &deviceType, int selector)
{
    if (selector == CustomList)
        return nameInCustomList(deviceId, deviceType);
    const bool first = selector == FirstBrand;
    return nameInCatalogue(QLatin1String(first ? "OrbeHubDevices.json" : "TRWHubDevices.json"), deviceId,
                           deviceType);
}

quint64 OrbeDeviceBase::lookupCustom(quint16 vendorId, quint16 productId, quint64 probeId, QString &name,
                                     quint16 &deviceType, quint16 &connection)
{
    const auto device = findCustom([=](const CustomDevice &it) {
        return it.vendorId == vendorId && it.productId == productId && it.probeId == probeId;
    });
    if (!device)
        return 0;
    name = device->name;
    deviceType = device->deviceType;
    connection = device->connection;
    return device->deviceId;
}
