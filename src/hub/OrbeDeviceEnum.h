#pragma once

#include "ScanMailbox.h"
#include "ScanStop.h"

#include <atomic>
#include <memory>
#include <QThread>

class KeptHandles;

/// Looks for keyboards on a thread of its own, which starts with the object and sleeps until a pass is asked
/// for. A pass takes from some milliseconds to many seconds; its result waits in takeResults().
class OrbeDeviceEnum : public QThread
{
    Q_OBJECT

public:
    /// Ends the thread and frees the object. Waits a second at most: a thread that a HID call holds is left
    /// to the end of the process together with the object, and touches nothing any more when the call
    /// returns.
    struct Release
    {
        void operator()(OrbeDeviceEnum *thread) const;
    };
    using Pointer = std::unique_ptr<OrbeDeviceEnum, Release>;

    /// GUI thread. \a tarnwickBuild chooses the second brand's catalogue and leaves families 1 and 3 out.
    static Pointer launch(bool tarnwickBuild = false);

    /// Asks for a pass; any thread. Asked during a pass, a further one follows. A request that meets a closed
    /// gate (see below) is lost.
    void requestScan() { scanRequested = true; }
    /// Lets the thread leave as soon as its present sleep or HID call ends; any thread. A pass that this cuts
    /// short has no result.
    void stop();

    // The gate: a pass starts only while scans aren't suspended, and the window is shown or a sibling is
    // hosted. Closed at first. GUI thread.

    /// Whether the main window is neither minimised nor hidden.
    void setWindowShown(bool shown) { windowShown = shown; }
    /// Whether a sibling driver's window is open in or instead of the main window.
    void setHosting(bool hosting) { siblingHosted = hosting; }
    /// Keeps passes from starting, as while a keyboard is being read.
    void setScanSuspended(bool suspended) { scanSuspended = suspended; }

    /// Whether a pass is under way; any thread.
    bool isScanning() const { return scanning; }

    /// The results of the passes that ended since the last call, oldest first. GUI thread.
    std::vector<ScanResult> takeResults() { return results.takeAll(); }

Q_SIGNALS:
    /// A pass has left its result. Emitted on the enumeration thread.
    void passDone();

protected:
    void run() override;

private:
    explicit OrbeDeviceEnum(bool tarnwickBuild);
    ~OrbeDeviceEnum() override;

    bool gateOpen() const;
    void enumerateDevices(KeptHandles &handles);

    const bool tarnwickBuild;
    ScanStop stopRequested;
    std::atomic_bool left = false; ///< set last by run(): what wait() tells, visible to the thread sanitizer
    std::atomic_bool scanRequested = false;
    std::atomic_bool scanning = false;
    std::atomic_bool scanSuspended = false;
    std::atomic_bool windowShown = false;
    std::atomic_bool siblingHosted = false;
    ScanMailbox results;
};
