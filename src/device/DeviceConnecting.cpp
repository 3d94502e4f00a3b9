// How the connection finds and opens its keyboard.

#include "CommandCatalogue.h"
#include "DeviceLog.h"
#include "DialogDeviceConnect.h"
#include "ui_DialogDeviceConnect.h"

#include <chrono>
#include <hidapi/hidapi.h>
#include <mutex>
#include <QMutex>
#include <QSettings>
#include <QSignalBlocker>

using namespace std::chrono_literals;

namespace {

constexpr quint16 NativeUsagePage = 0xFFFF;
constexpr quint16 InputUsage = 1;
constexpr quint16 CommandUsage = 2;

struct EnumerationDeleter
{
    void operator()(hid_device_info *first) const { hid_free_enumeration(first); }
};
using Enumeration = std::unique_ptr<hid_device_info, EnumerationDeleter>;

constexpr auto LongestEnumerationWait = 500ms;

/// The devices of those ids; empty as well if a search holds the list of devices for too long.
Enumeration enumerate(quint16 vid, quint16 pid)
{
    const std::unique_lock lock(hidLibraryMutex(), LongestEnumerationWait);
    return Enumeration(lock ? hid_enumerate(vid, pid) : nullptr);
}

/// A USB id from its hex text; 0, which no device has and hidapi would take for any, if it is none.
quint16 usbId(const QString &text)
{
    bool good = false;
    const quint16 id = text.trimmed().toUShort(&good, 16);
    if (!good || id == 0)
        qCWarning(lcDevice) << "Not a USB id:" << text;
    return good ? id : 0;
}

QString idText(quint16 id)
{
    return QString::asprintf("%04X", id);
}

} // namespace

void DialogDeviceConnect::DoConnectDevice(quint16 vid, quint16 pid, bool wireless, const QString &id,
                                          const QString &path)
{
    // The ids too: some systems give the path of a keyboard that is gone to the next one.
    if (id == deviceIdText && path == devicePath && vid == vendorId && pid == productId)
        return;
    isWireless = wireless;
    vendorId = vid;
    productId = pid;
    deviceIdText = id;
    devicePath = path;
    const QString pidText = idText(pid);
    qCDebug(lcDevice) << "DoConnectDevice:" << path << pidText;
    ui->lineEditVID->setText(idText(vid));
    ui->lineEditPID->setText(pidText);
    connectStep();
}

void DialogDeviceConnect::connectStep()
{
    closeHandles();
    if (isWireless)
        connectWireless();
    else
        connectWired(ui->lineEditVID->text(), ui->lineEditPID->text());
}

void DialogDeviceConnect::closeHandles()
{
    pump.setLink(nullptr, isWireless);
    failure = OpenFailure::None;
    inputHandle.close();
    commandHandle.close();
    musicHandle.close();
    for (QLabel *lamp : {ui->labelFlag0, ui->labelFlag1})
        lamp->setPixmap(QPixmap(QStringLiteral(":/images/General_NG4.png")));
}

void DialogDeviceConnect::connectWireless()
{
    commandHandle = HidHandle::open(devicePath.toUtf8());
    commandHandle.setNonblocking(false);
    if (!commandHandle) {
        const Enumeration found = enumerate(usbId(ui->lineEditVID->text()), usbId(ui->lineEditPID->text()));
        for (const hid_device_info *entry = found.get(); entry; entry = entry->next) {
            if (entry->path && devicePath == QString::fromUtf8(entry->path))
                noteFailure(entry->path);
        }
    }
    pump.setLink(&commandHandle, true);
    Q_EMIT onConnect();
    beginIdentification();
}

void DialogDeviceConnect::connectWired(const QString &vidText, const QString &pidText)
{
    const quint16 vid = usbId(vidText);
    const quint16 pid = usbId(pidText);
    if (vid && pid)
        openInterfaces(vid, pid);
    pump.setLink(&commandHandle, false);
    if (inputHandle && commandHandle && musicHandle) {
        Q_EMIT onConnect();
        DoSendHex(QStringLiteral("1B 01"), true);
        beginIdentification();
        rememberIds();
    }
    if (!inputHandle || !commandHandle)
        Q_EMIT onDisconnect();
}

void DialogDeviceConnect::openInterfaces(quint16 vid, quint16 pid)
{
    const QPixmap good(QStringLiteral(":/images/General_OK4.png"));
    const Enumeration found = enumerate(vid, pid);
    for (const hid_device_info *entry = found.get(); entry; entry = entry->next) {
        if (inputHandle && commandHandle && musicHandle)
            break;
        if (entry->usage_page != NativeUsagePage || !entry->path)
            continue;
        if (entry->usage == InputUsage) {
            inputHandle = HidHandle::open(entry->path);
            inputHandle.setNonblocking(true);
            if (inputHandle)
                ui->labelFlag0->setPixmap(good);
            else
                noteFailure(entry->path);
        } else if (entry->usage == CommandUsage) {
            commandHandle = HidHandle::open(entry->path);
            musicHandle = HidHandle::open(entry->path);
            if (commandHandle)
                ui->labelFlag1->setPixmap(good);
            else
                noteFailure(entry->path);
        }
    }
}

void DialogDeviceConnect::noteFailure(const char *path)
{
    failure = HidHandle::lastFailure(path);
}

void DialogDeviceConnect::beginIdentification()
{
    cache.resetIdentity();
    DoSendCommand(command::GetInfo, 1, false);
}

void DialogDeviceConnect::rememberIds()
{
    settings->setValue(QStringLiteral("lastVID"), ui->lineEditVID->text().trimmed());
    settings->setValue(QStringLiteral("lastPID"), ui->lineEditPID->text().trimmed());
    settings->sync();
    if (settings->status() != QSettings::NoError)
        qCWarning(lcDevice) << "Can't keep the ids of the last keyboard in" << settings->fileName();
}

void DialogDeviceConnect::deviceChanged()
{
    hotplugTimer.start();
}

void DialogDeviceConnect::refreshStep()
{
    QStringList found;
    if (const quint16 vid = usbId(ui->lineEditVID->text())) {
        const Enumeration devices = enumerate(vid, 0);
        for (const hid_device_info *entry = devices.get(); entry; entry = entry->next) {
            if (entry->usage_page == NativeUsagePage && entry->usage == InputUsage)
                found.append(idText(entry->product_id));
        }
    }
    {
        const QSignalBlocker blocker(ui->comboBoxPID);
        ui->comboBoxPID->clear();
        ui->comboBoxPID->addItems(found);
        const qsizetype chosen = found.indexOf(ui->lineEditPID->text().trimmed().toUpper());
        ui->comboBoxPID->setCurrentIndex(int(std::max<qsizetype>(chosen, found.isEmpty() ? -1 : 0)));
    }
    connectStep();
}
