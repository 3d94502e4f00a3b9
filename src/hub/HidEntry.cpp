#include "HidEntry.h"

#include "HidHandle.h"

#include <hidapi/hidapi.h>
#include <memory>
#include <QMutex>

std::vector<HidEntry> listHid(quint16 vendorId, quint16 productId)
{
    const QMutexLocker lock(&hidLibraryMutex());
    const std::unique_ptr<hid_device_info, decltype(&hid_free_enumeration)> list(
        hid_enumerate(vendorId, productId), &hid_free_enumeration);
    std::vector<HidEntry> entries;
    for (const hid_device_info *info = list.get(); info; info = info->next) {
        entries.push_back({QString::fromUtf8(info->path), info->vendor_id, info->product_id, info->usage_page,
                           info->usage,
                           info->product_string ? QString::fromWCharArray(info->product_string) : QString()});
    }
    return entries;
}
