#pragma once

#include <memory>
#include <QFrame>

class QButtonGroup;
namespace Ui {
class ModuleEfMode;
}

/// The choice of a light effect and of the way it plays, and a switch that darkens the keyboard. GUI thread
/// only.
class ModuleEfMode : public QFrame
{
    Q_OBJECT

public:
    static constexpr int Darken = -1; ///< in place of an effect: the option is the switch's state

    /// Starts with the first effect of the list.
    explicit ModuleEfMode(QWidget *parent = nullptr);
    ~ModuleEfMode() override;

    /// Shows an effect that the keyboard reported, without a signal. For one that isn't in the list nothing
    /// changes on screen, and the user's next click on an effect is the one that gives no signal.
    void setMode(int id);

Q_SIGNALS:
    /// The user chose an effect (its option is 0 then) or another option of it, or used the switch.
    void onModeChanged(int mode, uchar option);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildList();
    void takeEffect(int id);
    void showOptions();
    void showTexts();

    std::unique_ptr<Ui::ModuleEfMode> ui;
    QButtonGroup *buttons;
    bool fromKeyboard = false; ///< holds back one signal
    quint8 effect = 0;
};
