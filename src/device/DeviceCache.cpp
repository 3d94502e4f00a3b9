#include "DeviceCache.h"

#include "DeviceLog.h"
#include "KeyMatrix.h"

#include <algorithm>
#include <QtEndian>

namespace {

constexpr quint16 Version300 = 0x300;
constexpr quint16 Version400 = 0x400;
constexpr quint16 Version500 = 0x500;
constexpr quint16 DefaultTravelScale = 10;

/// Most bytes that one cache grows to, well above the 640 of the largest: a reading loop typed into the
/// console must not fill the memory.
constexpr qsizetype CacheLimit = 8192;

void appendPage(QByteArray &cache, const QByteArray &page)
{
    if (cache.size() + page.size() <= CacheLimit)
        cache += page;
    else
        qCDebug(lcDevice) << "A page past the end of its cache is dropped";
}

template <typename Caches>
void storeByEffect(Caches &caches, const QByteArray &reply)
{
    if (reply.size() < 2)
        return;
    const auto effect = quint8(reply.at(1));
    if (effect < caches.size())
        caches[effect] = reply;
    else
        qCDebug(lcDevice) << "Effect" << effect << "is none that can be kept";
}

/// Little-endian number of up to four bytes; bytes that aren't there count as 0.
quint32 numberAt(const QByteArray &data, qsizetype offset, int width)
{
    quint32 value = 0;
    for (int i = 0; i < width && offset + i < data.size(); ++i)
        value |= quint32(quint8(data.at(offset + i))) << (8 * i);
    return value;
}

/// The matrix that a layer number names, null for none; const or not as the cache is.
template <typename Cache>
auto matrixOf(Cache &cache, quint8 layer) -> decltype(&cache.keyMatrix[0])
{
    const bool fn = (layer & 0xF0) == DeviceCache::FnLayer;
    const quint8 slot = fn ? layer & 0x0F : layer;
    if (slot >= DeviceCache::Slots)
        return nullptr;
    return fn ? &cache.fnMatrix[slot] : &cache.keyMatrix[slot];
}

} // namespace

void DeviceCache::restoreDefaultMatrices()
{
    keyMatrix[0] = keys::defaultKeyMatrix();
    fnMatrix[0] = keys::defaultFnMatrix();
}

void DeviceCache::resetIdentity()
{
    versionAtLeast300 = false;
    versionAtLeast400 = false;
    deviceId = 0;
    firmwareVersion = 0;
    travelScale = DefaultTravelScale;
}

void DeviceCache::storeInfo(const QByteArray &reply)
{
    deviceInfo = reply;
    deviceId = numberAt(reply, 1, 4);
    firmwareVersion = quint16(numberAt(reply, 7, 2));
    versionAtLeast300 = firmwareVersion >= Version300;
    versionAtLeast400 = firmwareVersion >= Version400;
    if (firmwareVersion >= Version500)
        travelScale = 200;
    else if (firmwareVersion >= Version300)
        travelScale = 100;
    else
        travelScale = DefaultTravelScale;
}

void DeviceCache::beginRead()
{
    travelScale = DefaultTravelScale;
    firmwareVersion = 0;
    keyPages.fill({});
    fnPages.fill({});
    magnetTables.fill({});
}

void DeviceCache::endRead()
{
    keyMatrix = keyPages;
    fnMatrix = fnPages;
}

void DeviceCache::appendKeyPage(quint8 layer, const QByteArray &page)
{
    if (layer < Slots)
        appendPage(keyPages[layer], page);
}

void DeviceCache::appendFnPage(quint8 slot, const QByteArray &page)
{
    if (slot < Slots)
        appendPage(fnPages[slot], page);
}

void DeviceCache::appendMagnetPage(quint8 table, const QByteArray &page)
{
    const int index = magnetTableIndex(table);
    if (index >= 0)
        appendPage(magnetTables[size_t(index)], page);
}

void DeviceCache::beginPicture()
{
    userPicture.clear();
    pictureLacksPages = false;
    nextPicturePage = 0;
}

void DeviceCache::appendPicturePage(quint8 number, const QByteArray &page)
{
    if (number == 0)
        beginPicture();
    pictureLacksPages |= number != nextPicturePage;
    nextPicturePage = quint8(number + 1);
    appendPage(userPicture, page);
}

void DeviceCache::appendCalibrationPage(const QByteArray &page)
{
    appendPage(calibrationBuffer, page);
}

void DeviceCache::storeLedParams(const QByteArray &reply)
{
    storeByEffect(ledParams, reply);
}

void DeviceCache::storeSideLedParams(const QByteArray &reply)
{
    storeByEffect(sideLedParams, reply);
}

void DeviceCache::storeSleepTimes(const QByteArray &reply)
{
    constexpr qsizetype Offset = 8;
    constexpr qsizetype Width = 2;
    for (qsizetype i = 0; i < qsizetype(sleepTimes.size()); ++i) {
        const qsizetype at = Offset + i * Width;
        if (at + Width <= reply.size())
            sleepTimes[size_t(i)] = quint16(numberAt(reply, at, Width));
    }
}

KeyEntry DeviceCache::keyEntry(quint8 position, quint8 layer) const
{
    const auto *matrix = matrixOf(*this, layer);
    return matrix ? keys::entryAt(*matrix, position) : KeyEntry{};
}

void DeviceCache::setKeyEntry(quint8 position, quint8 layer, const KeyEntry &entry)
{
    auto *matrix = matrixOf(*this, layer);
    if (matrix && position < MatrixPositions)
        keys::setEntryAt(*matrix, position, entry);
}

bool DeviceCache::holdsMagnetism(quint8 table, quint8 position) const
{
    const int index = magnetTableIndex(table);
    if (index < 0 || position >= MatrixPositions)
        return false;
    return (position + qsizetype(1)) * MagnetTables[size_t(index)].width <=
           magnetTables[size_t(index)].size();
}

quint32 DeviceCache::magnetism(quint8 table, quint8 position) const
{
    if (!holdsMagnetism(table, position))
        return 0;
    const auto index = size_t(magnetTableIndex(table));
    const int width = MagnetTables[index].width;
    return numberAt(magnetTables[index], qsizetype(position) * width, width);
}

void DeviceCache::setMagnetism(quint8 table, quint8 position, quint32 value)
{
    if (!holdsMagnetism(table, position))
        return;
    const auto index = size_t(magnetTableIndex(table));
    const int width = MagnetTables[index].width;
    for (int i = 0; i < width; ++i)
        magnetTables[index][position * width + i] = char(value >> (8 * i));
}
