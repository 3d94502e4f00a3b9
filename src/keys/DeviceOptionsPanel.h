#pragma once

#include <array>
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
    /// A number that is typed, turned with the wheel or set on a slider.
    struct Row
    {
        QLineEdit *edit;
        QSlider *slider;
    };

    void fillWheels();
    void connectWheels();
    void connectRow(size_t row);
    void takeText(size_t row, const QString &text);
    void nameControls();

    std::unique_ptr<Ui::DeviceOptionsPanel> ui;
    std::array<Row, 3> rows{};
    bool refreshing = false;
};
