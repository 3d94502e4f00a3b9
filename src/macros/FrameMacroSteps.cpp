// What the macro page does with the steps of the open macro.

#include "FrameMacro.h"
#include "MacroGrid.h"
#include "MacroRecorder.h"
#include "MacroSquare.h"
#include "MacroSquareText.h"
#include "ModuleAddMacroSquare.h"
#include "ModuleMacroManager.h"
#include "ui_FrameMacro.h"

#include <chrono>
#include <QScrollBar>

using namespace std::chrono_literals;

namespace {

constexpr auto ScrollDelay = 10ms; ///< until the squares have their places
constexpr auto DialogSaveDelay = 20ms;
constexpr auto RecordSaveDelay = 300ms; ///< a pause of the typist: writing must not disturb the gaps measured

/// The store's value for a mouse button of Qt's; a value of the store's stays.
quint16 storedButton(quint16 button)
{
    switch (button) {
    case Qt::LeftButton:
        return MacroButton::Left;
    case Qt::RightButton:
        return MacroButton::Right;
    case Qt::MiddleButton:
        return MacroButton::Middle;
    default:
        return button;
    }
}

} // namespace

/// The one way for a step into the macro, whether it is recorded, put in by hand or loaded.
void FrameMacro::addSquare(quint8 type, quint16 value, bool down, QString text)
{
    MacroGrid *grid = ui->macroGrid;
    const qsizetype count = grid->squares().size();
    if ((!loading && !recording) || count + 2 > ModuleMacroManager::MostEvents)
        return;
    if (type == MacroType::Button) {
        value = storedButton(value);
        text = macrotext::buttonName(value);
    }
    const qsizetype place = insertAfter ? grid->squares().indexOf(insertAfter) : -1;
    const qsizetype index = place < 0 ? count : place;
    grid->insert(index, type, value, down, macrotext::squareText(text));
    pendingDelay = grid->insert(index + 1, MacroType::Delay, MacroSquare::DefaultDelay, false, tr("延迟"));
    if (!loading)
        rebuild(index);
}

void FrameMacro::handleSquare(MacroSquare *square, uchar action)
{
    if (action == MacroSquare::DeleteThis) {
        removeSquares({square});
    } else if (action == MacroSquare::InsertHere) {
        insertAfter = square;
        ui->pushButtonInsert->click();
    }
}

void FrameMacro::setRecording(bool on)
{
    if (on == recording)
        return;
    pendingDelay = nullptr;
    recording = on;
    // Clicks on the squares are steps, too, while they are recorded.
    ui->macroGrid->setAttribute(Qt::WA_TransparentForMouseEvents, on);
    ui->pushButtonRecord->setChecked(on);
    ui->pushButtonRecord->setText(on ? tr("停止录制") : tr("开始录制"));
    if (on) {
        ui->pushButtonRecord->setFocus();
        recorder->start();
    } else {
        recorder->stop();
        save();
    }
}

void FrameMacro::insertByHand()
{
    MacroSquare *const place = insertAfter;
    setRecording(false);
    if (!addDialog)
        addDialog = std::make_unique<ModuleAddMacroSquare>();
    if (addDialog->exec(this)) {
        recording = true; // lets the steps in
        const QList<MacroEvent> steps = addDialog->steps();
        insertAfter = place;
        for (const MacroEvent &step : steps)
            addSquare(step.type, step.value, step.down, step.text);
        recording = false;
        saveTimer.start(DialogSaveDelay);
    }
    pendingDelay = nullptr;
    insertAfter = nullptr;
}

void FrameMacro::removeSquares(const QList<MacroSquare *> &actions)
{
    for (MacroSquare *action : actions)
        ui->macroGrid->removePair(action);
    pendingDelay = nullptr; // it may be one of those
    rebuild();
}

void FrameMacro::deleteSelected()
{
    QList<MacroSquare *> actions;
    const QList<MacroSquare *> &squares = ui->macroGrid->squares();
    for (qsizetype i = 0; i < squares.size(); i += 2) {
        if (squares.at(i)->isSelected() && squares.at(i)->type() != MacroType::Delay)
            actions.prepend(squares.at(i));
    }
    removeSquares(actions);
}

void FrameMacro::clearSquares()
{
    pendingDelay = nullptr;
    ui->macroGrid->clear();
    rebuild();
}

void FrameMacro::setFixedDelay()
{
    ui->spinBoxDelay->interpretText();
    for (MacroSquare *square : ui->macroGrid->squares()) {
        if (square->type() == MacroType::Delay)
            square->setValue(quint16(ui->spinBoxDelay->value()));
    }
    save();
}

void FrameMacro::rebuild(qsizetype firstChanged)
{
    ui->macroGrid->arrangeFrom(firstChanged);
    scrollTimer.start(ScrollDelay);
    showState();
    if (recorder->isActive()) {
        keepSteps();
        saveTimer.start(RecordSaveDelay);
    } else {
        save();
    }
}

void FrameMacro::scrollToEnd()
{
    QScrollBar *bar = ui->scrollAreaSquares->verticalScrollBar();
    ui->scrollAreaSquares->widget()->updateGeometry();
    bar->setValue(bar->maximum());
}

/// Puts what the squares show into the macro.
void FrameMacro::keepSteps()
{
    currentMacro->clearEvents();
    for (const MacroSquare *square : ui->macroGrid->squares())
        store->AddEvent(currentMacro, square->type(), square->value(), square->isDown(), square->text());
    showSize();
}

void FrameMacro::save()
{
    saveTimer.stop();
    if (!currentMacro)
        return;
    keepSteps();
    store->SaveEvents(currentMacro);
}
