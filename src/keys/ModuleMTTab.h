#pragma once

#include "ModuleAdvancedTab.h"

#include <array>
#include <memory>

class FittingButton;
class QLabel;
namespace Ui {
class ModuleMTTab;
}

/// Mod-tap: one function for a tap on a key and another for holding it. GUI thread only.
class ModuleMTTab : public ModuleAdvancedTab
{
    Q_OBJECT

public:
    explicit ModuleMTTab(QWidget *parent = nullptr);
    ~ModuleMTTab() override;

    void loadKey(const ClickedKey &key) override;
    void takeKey(const ClickedKey &key) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    static constexpr int Functions = 2; ///< tap and hold, the key's layers 0 and 1

    void pickFunction(size_t index);
    void showFunctions();
    void save();

    std::unique_ptr<Ui::ModuleMTTab> ui;
    std::array<FittingButton *, Functions> buttons;
    std::array<QLabel *, Functions> captions;
    std::array<KeyEntry, Functions> mtEntries;
    quint8 mtKey = 0; ///< code; 0 for none
};
