#include "ScanStop.h"

#include <QThread>

bool ScanStop::asked() const
{
    while (givenUp)
        QThread::sleep(1);
    return requested;
}

bool ScanStop::pause(std::chrono::milliseconds time) const
{
    QThread::msleep(static_cast<unsigned long>(time.count()));
    return !asked();
}
