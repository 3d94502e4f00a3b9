#include "Scanner.h"

#include <QTest>

Scanner::Scanner(bool tarnwickBuild)
    : bus(virtualhid::VirtualBus::instance())
    , enumeration(OrbeDeviceEnum::launch(tarnwickBuild))
{
    bus.reset();
    QObject::connect(&list, &DeviceList::oEnumDeiceDone, &list, [this] { ++passes; });
    list.watch(enumeration.get());
    enumeration->setWindowShown(true);
}

Scanner::~Scanner()
{
    enumeration.reset();
    bus.reset();
}

bool Scanner::scan(int limitMs)
{
    enumeration->requestScan();
    return waitForPass(limitMs);
}

bool Scanner::waitForPass(int limitMs)
{
    return QTest::qWaitFor([this, before = passes] { return passes > before; }, limitMs);
}

bool Scanner::isHeldAfter(int ms)
{
    return !scan(ms) && enumeration->isScanning();
}

QStringList Scanner::onlineNames() const
{
    QStringList names;
    for (const DeviceEnumInfo *device : list.devices()) {
        if (device->online)
            names += device->displayName;
    }
    return names;
}

const DeviceEnumInfo *Scanner::only() const
{
    return list.devices().size() == 1 ? list.devices().constFirst() : nullptr;
}
