#pragma once

#include <initializer_list>
#include <memory>
#include <QFrame>
#include <QPointer>

class DialogDeviceConnect;
namespace Ui {
class FrameMain;
}

/// The first page of a native keyboard: its picture, the travels of all keys at once, and the light. Whatever
/// the user changes is written at once. GUI thread only.
class FrameMain : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMain(QWidget *parent = nullptr);
    ~FrameMain() override;

    /// Shows a picture file of any size. One that can't be read leaves the picture that stands there.
    void setDevicePicture(const QString &path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectTravels();
    void writeToAllKeys(std::initializer_list<quint8> tables, float millimetres);

    std::unique_ptr<Ui::FrameMain> ui;
    QPointer<DialogDeviceConnect> connection;
};
