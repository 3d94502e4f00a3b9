#pragma once

#include <memory>
#include <QByteArray>

class QMutex;

struct hid_device_;
using hid_device = hid_device_;

/// hidapi keeps one error text for the whole process and frees it in every open and every enumeration: two
/// threads in one of these calls at once free it twice. HidHandle::open() holds this lock; whoever enumerates
/// holds it as well.
QMutex &hidLibraryMutex();

/// Over the air every answer goes to everyone who has the keyboard open. Who asks there holds this lock until
/// the answer was taken, so that none is taken for another's. The GUI thread only tries for it.
QMutex &airMutex();

/// Why a path could not be opened.
enum class OpenFailure {
    None,
    Denied, ///< this user has no right to it
    Other,
};

/// One open HID device, closed with the object. An object without a device is valid: all it does is answer
/// "no". Use one object from one thread at a time.
class HidHandle
{
public:
    HidHandle() = default;

    /// Opens a path that hid_enumerate gave; waits at most half a second for another thread's open or
    /// enumeration. If that fails the result is empty, and the log names the cause, once for each path until
    /// it can be opened again. Any thread.
    static HidHandle open(const QByteArray &path);
    /// What became of the last open() of that path; None also if it was never tried. Any thread.
    static OpenFailure lastFailure(const QByteArray &path);

    explicit operator bool() const { return device != nullptr; }
    hid_device *get() const { return device.get(); }

    /// Whether reads without a limit of their own return at once; no-op without a device.
    void setNonblocking(bool nonblocking);
    void close() { device.reset(); }

private:
    struct Closer
    {
        void operator()(hid_device *handle) const;
    };
    explicit HidHandle(hid_device *handle)
        : device(handle)
    {
    }

    std::unique_ptr<hid_device, Closer> device;
};
