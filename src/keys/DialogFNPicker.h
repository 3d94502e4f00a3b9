#pragma once

#include "KeyPicker.h"
#include "PickerButton.h"

#include <memory>

class QButtonGroup;
namespace Ui {
class DialogFNPicker;
}

/// Picks what a key does: a combination of keys, a macro, a system function or a mouse function. Used like
/// every KeyPicker. GUI thread only.
class DialogFNPicker : public KeyPicker
{
    Q_OBJECT

public:
    explicit DialogFNPicker(QWidget *parent = nullptr);
    ~DialogFNPicker() override;

    /// Whether a macro was picked. The entry then isn't one for the keyboard but holds in bytes 0 to 2 how
    /// often the macro runs (low 8 bits), the play mode (0 counted, 1 auto, 2 while pressed) and the slot
    /// (0 to 49).
    bool isMacro() const { return macroPicked; }

protected:
    void clearPicked() override;
    void pickKey(quint8 usage) override;
    void clearSlot(size_t slot) override;

private:
    PickerButton *addFunctionButton(PickerButton::Face face, const QString &name, int id, QWidget *frame);
    void addMacros();
    void addFunctions();
    void addMouseFunctions();
    void connectControls();
    void showTab(int tab);
    void pickFunction(int id);
    void takePlayMode();

    std::unique_ptr<Ui::DialogFNPicker> ui;
    QButtonGroup *functionGroup;
    bool macroPicked = false;
};
