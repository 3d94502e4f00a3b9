#pragma once

#include "ModuleAdvancedTab.h"

#include <memory>

namespace Ui {
class ModuleSnapTab;
}

/// SnapKey: of two keys that are down together, the one pressed last wins. GUI thread only.
class ModuleSnapTab : public ModuleAdvancedTab
{
    Q_OBJECT

public:
    explicit ModuleSnapTab(QWidget *parent = nullptr);
    ~ModuleSnapTab() override;

    void loadKey(const ClickedKey &key) override;
    void takeKey(const ClickedKey &key) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void save();

    std::unique_ptr<Ui::ModuleSnapTab> ui;
    quint8 snapKeyA = 0; ///< code; 0 for none
    quint8 snapKeyB = 0; ///< likewise
};
