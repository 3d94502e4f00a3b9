#pragma once

#include "VirtualBus.h"

#include <QWidget>

class QVBoxLayout;

/// The desk that the demo's virtual devices lie on: a small window with a switch for each that plugs it in
/// and pulls it out. Ctrl and a digit do the same from the keyboard. GUI thread only.
class DemoDesk : public QWidget
{
    Q_OBJECT

public:
    /// Plugs the models whose names are given in; the others lie ready.
    explicit DemoDesk(const QStringList &plugged, QWidget *parent = nullptr);

    /// Names of all models.
    static QStringList modelNames();

    /// Plugs a model in or pulls it out; a name that isn't there changes nothing.
    void setPlugged(const QString &model, bool plugged);

private:
    void addSwitch(QVBoxLayout *layout, const sim::Model &model, int number, bool plugged);
    void plug(const std::string &model, bool plugged);

    std::map<std::string, virtualhid::DevicePtr> devices;
};
