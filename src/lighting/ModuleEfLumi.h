#pragma once

#include <memory>
#include <QFrame>

class LevelControl;
namespace Ui {
class ModuleEfLumi;
}

/// Brightness of the light, 0 (dark) to 4. GUI thread only.
class ModuleEfLumi : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleEfLumi(QWidget *parent = nullptr);
    ~ModuleEfLumi() override;

    /// Shows a brightness that the keyboard reported, without a signal; values outside 0 to 4 are clamped.
    void setBright(int bright);

Q_SIGNALS:
    void onBrightChanged(int bright);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showName();

    std::unique_ptr<Ui::ModuleEfLumi> ui;
    LevelControl *level;
};
