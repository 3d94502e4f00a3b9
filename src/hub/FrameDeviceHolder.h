#pragma once

#include <memory>
#include <QFrame>
#include <QList>

struct DeviceEnumInfo;
class FrameKeySetting;
class FrameMain;
class ShellNotices;
class SuperLabel;
namespace Ui {
class FrameDeviceHolder;
}

/// The page of a native keyboard: navigation, toolbar and the six pages. It makes the one connection of the
/// program (DialogDeviceConnect), so there is one of it too. GUI thread only.
class FrameDeviceHolder : public QFrame
{
    Q_OBJECT

public:
    explicit FrameDeviceHolder(QWidget *parent = nullptr);
    ~FrameDeviceHolder() override;

    /// Names the keyboard that the pages are about from now on and shows its picture, a file path. The record
    /// must outlive this frame; null stands for no keyboard.
    void setDevice(DeviceEnumInfo *device, const QString &image, const QString &name);

    /// Shows page 0 to 5 and selects its label; 6 and 7 leave the shell. Nothing happens for another index or
    /// while the keyboard is being read.
    void showPage(SuperLabel *label, int index);

    /// Presses the button of onboard profile 0 to 3, which writes the profile to the keyboard and reads it;
    /// other values do nothing.
    void setLayer(int layer);

    /// Shows charge and connection of a device, if it is the present one. The pictures are resource paths (an
    /// empty one hides the charge); tip and style are for the charge's label.
    void showBattery(DeviceEnumInfo *device, const QString &battImg, const QString &typeImg,
                     const QString &tip, const QString &style);

Q_SIGNALS:
    /// The user goes back to the cards.
    void onReturn();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildNextPage();
    void requirePages();
    void buildNavigation();
    void buildToolbar();
    void connectToolbar();
    void connectConnection();
    void openPairing();
    void showTips();
    void showName();
    void showBusy(bool busy);

    std::unique_ptr<Ui::FrameDeviceHolder> ui;
    DeviceEnumInfo *currentDevice = nullptr;
    QList<SuperLabel *> labels; ///< by index, as the pages
    QList<QWidget *> pages;     ///< those built so far
    QString deviceName;
    ShellNotices *notices = nullptr;
    FrameMain *home = nullptr;
    FrameKeySetting *keySettings = nullptr;
};
