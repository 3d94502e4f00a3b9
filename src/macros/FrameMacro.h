#pragma once

#include <memory>
#include <QFrame>
#include <QTimer>

class MacroItem;
class MacroRecorder;
class MacroSquare;
class ModuleAddMacroSquare;
class ModuleMacroManager;
struct Macro;
namespace Ui {
class FrameMacro;
}

/// The page of the macros: a list of them, and the steps of the chosen one as squares that can be recorded,
/// put in, taken out and changed. It edits the store only; a keyboard gets a macro when a key is given it.
/// Works from the one store, and makes it if there is none. GUI thread only.
class FrameMacro : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMacro(QWidget *parent = nullptr);
    ~FrameMacro() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void dress();
    void connectTools();
    void connectRecorder();

    // the list
    MacroItem *addRow(const Macro &macro);
    void addMacro();
    void handleRow(int operation, QWidget *from);
    void leaveMacro();
    void selectMacro(MacroItem *row);
    void removeMacro(MacroItem *row);

    // the steps
    void addSquare(quint8 type, quint16 value, bool down, QString text);
    void handleSquare(MacroSquare *square, uchar action);
    void setRecording(bool on);
    void insertByHand();
    void removeSquares(const QList<MacroSquare *> &actions);
    void deleteSelected();
    void clearSquares();
    void setFixedDelay();
    void rebuild(qsizetype firstChanged = 0);
    void scrollToEnd();
    void keepSteps();
    void save();

    void showTexts();
    void showState();
    void showSize();

    std::unique_ptr<Ui::FrameMacro> ui;
    std::unique_ptr<ModuleAddMacroSquare> addDialog; ///< made when it is first wanted
    ModuleMacroManager *store;
    MacroRecorder *recorder;
    QTimer saveTimer;
    QTimer scrollTimer;
    QList<MacroItem *> rows;
    MacroItem *currentRow = nullptr;
    Macro *currentMacro = nullptr;
    MacroSquare *insertAfter = nullptr;  ///< steps are put in at its place; null for the end
    MacroSquare *pendingDelay = nullptr; ///< gets the time until the next recorded step
    bool recording = false;
    bool loading = false;
};
