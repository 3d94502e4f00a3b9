#pragma once

#include "DeviceTrouble.h"

#include <memory>
#include <QFrame>
#include <QPointer>

class QScrollArea;
namespace Ui {
class FrameDeviceShow;
}

/// The card of one online device: picture, name, connection and charge. A press on it begins the hand-over to
/// the device's page. Cards are pooled, and a card may show another device after each scan. GUI thread only.
class FrameDeviceShow : public QFrame
{
    Q_OBJECT

public:
    static constexpr int PoolSize = 256;

    ~FrameDeviceShow() override;

    /// The pooled card of that index, made on first use with \a parent; null outside 0 to PoolSize - 1.
    /// The first card ever made is the selected one.
    static FrameDeviceShow *acquire(int index, QWidget *parent);
    /// Hides every pooled card from that index on.
    static void hideFrom(int index);

    /// Where the wheel scrolls sideways; may be null.
    void setScrollArea(QScrollArea *area);
    /// Shows a device and asks for its charge two seconds later. The record must outlive the card's use of
    /// it; null is ignored. A device that couldn't be opened is shown gray, with the reason.
    void setDevice(DeviceEnumInfo *device);
    /// Shows a picture, or the default one of the device type if it can't be read, and takes its width from
    /// it.
    void setImage(const QString &path, int deviceType);

    /// Asks a wireless device for its charge, shows it and emits onReport(); does nothing for a wired one.
    /// Blocks while the device answers, up to half a second.
    void report();

    /// Whether someone has connected to the signals already: a pooled card is connected once.
    bool signalsConnected() const { return connected; }
    void setSignalsConnected(bool areConnected) { connected = areConnected; }

Q_SIGNALS:
    void onClicked(DeviceEnumInfo *device, QString deviceImg);
    /// \a battImg and \a typeImg are resource paths, \a tip and \a style are for the battery's label.
    void onReport(DeviceEnumInfo *device, QString battImg, QString typeImg, QString tip, QString style);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    explicit FrameDeviceShow(QWidget *parent);
    void showName();
    void showTrouble();
    void select();
    void openSoon();
    void scrollSideways(int distance);
    void paintFocus();

    DeviceEnumInfo *device = nullptr;
    QPointer<QScrollArea> scrollArea;
    DeviceTrouble trouble = DeviceTrouble::None;
    bool connected = false;
    QString deviceImage;
    QString connectionImage;
    std::unique_ptr<Ui::FrameDeviceShow> ui;
};
