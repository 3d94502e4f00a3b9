#pragma once

#include <QString>
#include <QtGlobal>

/// Says whether a probed device is known, and under what name and type. Keeps nothing: each question reads
/// the files in config/ beside the program again, so that an edit takes effect at the next scan. A file that
/// is missing, broken or beyond all measure answers "not found". Any thread.
class OrbeDeviceBase
{
public:
    /// Catalogues that lookupName() reads; every other number but these means the second brand too.
    enum Selectors { FirstBrand = 0, SecondBrand = 1, CustomList = 255 };

    /// Display name of the device with that id, or an empty string with \a deviceType 255. A catalogue that
    /// is one plain array knows no types and leaves \a deviceType as it is.
    static QString lookupName(quint32 deviceId, quint16 &deviceType, int selector);

    /// The device id that the custom list reports for this device, with name, type and connection (see
    /// ConnectionTypes); 0 and nothing written if it isn't in the list.
    static quint64 lookupCustom(quint16 vendorId, quint16 productId, quint64 probeId, QString &name,
                                quint16 &deviceType, quint16 &connection);
};
