#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class FrameMain;
}

/// The first page of a native keyboard, with the keyboard's picture. GUI thread only.
class FrameMain : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMain(QWidget *parent = nullptr);
    ~FrameMain() override;

    /// Shows a picture file of any size. One that can't be read leaves the picture that stands there.
    void setDevicePicture(const QString &path);

private:
    std::unique_ptr<Ui::FrameMain> ui;
};
