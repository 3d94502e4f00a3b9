#pragma once

#include <functional>
#include <memory>
#include <QFrame>

class QLineEdit;
class QSlider;
namespace Ui {
class DeviceOptionsPanel;
}

/// The keyboard's global options: report rate, the times until its light goes out and until it sleeps on the
/// two wireless links, and debounce. The controls keep nothing: they show what the connection knows, and a
/// change is written at once. GUI thread only.
class DeviceOptionsPanel : public QFrame
{
    Q_OBJECT

public:
    explicit DeviceOptionsPanel(QWidget *parent = nullptr);
    ~DeviceOptionsPanel() override;

    /// Shows what the connection knows of the keyboard; call it between setRefreshing(true) and (false).
    /// The wheels write nothing then. Without a connection nothing changes.
    void refresh();
    /// While on, the line edits and sliders write nothing. The wheels always write when they are turned.
    void setRefreshing(bool on);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    using Write = std::function<void(int)>;

    void fillWheels();
    void connectWheels();
    void connectRow(QLineEdit *edit, QSlider *slider, const Write &write);
    void showTexts();

    std::unique_ptr<Ui::DeviceOptionsPanel> ui;
    bool refreshing = false;
};
