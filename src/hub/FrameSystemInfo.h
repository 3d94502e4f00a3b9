#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class FrameSystemInfo;
}

/// The system settings: whether the hub starts together with the computer. Made anew for each opening, to be
/// shown in a ModuleGeneralMasker. Opening it also takes away a machine-wide autostart entry of earlier
/// versions, where the user may. GUI thread only.
class FrameSystemInfo : public QFrame
{
    Q_OBJECT

public:
    explicit FrameSystemInfo(QWidget *parent = nullptr);
    ~FrameSystemInfo() override;

Q_SIGNALS:
    /// The user has decided, and the frame hides right afterwards: 1 if the choice was taken over, 0 if not.
    void finished(int result);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void accept();
    void leave(int result);

    std::unique_ptr<Ui::FrameSystemInfo> ui;
};
