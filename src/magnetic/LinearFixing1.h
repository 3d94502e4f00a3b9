#pragma once

#include <memory>
#include <QDialog>

namespace Ui {
class LinearFixing1;
}

/// The guide of the travel calibration. Its start button runs the whole calibration, with LinearFixing2 on
/// top; then the guide is rejected, however that ended. GUI thread only.
class LinearFixing1 : public QDialog
{
    Q_OBJECT

public:
    /// An empty title or text stands for the guide's own. The guide covers the parent's frame, or the primary
    /// screen without a parent.
    LinearFixing1(const QString &title, const QString &text, QWidget *parent = nullptr);
    ~LinearFixing1() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fitText();
    void calibrate();

    std::unique_ptr<Ui::LinearFixing1> ui;
};
