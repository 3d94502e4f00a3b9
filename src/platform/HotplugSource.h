#pragma once

#include <QObject>

class QEvent;

namespace platform {

/// Tells that some device was plugged in or pulled out, as the operating system tells it: often several times for one
/// plug, and for devices of all kinds. GUI thread only. Where the system doesn't tell, it stays silent.
class HotplugSource : public QObject
{
    Q_OBJECT

public:
    /// Begins to listen. The application object must exist.
    static HotplugSource *create(QObject *parent);

Q_SIGNALS:
    void changed();

protected:
    using QObject::QObject;
};

} // namespace platform
