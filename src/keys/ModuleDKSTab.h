#pragma once

#include "ModuleAdvancedTab.h"

#include <array>
#include <memory>

class ModuleDKSAdjust;
class ModuleDKSItem;
namespace Ui {
class ModuleDKSTab;
}

/// Dynamic keystroke: up to four functions of one key, at four points of its travel. GUI thread only.
class ModuleDKSTab : public ModuleAdvancedTab
{
    Q_OBJECT

public:
    explicit ModuleDKSTab(QWidget *parent = nullptr);
    ~ModuleDKSTab() override;

    void loadKey(const ClickedKey &key) override;
    void takeKey(const ClickedKey &key) override;

    /// The widget that the travel popup dims and stands on, by default the tab's window. It must outlive the
    /// tab.
    void setAdjustArea(QWidget *area) { adjustArea = area; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    static constexpr int Rows = 4;

    void adjustTravel(const QString &shown);
    void setTravel(double millimetres);
    void pickRow(size_t row);
    void showRows();
    void showTips();
    void save();

    std::unique_ptr<Ui::ModuleDKSTab> ui;
    std::unique_ptr<ModuleDKSAdjust> dksAdjust; ///< has no parent once it was shown
    QWidget *adjustArea = nullptr;
    std::array<ModuleDKSItem *, Rows> items;
    std::array<KeyEntry, Rows> dksEntries;
    double DKSTravel = 0.7; ///< millimetres
    quint8 dksKey = 0;      ///< code; 0 for none
};
