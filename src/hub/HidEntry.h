#pragma once

#include <QString>
#include <QtGlobal>
#include <vector>

/// One HID interface that the system lists.
struct HidEntry
{
    QString path;
    quint16 vendorId;
    quint16 productId;
    quint16 usagePage;
    quint16 usage;
    QString product; ///< as the device calls itself; may be empty

    bool hasUsage(quint16 page, quint16 number) const { return usagePage == page && usage == number; }
};

/// The interfaces of a vendor's devices, or of one product; 0 stands for any. Empty if there are none.
std::vector<HidEntry> listHid(quint16 vendorId, quint16 productId = 0);
