#pragma once

#include "ModuleAdvancedTab.h"

#include <memory>

namespace Ui {
class ModuleTGLTab;
}

/// Toggle: a key that switches its function on and off, repeating it or holding it down. GUI thread only.
class ModuleTGLTab : public ModuleAdvancedTab
{
    Q_OBJECT

public:
    explicit ModuleTGLTab(QWidget *parent = nullptr);
    ~ModuleTGLTab() override;

    void loadKey(const ClickedKey &key) override;
    void takeKey(const ClickedKey &key) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void pickFunction();
    void showFunction();
    void save();

    std::unique_ptr<Ui::ModuleTGLTab> ui;
    KeyEntry tglEntry;
    quint8 tglKey = 0; ///< code; 0 for none
};
