#pragma once

#include "ModuleAdvancedTab.h"

#include <memory>
#include <QFrame>
#include <QTimer>

class QButtonGroup;
namespace Ui {
class FrameKeySetting;
}

/// The page on which keys are remapped: the on-screen keyboard above, and below it the four modes in which a
/// click on a key means something else. It keeps no model: it shows what the connection knows, writes through
/// the connection, and shows again. GUI thread only.
class FrameKeySetting : public QFrame
{
    Q_OBJECT

public:
    explicit FrameKeySetting(QWidget *parent = nullptr);
    ~FrameKeySetting() override;

    /// Shows what the connection knows of the keyboard; called when the keyboard has been read. Only the
    /// modes for a layer have something to show. Like every refresh it does nothing during a read.
    void RefreshPage();
    /// Shows the functions of layer 0 on all keyboards, and the keyboard's options.
    void RefreshCustomLayer();
    /// Shows the functions of the Fn layer over those of layer 0, and the keyboard's options.
    void RefreshFnLayer();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Ids of the mode buttons.
    enum Mode : int { Custom, Advanced, Options, FnLayer, ModeCount };

    void buildModes();
    void buildAdvancedTabs();
    void changeMode(int id);
    /// Shows what the mode is about: its title, and the layer of the keyboard that it sets.
    void showLayer();

    void beginRefresh(std::chrono::milliseconds hold);

    void onPickKey(const QString &text, quint8 code);
    void pickFunction(quint8 code);
    void giveMacro(quint8 code, const KeyEntry &picked);
    void clickAdvanced(const QString &text, quint8 code);

    std::unique_ptr<Ui::FrameKeySetting> ui;
    QButtonGroup *modeButtons;
    QList<ModuleAdvancedTab *> tabs; ///< by index
    int mode = Custom;
    QTimer refreshing; ///< runs during a refresh and for a while after it
};
