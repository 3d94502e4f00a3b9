#include "SingleInstance.h"

#include "InstanceLock.h"
#include "PlatformLog.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace platform {

namespace {

constexpr int SegmentSize = 1024;
constexpr QByteArrayView Summons("12345678");
constexpr auto WatchPeriod = 200ms;

/// Replaces the whole content of the segment by \a text.
void write(QSharedMemory &segment, QByteArrayView text)
{
    if (segment.size() < text.size() || !segment.lock())
        return;
    auto *content = static_cast<char *>(segment.data());
    std::fill_n(std::copy(text.begin(), text.end(), content), segment.size() - text.size(), '\0');
    segment.unlock();
}

QByteArray read(QSharedMemory &segment)
{
    if (!segment.lock())
        return {};
    const auto *text = static_cast<const char *>(segment.constData());
    const QByteArray result(text, qsizetype(qstrnlen(text, size_t(segment.size()))));
    segment.unlock();
    return result.trimmed();
}

} // namespace

SingleInstance::SingleInstance(const QString &key, QObject *parent)
    : QObject(parent)
    , keys(InstanceLock::segmentKeys(key))
    , lock(std::make_unique<InstanceLock>(key))
{
    connect(&watchTimer, &QTimer::timeout, this, &SingleInstance::watch);
}

// Letting go of a segment may remove it, which must not fall into another start's look at it.
SingleInstance::~SingleInstance()
{
    lock->enter();
    segment.detach();
    lock.reset();
}

bool SingleInstance::acquire()
{
    // The lock decides who lives; the segment only carries the word. Since starts take turns, the first
    // one's segment is ready before the second one looks for it.
    lock->enter();
    const bool first = lock->claim();
    if (!first) {
        leaveSummons();
    } else if (makeSegment()) {
        watchTimer.start(WatchPeriod);
    } else {
        qCWarning(lcPlatform) << "A second start can't call this one:" << segment.errorString();
    }
    lock->leave();
    return first;
}

bool SingleInstance::makeSegment()
{
    for (const QString &key : keys) {
        segment.setKey(key);
        // Nobody lives who could hold it: it was left behind, and goes when its last user lets go of it.
        if (segment.attach())
            segment.detach();
        if (segment.create(SegmentSize))
            return true;
        if (segment.attach()) {
            write(segment, {});
            return true;
        }
    }
    return false;
}

bool SingleInstance::findSegment()
{
    for (const QString &key : keys) {
        segment.setKey(key);
        if (segment.attach())
            return true;
    }
    return false;
}

void SingleInstance::leaveSummons()
{
    if (!findSegment()) {
        qCWarning(lcPlatform) << "The first instance can't be called:" << segment.errorString();
        return;
    }
    write(segment, Summons);
    segment.detach();
}

void SingleInstance::watch()
{
    if (read(segment) != Summons)
        return;
    Q_EMIT summoned();
    write(segment, {});
}

} // namespace platform
