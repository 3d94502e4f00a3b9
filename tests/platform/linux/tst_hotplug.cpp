#include "HotplugSource.h"

#include <array>
#include <fcntl.h>
#include <linux/netlink.h>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QtEndian>
#include <QTest>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void write(const char *path, const QByteArray &text)
{
    const int file = ::open(path, O_WRONLY | O_CREAT, 0644);
    if (file < 0 || ::write(file, text.constData(), size_t(text.size())) != text.size())
        qFatal("can't write %s", path);
    ::close(file);
}

/// Moves the program to a network and a folder /run of its own, where it may play udev and nobody else is
/// told.
void enterOwnWorld()
{
    const QByteArray user = QByteArray::number(::getuid());
    const QByteArray group = QByteArray::number(::getgid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS | CLONE_NEWNET) != 0)
        qFatal("this kernel gives programs no namespaces of their own");
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", "0 " + user + " 1");
    write("/proc/self/gid_map", "0 " + group + " 1");
    if (::mount("none", "/run", "tmpfs", 0, nullptr) != 0 || ::mkdir("/run/udev", 0755) != 0)
        qFatal("can't make /run/udev");
    write("/run/udev/control", "");
}

/// What udev sends to listeners about a device.
QByteArray udevMessage(const char *action, const char *subsystem, quint32 subsystemHash)
{
    struct Header
    {
        char prefix[8] = "libudev";
        quint32 magic = qToBigEndian(0xFEEDCAFEu);
        quint32 headerSize = sizeof(Header);
        quint32 propertiesOffset = sizeof(Header);
        quint32 propertiesLength = 0;
        quint32 subsystemHash = 0;
        quint32 deviceTypeHash = 0;
        quint32 tagHashes[2]{};
    } header;
    QByteArray properties;
    const std::array<QByteArray, 4> lines{QByteArray("ACTION=") + action,
                                          QByteArray("DEVPATH=/devices/virtual/") + subsystem + "/test9",
                                          QByteArray("SUBSYSTEM=") + subsystem, QByteArray("SEQNUM=1")};
    for (const QByteArray &line : lines)
        properties += line + '\0';
    header.propertiesLength = quint32(properties.size());
    header.subsystemHash = qToBigEndian(subsystemHash);
    return QByteArray(reinterpret_cast<const char *>(&header), sizeof header) + properties;
}

void send(const QByteArray &message)
{
    constexpr quint32 UdevListeners = 2;
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = UdevListeners;
    const int socket = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT);
    ::sendto(socket, message.constData(), size_t(message.size()), 0, reinterpret_cast<sockaddr *>(&address),
             sizeof address);
    ::close(socket);
}

// udev's hashes of the names, by which listeners choose
constexpr quint32 HidrawHash = 0xC2CAF397;
constexpr quint32 BlockHash = 0xF0031DB7;

} // namespace

/// News of plugged and pulled keyboards, sent as udev sends it.
class TestHotplug : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyboardsAreTold_data();
    void keyboardsAreTold();
};

void TestHotplug::keyboardsAreTold_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("plugged in") << QByteArray("add");
    QTest::newRow("pulled out") << QByteArray("remove");
}

void TestHotplug::keyboardsAreTold()
{
    QFETCH(QByteArray, action);
    const platform::HotplugSource source;
    QSignalSpy spy(&source, &platform::HotplugSource::changed);
    send(udevMessage(action.constData(), "block", BlockHash));
    send("not a message of udev's");
    send(udevMessage(action.constData(), "hidraw", HidrawHash));
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 1); // what came before, and is none of ours, was not told
}

int main(int argc, char *argv[])
{
    enterOwnWorld();
    QCoreApplication application(argc, argv);
    TestHotplug test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hotplug.moc"
