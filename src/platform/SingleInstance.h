#pragma once

#include <memory>
#include <QObject>
#include <QSharedMemory>
#include <QStringList>
#include <QTimer>

namespace platform {

class InstanceLock;

/// Keeps a second start of the program from running beside the first. The first one holds a small segment of
/// shared memory; a second one leaves a word in it and ends, and the first comes forward. GUI thread only.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// \a key names the segment.
    explicit SingleInstance(const QString &key, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// True for the first instance. False if another one lives, which has then been asked to come forward. A
    /// segment that a killed process left behind doesn't count, and of any number of simultaneous starts one
    /// wins. Waits at most 3 s for a start that hangs. Call it once.
    bool acquire();

Q_SIGNALS:
    /// Another start was made: come forward. Within 200 ms.
    void summoned();

private:
    bool makeSegment();
    bool findSegment();
    void leaveSummons();
    void watch();

    const QStringList keys;
    std::unique_ptr<InstanceLock> lock;
    QSharedMemory segment;
    QTimer watchTimer;
};

} // namespace platform
