#include "EnumSettings.h"

#include "HubFiles.h"
#include "HubLog.h"

#include <algorithm>
#include <QSettings>

namespace enumsettings {

namespace {

// "VIDset1" is in the file too, but deliberately without effect: the vendors of the WS family are built in.
constexpr QLatin1String CloudVendorsKey("VIDset0");
constexpr qint64 LargestFile = qint64(64) * 1024;
constexpr QLatin1String DefaultCloudVendors("0x3151, 0x38EE, 0x25A7, 0x05AC, 0x0461");

QString cloudVendorsText()
{
    const QString path = hubfiles::configPath(QLatin1String("enumsetting.ini"));
    if (!hubfiles::isReadable(path, LargestFile))
        return DefaultCloudVendors;
    const QVariant value = QSettings(path, QSettings::IniFormat).value(CloudVendorsKey);
    if (!value.canConvert<QStringList>())
        return DefaultCloudVendors;
    return value.toStringList().join(u','); // a text with commas and no quotes around it is read as a list
}

} // namespace

std::vector<quint16> cloudVendors()
{
    std::vector<quint16> vendors;
    const QString text = cloudVendorsText();
    for (const QString &item : text.split(u','))
        vendors.push_back(quint16(hubfiles::number(item)));
    if (std::find(vendors.begin(), vendors.end(), 0) != vendors.end())
        qCDebug(lcHub) << "enumsetting.ini has no plain list of vendor ids, so all vendors are asked:"
                       << text;
    return vendors;
}

} // namespace enumsettings
