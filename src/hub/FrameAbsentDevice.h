#pragma once

#include "DeviceTrouble.h"

#include <memory>
#include <QFrame>

namespace Ui {
class FrameDeviceShow;
}

/// The card of a device that can't be used at present: it looks like the others, but gray, says why, and does
/// nothing. GUI thread only.
class FrameAbsentDevice : public QFrame
{
    Q_OBJECT

public:
    explicit FrameAbsentDevice(QWidget *parent = nullptr);
    ~FrameAbsentDevice() override;

    void setDevice(const AbsentDevice &absent);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showTexts();

    AbsentDevice device;
    std::unique_ptr<Ui::FrameDeviceShow> ui;
};
