#pragma once

#include "KeyEntry.h"
#include "MagnetTables.h"

#include <array>
#include <QByteArray>

/// What is known of the connected keyboard: replies as they came, and the few values taken out of them. Pages
/// read this copy, never the keyboard. Plain data with its bounds in one place; GUI thread only.
class DeviceCache
{
public:
    static constexpr int Slots = 8; ///< of key and Fn matrices; a read fills the first four and the first
    static constexpr int EffectSlots = 100;
    static constexpr int SideEffectSlots = 20;
    /// A layer number of 0xF0 plus n stands for Fn matrix n.
    static constexpr quint8 FnLayer = 0xF0;

    /// Starts with the default matrices in slot 0.
    DeviceCache() { restoreDefaultMatrices(); }

    void restoreDefaultMatrices();

    /// Forgets who the keyboard is; the first step of every connect.
    void resetIdentity();
    /// Takes identity and version from an identity block; bytes that it is too short for count as 0.
    void storeInfo(const QByteArray &reply);

    /// Empties what the read sequence fills page by page. The matrices that pages use stay as they are.
    void beginRead();
    /// Hands the matrices that were read to the pages.
    void endRead();

    /// Append a page that was read. An unknown slot or table, or a page past any real size, changes nothing.
    void appendKeyPage(quint8 layer, const QByteArray &page);
    void appendFnPage(quint8 slot, const QByteArray &page);
    void appendMagnetPage(quint8 table, const QByteArray &page);
    void appendCalibrationPage(const QByteArray &page);

    /// Forgets the user picture that was read last.
    void beginPicture();
    /// Appends a page of a user picture, as long as it came. Page 0 begins a picture, so that two reads that
    /// overlap don't end up in one.
    void appendPicturePage(quint8 number, const QByteArray &page);

    /// Store a lighting parameter reply under the effect it names; an effect out of range changes nothing.
    void storeLedParams(const QByteArray &reply);
    void storeSideLedParams(const QByteArray &reply);

    /// The sleep times, in seconds, at reply bytes 8 to 15; times that the reply is too short for stay.
    void storeSleepTimes(const QByteArray &reply);

    /// The entry at a position of a key layer, or of an Fn matrix for a layer of 0xF0 plus n. Empty for what
    /// the cache doesn't hold.
    KeyEntry keyEntry(quint8 position, quint8 layer) const;
    /// Writes such an entry; a place that the cache doesn't hold, or no key stands at, is left alone.
    void setKeyEntry(quint8 position, quint8 layer, const KeyEntry &entry);

    /// Whether a magnetism table reaches to this position.
    bool holdsMagnetism(quint8 table, quint8 position) const;
    /// One value of a magnetism table, little-endian at the table's width; 0 for what the cache doesn't hold.
    quint32 magnetism(quint8 table, quint8 position) const;
    /// Writes such a value, cut to the table's width; a place that the cache doesn't hold is left alone.
    void setMagnetism(quint8 table, quint8 position, quint32 value);

    std::array<QByteArray, Slots> keyPages;
    std::array<QByteArray, Slots> fnPages;
    std::array<QByteArray, Slots> keyMatrix;
    std::array<QByteArray, Slots> fnMatrix;
    std::array<QByteArray, MagnetTables.size()> magnetTables; ///< in the order of MagnetTables
    std::array<QByteArray, EffectSlots> ledParams;
    std::array<QByteArray, SideEffectSlots> sideLedParams;
    QByteArray calibrationBuffer;
    QByteArray kbOptions;
    QByteArray deviceInfo;
    QByteArray userPicture;
    bool pictureLacksPages = false; ///< a page of it was asked for and didn't come
    quint8 nextPicturePage = 0;

    std::array<quint16, 4> sleepTimes{}; ///< seconds
    quint8 reportRate = 0;               ///< code
    quint8 debounce = 0;                 ///< milliseconds
    quint8 currentProfile = 0;           ///< 0 to 3
    quint32 deviceId = 0;
    quint16 firmwareVersion = 0;
    quint16 travelScale = 10; ///< steps per millimetre by firmware; kept for firmware to come
    bool versionAtLeast300 = false;
    bool versionAtLeast400 = false;
};
