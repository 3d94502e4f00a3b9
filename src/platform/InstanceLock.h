#pragma once

#include <memory>
#include <QString>
#include <QStringList>

namespace platform {

/// Tells starts of one program by one user apart: which of them lives, and whose turn it is. What a process
/// holds falls with the process, however it ends. One object a process; one thread.
class InstanceLock
{
public:
    explicit InstanceLock(const QString &key);
    ~InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

    /// Lets one start at a time go on from here to leave(). Waits for the others, at most 3 s.
    void enter();
    void leave();

    /// Makes this process the one that lives; false if another one is. If the system can't tell, it is this
    /// one: better two than none.
    bool claim();

    /// Names for the shared segment, best first. Where the users of a machine share one set of names, the
    /// best may belong to somebody else.
    static QStringList segmentKeys(const QString &key);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace platform
