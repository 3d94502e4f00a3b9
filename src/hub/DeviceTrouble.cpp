#include "DeviceTrouble.h"

#include "DeviceList.h"

#include <algorithm>
#include <QCoreApplication>

namespace {

/// Texts are looked up when they are shown, in the language of that moment.
struct TroubleText
{
    DeviceTrouble trouble;
    const char *badge;
    const char *advice;
};

#ifdef Q_OS_LINUX
constexpr const char *DeniedAdvice = QT_TRANSLATE_NOOP(
    "DeviceTrouble",
    "系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。");
#else
constexpr const char *DeniedAdvice =
    QT_TRANSLATE_NOOP("DeviceTrouble", "系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。");
#endif

constexpr TroubleText Texts[]{
    {DeviceTrouble::Gone, QT_TRANSLATE_NOOP("DeviceTrouble", "已断开"),
     QT_TRANSLATE_NOOP("DeviceTrouble", "键盘已断开，重新连接后即可使用。")},
    {DeviceTrouble::Silent, QT_TRANSLATE_NOOP("DeviceTrouble", "没有响应"),
     QT_TRANSLATE_NOOP("DeviceTrouble", "键盘没有响应，可能处于休眠状态，请按任意键唤醒。")},
    {DeviceTrouble::Denied, QT_TRANSLATE_NOOP("DeviceTrouble", "没有访问权限"), DeniedAdvice},
    {DeviceTrouble::NotOpen, QT_TRANSLATE_NOOP("DeviceTrouble", "无法打开"),
     QT_TRANSLATE_NOOP("DeviceTrouble", "无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。")},
};

QString textOf(DeviceTrouble trouble, const char *TroubleText::*which)
{
    const auto *found = std::find_if(std::begin(Texts), std::end(Texts),
                                     [trouble](const TroubleText &text) { return text.trouble == trouble; });
    return found == std::end(Texts) ? QString()
                                    : QCoreApplication::translate("DeviceTrouble", (*found).*which);
}

bool sameModel(const DeviceEnumInfo *one, const DeviceEnumInfo *other)
{
    return one->deviceId == other->deviceId && one->displayName == other->displayName;
}

DeviceTrouble ofOffline(const DeviceEnumInfo *device, const DeviceList &devices)
{
    const auto &unopened = devices.unopened();
    const bool tried = std::any_of(unopened.begin(), unopened.end(), [device](const UnopenedDevice &it) {
        return it.devicePath == device->devicePath;
    });
    if (tried)
        return devicetrouble::ofPath(device->devicePath);
    return devices.isOnBus(device->devicePath) ? DeviceTrouble::Silent : DeviceTrouble::Gone;
}

} // namespace

namespace devicetrouble {

DeviceTrouble ofFailure(OpenFailure failure)
{
    switch (failure) {
    case OpenFailure::Denied:
        return DeviceTrouble::Denied;
    case OpenFailure::Other:
        return DeviceTrouble::NotOpen;
    case OpenFailure::None:
        break;
    }
    return DeviceTrouble::None;
}

DeviceTrouble ofPath(const QString &devicePath)
{
    return ofFailure(HidHandle::lastFailure(devicePath.toUtf8()));
}

QString badge(DeviceTrouble trouble)
{
    return textOf(trouble, &TroubleText::badge);
}

QString advice(DeviceTrouble trouble)
{
    return textOf(trouble, &TroubleText::advice);
}

QList<AbsentDevice> absentDevices(const DeviceList &devices)
{
    QList<AbsentDevice> absent;
    QList<const DeviceEnumInfo *> told;
    const auto &known = devices.devices();
    std::copy_if(known.begin(), known.end(), std::back_inserter(told),
                 [](const auto *device) { return device->online; });
    for (const DeviceEnumInfo *device : known) {
        const bool again = std::any_of(told.begin(), told.end(),
                                       [device](const auto *other) { return sameModel(device, other); });
        if (device->online || again)
            continue;
        told.append(device);
        absent.append(
            {device->displayName, device->deviceType, device->connectionType, ofOffline(device, devices)});
    }
    for (const UnopenedDevice &device : devices.unopened()) {
        const DeviceTrouble trouble = ofPath(device.devicePath);
        const bool listed = std::any_of(known.begin(), known.end(), [&device](const auto *record) {
            return record->devicePath == device.devicePath;
        });
        if (trouble != DeviceTrouble::None && !listed)
            absent.append({device.product.isEmpty() ? QCoreApplication::translate("DeviceTrouble", "键盘")
                                                    : device.product,
                           KeyboardType, device.connectionType, trouble});
    }
    return absent;
}

} // namespace devicetrouble
