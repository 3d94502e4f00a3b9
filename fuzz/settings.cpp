// Any text as one of the INI files, by the input's first byte: the vendors that a search asks, the ids of the
// last keyboard, or the values that the hub shares with the sibling drivers.

#include "DialogDeviceConnect.h"
#include "EnumSettings.h"
#include "FuzzClock.h"
#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "HubSettings.h"
#include "Languages.h"
#include "LanguageSwitcher.h"
#include "SettingsKeys.h"
#include "SystemSiblings.h"
#include "VirtualBus.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

using namespace std::chrono_literals;

namespace {

constexpr auto AnswerTime = 40ms;

void readVendors(const QByteArray &content)
{
    fuzzprogram::write(fuzzprogram::configPath("enumsetting.ini"), content);
    fuzzprogram::require(!enumsettings::cloudVendors().empty());
}

void connectToLast(const QByteArray &content)
{
    fuzzprogram::write(fuzzprogram::configPath("device.ini"), content);
    virtualhid::VirtualBus::instance().reset();
    virtualhid::VirtualBus::instance().plug("wired-2ff");
    DialogDeviceConnect connection;
    connection.findChild<QAbstractButton *>(QStringLiteral("pushButtonConnect"))->click();
    fuzzclock::letTimePass(AnswerTime);
}

void readShared(const QByteArray &content)
{
    QSettings &settings = platform::hubSettings(false);
    static const bool made = QDir().mkpath(QFileInfo(settings.fileName()).path());
    fuzzprogram::require(made);
    fuzzprogram::write(settings.fileName(), content);
    SystemSiblings siblings(settings);
    for (const QLatin1String name : {SettingsKeys::OrbeReturn.name, SettingsKeys::OrbeWnd.name,
                                     SettingsKeys::PageLoaded.name, SettingsKeys::ByDeviceUuid.name}) {
        const QVariant value = siblings.value(name, 0);
        value.toInt();
        value.toBool();
        value.toString();
    }
    const int language = LanguageSwitcher(settings).savedLanguage();
    fuzzprogram::require(language >= 0 && std::size_t(language) < Languages.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::uint8_t file = input.byte();
    if (file == 'd')
        connectToLast(input.rest());
    else if (file == 's')
        readShared(input.rest());
    else
        readVendors(input.rest());
    return 0;
}
