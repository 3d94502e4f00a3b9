#include "SiblingHost.h"

#include "HubLog.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QStackedWidget>

using namespace std::chrono_literals;
using Order = SiblingOperations::Order;

namespace {

constexpr auto FindPeriod = 200ms;
constexpr auto ReturnPeriod = 100ms;
constexpr auto HandOverDelay = 100ms;
constexpr auto ShowDelay = 100ms;
constexpr auto NarrowDelay = 100ms;
constexpr auto SettleDelay = 1000ms;
constexpr auto ReturnButtonDelay = 2000ms;
constexpr auto HubBackDelay = 200ms;

constexpr std::array StartOrder{WsFamily, CloudFamily, JmFamily, ByFamily};
constexpr std::array KeptRunning{WsFamily, JmFamily};
constexpr std::array HiddenByReturnButton{CloudFamily, ByFamily, JmFamily};
constexpr std::array StaleProcesses{"Orbe-WS.exe", "Orbe-BY.exe", "Orbe-Gaming-Bub.exe",
                                    "OrbeCloudDriver.exe"};
constexpr std::array ProcessesToClose{"Orbe-WS.exe", "Orbe-BY.exe", "OrbeBox.exe", "Orbe-Gaming-Bub.exe",
                                      "OrbeCloudDriver.exe"};

constexpr std::array<quint64, 2> NativeIds{0x0AF7, 0x0EC3};
constexpr int NoFamily = -1;

// A window without caption or sizing border, and layered.
constexpr quint32 EmbeddedStyle = 0xD60A0000;
constexpr quint32 EmbeddedExtendedStyle = 0x00080000;
constexpr unsigned RedrawNow = 0x0300; // erases and paints at once
constexpr int CornerSize = 32;

/// Where a window of that length lies in the middle of the screen; 0 where it doesn't fit.
int centred(int length, int screen)
{
    const int position = (screen - length) / 2;
    return position < 0 || position > screen ? 0 : position;
}

/// An update of the WS driver brings its program under a name that its process would share with others.
void renameUpdatedWs(const QString &updated, const QString &program)
{
    if (!QFile::exists(updated))
        return;
    std::error_code failure;
    std::filesystem::rename(QFileInfo(updated).filesystemFilePath(), QFileInfo(program).filesystemFilePath(),
                            failure);
    if (failure)
        qCWarning(lcHub) << "Can't rename" << updated << "for" << failure.value();
}

/// Runs something once, and never before its time.
template <typename Work>
void after(std::chrono::milliseconds time, QObject *context, Work work)
{
    QTimer::singleShot(time, Qt::PreciseTimer, context, work);
}

} // namespace

SiblingHost::SiblingHost(SiblingOperations &operations, const Stage &hubStage, bool tarnwickBuild,
                         QObject *parent)
    : QObject(parent)
    , platform(operations)
    , stage(hubStage)
    , siblings(tarnwickBuild ? TarnwickSiblings : OrbeSiblings)
{
    connect(&findTimer, &QTimer::timeout, this, &SiblingHost::watchSiblings);
    connect(&returnTimer, &QTimer::timeout, this, &SiblingHost::watchReturn);
    connect(&showTimer, &QTimer::timeout, this, &SiblingHost::showSiblingWindow);
    showTimer.setSingleShot(true);
    showTimer.setTimerType(Qt::PreciseTimer);
}

template <typename T>
void SiblingHost::write(const SettingsKey<T> &key, const QVariant &value)
{
    platform.setValue(key.name, value);
}

template <typename T>
QVariant SiblingHost::read(const SettingsKey<T> &key) const
{
    return platform.value(key.name, key.initialValue());
}

QString SiblingHost::programOf(int slot) const
{
    return rootFolder + QLatin1String(siblings[size_t(slot)].program);
}

void SiblingHost::start(const QString &root)
{
    rootFolder = root;
    for (const char *process : StaleProcesses)
        platform.endProcess(QLatin1String(process));
    renameUpdatedWs(rootFolder + QStringLiteral("/WsExe/Orbe.exe"), programOf(WsFamily));
    for (const int slot : StartOrder)
        platform.startProgram(programOf(slot));
    findTimer.start(FindPeriod);
    returnTimer.start(ReturnPeriod);
}

void SiblingHost::resetValues()
{
    using namespace SettingsKeys;
    reset(OrbeReturn);
    reset(TarnwickReturn);
    reset(OrbeWnd);
    reset(IotManagerInitialized);
    reset(ShowWindowControlButtons);
    reset(PageLoaded);
    reset(DeviceId);
    reset(DevicePath);
    reset(VendorDevicePath);
    reset(ByDeviceUuid);
}

void SiblingHost::watchSiblings()
{
    if (stage.hub->isVisible()) {
        for (const int slot : {WsFamily, JmFamily}) {
            if (siblingWindows[size_t(slot)])
                platform.hide(siblingWindows[size_t(slot)]);
        }
    }
    for (const int slot : KeptRunning)
        restartIfGone(slot);
    for (int slot = 0; slot < int(siblings.size()); ++slot) {
        if (siblingWindows[size_t(slot)])
            continue;
        if (const Window window = findWindow(slot))
            adopt(slot, window);
    }
}

void SiblingHost::restartIfGone(int slot)
{
    // Looking through all processes costs something; a driver that isn't installed isn't looked for.
    if (!siblingWindows[size_t(slot)] && !QFile::exists(programOf(slot)))
        return;
    if (platform.isRunning(QLatin1String(siblings[size_t(slot)].process)))
        return;
    if (slot == WsFamily && read(SettingsKeys::OrbeWnd).toUInt() != 0)
        reset(SettingsKeys::OrbeWnd);
    siblingWindows[size_t(slot)] = 0;
    platform.startProgram(programOf(slot));
}

SiblingHost::Window SiblingHost::findWindow(int slot)
{
    // The WS driver tells its window by itself; it is believed without a look.
    if (slot == WsFamily) {
        if (const Window told = read(SettingsKeys::OrbeWnd).toUInt())
            return told;
    }
    return platform.findWindow(QLatin1String(siblings[size_t(slot)].title));
}

void SiblingHost::adopt(int slot, Window window)
{
    const Sibling &sibling = siblings[size_t(slot)];
    siblingWindows[size_t(slot)] = window;
    qCDebug(lcHub).noquote() << QStringLiteral("Found %1 ---------------").arg(QLatin1String(sibling.name));
    if (sibling.embedded) {
        platform.setStyles(window, EmbeddedStyle, EmbeddedExtendedStyle);
        platform.place(window, Order::Bottom, {}, SiblingOperations::NoSize | SiblingOperations::HideWindow);
    }
    if (slot != CloudFamily)
        platform.hide(window);
    if (sibling.embedded)
        platform.setParent(window, stage.frame->winId());
    if (slot == CloudFamily)
        write(SettingsKeys::ParentHwnd, int(quint32(window)));
}

void SiblingHost::hideSiblings()
{
    for (size_t slot = 0; slot < siblingWindows.size(); ++slot) {
        const Window window = siblingWindows[slot];
        if (!window)
            continue;
        platform.hide(window);
        if (slot != WsFamily && slot != JmFamily) {
            platform.place(window, Order::Bottom, platform.rect(window),
                           SiblingOperations::NoMove | SiblingOperations::HideWindow);
        }
    }
}

bool SiblingHost::isNative(const DeviceEnumInfo &device)
{
    if (device.family != CloudFamily)
        return false;
    return std::ranges::find(NativeIds, device.deviceId) != NativeIds.end() ||
           device.displayName.contains(QStringLiteral("7090"));
}

void SiblingHost::openDevice(DeviceEnumInfo *device, const QString &image)
{
    if (!device)
        return;
    qCDebug(lcHub) << "Opening" << device->displayName << "of family" << device->family;
    family = device->family;
    openedDevice = device;
    showTimer.stop();
    Q_EMIT languageMenuUnwanted();
    hideSiblings();
    if (isNative(*device)) {
        Q_EMIT currentDeviceChanged(device);
        Q_EMIT nativeDeviceOpened(device, image);
        return;
    }
    handOver(*device);
    showTimer.start(ShowDelay);
}

void SiblingHost::handOver(const DeviceEnumInfo &device)
{
    switch (device.family) {
    case CloudFamily:
        handOverToRy(device);
        Q_EMIT windowModeWanted(false);
        break;
    case WsFamily:
        write(SettingsKeys::OrbeDeviceIndex, int(device.deviceId));
        break;
    case ByFamily:
        if (!localeTag.isEmpty())
            write(SettingsKeys::ByLocale, localeTag);
        write(SettingsKeys::ByDeviceUuid, QString(QStringLiteral("0x") + device.vendorPath));
        break;
    case JmFamily:
        if (!localeTag.isEmpty())
            write(SettingsKeys::JmLocale, localeTag);
        write(SettingsKeys::JmDevicePath, device.devicePath);
        break;
    default:
        break;
    }
}

// The RY driver sees the change of these values by itself, and so it must see the device it had go first.
void SiblingHost::handOverToRy(const DeviceEnumInfo &device)
{
    if (read(SettingsKeys::DevicePath).toString() == device.devicePath)
        return;
    reset(SettingsKeys::DeviceId);
    reset(SettingsKeys::DevicePath);
    write(SettingsKeys::PageLoaded, QStringLiteral("false"));
    reset(SettingsKeys::VendorDevicePath);
    after(HandOverDelay, this,
          [this, id = int(device.deviceId), vendorPath = device.vendorPath, path = device.devicePath] {
              write(SettingsKeys::DeviceId, id);
              write(SettingsKeys::VendorDevicePath, vendorPath);
              write(SettingsKeys::DevicePath, path);
          });
}

void SiblingHost::showSiblingWindow()
{
    const bool known = family >= 0 && size_t(family) < siblings.size();
    const Window window = known ? siblingWindows[size_t(family)] : 0;
    if (!window)
        return;
    Q_EMIT currentDeviceChanged(openedDevice);
    if (siblings[size_t(family)].embedded) {
        showEmbedded(window);
    } else {
        showInHubsPlace(window);
    }
    Q_EMIT pointerInside();
    after(ReturnButtonDelay, this, [this] { showReturnButton(); });
}

void SiblingHost::showReturnButton()
{
    const bool inHubsPlace = family == WsFamily || family == JmFamily;
    Q_EMIT returnButtonWanted(!inHubsPlace && stage.pages->currentIndex() == EmbedPage);
}

void SiblingHost::showInHubsPlace(Window window)
{
    const QScreen *screen = QGuiApplication::screens().constFirst();
    const QSize space = screen->size() * screen->devicePixelRatio();
    const QRect before = platform.rect(window);
    const QRect centredRect(
        {centred(before.width(), space.width()), centred(before.height(), space.height())}, before.size());
    stage.hub->hide();
    returnArmed = false;
    platform.show(window);
    platform.bringToTop(window);
    platform.move(window, centredRect);
    after(SettleDelay, this, [this, window, before, centredRect] {
        settleInHubsPlace(window);
        qCDebug(lcHub) << "Moved a sibling from" << before << "to" << centredRect;
    });
}

void SiblingHost::settleInHubsPlace(Window window)
{
    reset(SettingsKeys::OrbeReturn);
    reset(SettingsKeys::TarnwickReturn);
    returnArmed = true;
    platform.bringToTop(window);
    platform.show(window);
    platform.setForeground(window);
    platform.redraw(window, RedrawNow);
    setHosting(true);
}

void SiblingHost::showEmbedded(Window window)
{
    stage.pages->setCurrentIndex(EmbedPage);
    stage.frame->setVisible(true);
    const qreal ratio = stage.frame->devicePixelRatioF();
    const QSize size(int(stage.frame->width() * ratio + 1), int(stage.frame->height() * ratio + 1));
    platform.place(window, Order::Bottom, {{0, 0}, size}, SiblingOperations::ShowWindow);
    platform.shapeRoundBottom(window, size, CornerSize, CornerSize);
}

void SiblingHost::requestReturn()
{
    write(SettingsKeys::OrbeReturn, 1);
}

void SiblingHost::watchReturn()
{
    const bool asked =
        read(SettingsKeys::OrbeReturn).toInt() != 0 || read(SettingsKeys::TarnwickReturn).toInt() != 0;
    if (!asked || !returnArmed)
        return;
    qCDebug(lcHub) << "Action OrbeReturn";
    reset(SettingsKeys::OrbeReturn);
    reset(SettingsKeys::TarnwickReturn);
    stage.pages->setCurrentIndex(CardPage);
    Q_EMIT returnButtonWanted(false);
    hideSiblings();
    family = NoFamily;
    openedDevice = nullptr;
    showTimer.stop();
    setHosting(false);
    Q_EMIT currentDeviceChanged(nullptr);
    after(HubBackDelay, this, [this] {
        stage.hub->show();
        stage.hub->raise();
    });
}

void SiblingHost::leaveEmbedded()
{
    Q_EMIT returnButtonWanted(false);
    stage.pages->setCurrentIndex(CardPage);
    for (const int slot : HiddenByReturnButton) {
        if (siblingWindows[size_t(slot)])
            platform.hide(siblingWindows[size_t(slot)]);
    }
    after(NarrowDelay, this, [this] { Q_EMIT windowModeWanted(true); });
}

void SiblingHost::setHosting(bool isHosting)
{
    if (isHosting == hosting)
        return;
    hosting = isHosting;
    Q_EMIT hostingChanged(hosting);
}

void SiblingHost::endProcesses()
{
    findTimer.stop();
    for (const char *process : ProcessesToClose)
        platform.endProcess(QLatin1String(process));
}

void SiblingHost::closeWindows()
{
    for (const Window window : siblingWindows) {
        if (window)
            platform.postClose(window);
    }
}
