#pragma once

#include "DialogDeviceConnect.h"
#include "VirtualBus.h"

#include <QByteArray>
#include <QList>
#include <QSignalSpy>

/// A keyboard of a model on an otherwise empty virtual bus, and the product's connection to it. Nothing is
/// connected yet; the layer that the keyboard reports is answered with DoSetProfile as the pages do.
class ConnectedKeyboard
{
public:
    explicit ConnectedKeyboard(const char *model, const sim::DeviceOptions &options = {});
    ~ConnectedKeyboard();

    /// Connects as a card does.
    void connectDevice();
    /// Connects and waits for the end of the read sequence; false if it doesn't come.
    bool readAll();
    /// Waits until the keyboard has received so many frames since the last clearLog.
    bool waitForFrames(size_t count, int limitMs = 5000) const;
    /// Waits for nothing more to be sent: the queue is empty and the last answer is taken.
    void settle() const;

    /// Command bytes of the frames received from \a first on, in order, as hex.
    QByteArray commands(size_t first = 0) const;
    /// First bytes of a frame received.
    QByteArray frame(size_t index, int length = 8) const;
    /// How many frames had been received when the last read sequence began.
    size_t sequenceStart() const { return framesBeforeSequence; }

    template <typename Widget>
    Widget *control(const char *name)
    {
        return connection.findChild<Widget *>(QLatin1String(name));
    }

    virtualhid::DevicePtr keyboard;
    DialogDeviceConnect connection;
    QSignalSpy readDone{&connection, &DialogDeviceConnect::onReadDone};

private:
    size_t framesBeforeSequence = 0;
};

/// Bytes of the virtual keyboard as the product holds them.
template <typename Range>
QByteArray bytesOf(const Range &range)
{
    return {reinterpret_cast<const char *>(std::data(range)),
            qsizetype(std::size(range) * sizeof(*std::data(range)))};
}
