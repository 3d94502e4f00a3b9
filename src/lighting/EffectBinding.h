#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>

class DialogDeviceConnect;
class ModuleEfColor;
class ModuleEfLumi;
class ModuleEfMode;
class ModuleEfSpeed;

/// Ties the effect controls of a page to the keyboard: what the user chooses is written at once, and what the
/// keyboard reports is shown. The controls must live as long. GUI thread only.
class EffectBinding : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        ModuleEfMode *mode;
        ModuleEfColor *color;
        ModuleEfLumi *brightness;
        ModuleEfSpeed *speed;
    };

    /// Without a connection nothing is written or shown.
    EffectBinding(const Controls &controls, DialogDeviceConnect *connection, QObject *parent);

private:
    void connectWrites();
    void takeReply(const QByteArray &reply);
    bool lightReady();

    Controls controls;
    QPointer<DialogDeviceConnect> connection;
    QByteArray lightRead; ///< the last reply of the light, until the light is next written
};
