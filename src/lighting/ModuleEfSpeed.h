#pragma once

#include <memory>
#include <QFrame>

class LevelControl;
namespace Ui {
class ModuleEfSpeed;
}

/// Speed of the light effect, 0 (slowest) to 4; the keyboard itself counts the other way. GUI thread only.
class ModuleEfSpeed : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleEfSpeed(QWidget *parent = nullptr);
    ~ModuleEfSpeed() override;

    /// Shows a speed that the keyboard reported, without a signal; values outside 0 to 4 are clamped.
    void setSpeed(int speed);

Q_SIGNALS:
    void onSpeedChanged(uchar speed);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showName();

    std::unique_ptr<Ui::ModuleEfSpeed> ui;
    LevelControl *level;
};
