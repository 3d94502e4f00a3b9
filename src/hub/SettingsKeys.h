#pragma once

#include <QLatin1String>
#include <QString>
#include <QVariant>

#include <type_traits>

/// One value under the hub's registry key (an INI file on Linux): its name, its type T, and what stands for
/// it when it is missing and after the reset at start-up.
template <typename T>
struct SettingsKey
{
    QLatin1String name;
    T initial;

    QVariant initialValue() const
    {
        if constexpr (std::is_same_v<T, QLatin1String>) {
            return QString(initial);
        } else {
            return initial;
        }
    }
};

/// Every value that the hub and the sibling drivers hand each other. The names are a promise to those
/// drivers.
namespace SettingsKeys {

// The way back to the cards: whoever sets one of them asks the hub to show itself again.
inline constexpr SettingsKey<int> OrbeReturn{QLatin1String("OrbeReturn"), 0};
inline constexpr SettingsKey<int> TarnwickReturn{QLatin1String("TarnwickReturn"), 0};

// Windows, as native handles.
inline constexpr SettingsKey<uint> OrbeWnd{QLatin1String("OrbeWnd"), 0};
inline constexpr SettingsKey<int> ParentHwnd{QLatin1String("ParentHwnd"), 0};

// The RY driver. PageLoaded is a truth value, but the hand-over writes the text "false", as that driver
// expects.
inline constexpr SettingsKey<bool> IotManagerInitialized{QLatin1String("iotManagerInitialized"), false};
inline constexpr SettingsKey<bool> ShowWindowControlButtons{QLatin1String("ShowWindowControlButtons"), false};
inline constexpr SettingsKey<bool> PageLoaded{QLatin1String("PageLoaded"), false};
inline constexpr SettingsKey<int> DeviceId{QLatin1String("DeviceId"), 0};
inline constexpr SettingsKey<QLatin1String> DevicePath{QLatin1String("DevicePath"), QLatin1String("")};
inline constexpr SettingsKey<QLatin1String> VendorDevicePath{QLatin1String("VendorDevicePath"),
                                                             QLatin1String("")};

// The WS, BY and JM drivers.
inline constexpr SettingsKey<int> OrbeDeviceIndex{QLatin1String("OrbeDeviceIndex"), 0};
inline constexpr SettingsKey<QLatin1String> ByDeviceUuid{QLatin1String("ByDeviceUuid"), QLatin1String("")};
inline constexpr SettingsKey<QLatin1String> ByLocale{QLatin1String("ByLocale"), QLatin1String("")};
inline constexpr SettingsKey<QLatin1String> JmDevicePath{QLatin1String("JmDevicePath"), QLatin1String("")};
inline constexpr SettingsKey<QLatin1String> JmLocale{QLatin1String("JmLocale"), QLatin1String("")};

// The language: the row of the language table, and the same for the siblings.
inline constexpr SettingsKey<int> LastLanguage{QLatin1String("lastlang"), 0};
inline constexpr SettingsKey<QLatin1String> LanguageCode{QLatin1String("LanguageCode"), QLatin1String("")};
inline constexpr SettingsKey<int> WindowsLanguage{QLatin1String("LANGUAGE"), 0};

} // namespace SettingsKeys
