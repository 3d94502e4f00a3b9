#pragma once

#include "Macro.h"

#include <memory>
#include <QFrame>

namespace Ui {
class ModuleAddMacroSquare;
}

/// The dialog that adds a step by hand: a key, mouse buttons or a mouse position. GUI thread only.
class ModuleAddMacroSquare : public QFrame
{
    Q_OBJECT

public:
    ModuleAddMacroSquare();
    ~ModuleAddMacroSquare() override;

    /// Asks in the middle of a page, which is dimmed meanwhile. True if the user accepted.
    bool exec(QWidget *page);

    /// What was asked for: a press and a release of the key or of each button, or a position. The value of a
    /// button is 1 (left), 2 (right) or 4 (middle). Empty if no key was pressed or no button chosen.
    QList<MacroEvent> steps() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void reset();
    void showChoice();
    void setKey(quint8 code);
    void end(bool accepted);

    std::unique_ptr<Ui::ModuleAddMacroSquare> ui;
    quint8 keyCode = 0;
    bool isAccepted = false;
};
