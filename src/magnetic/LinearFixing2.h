#pragma once

#include <memory>
#include <QDialog>

namespace Ui {
class LinearFixing2;
}

/// Shows while a calibration runs which keys of the keyboard are calibrated: they turn orange, for good. The
/// two ways out do the same. GUI thread only.
///
/// The keys that are being calibrated type as well, so that the dialog takes keys only together with Ctrl.
class LinearFixing2 : public QDialog
{
    Q_OBJECT

public:
    /// Covers a rectangle of the screen. Follows the connection's calibration data from here on.
    explicit LinearFixing2(const QRect &screenRect, QWidget *parent = nullptr);
    ~LinearFixing2() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showCalibrated(const QByteArray &scan);

    std::unique_ptr<Ui::LinearFixing2> ui;
};
