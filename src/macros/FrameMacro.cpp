#include "FrameMacro.h"

#include "FocusRing.h"
#include "Look.h"
#include "MacroGrid.h"
#include "MacroItem.h"
#include "MacroKeys.h"
#include "MacroRecorder.h"
#include "MacroSquare.h"
#include "MacroStyle.h"
#include "ModuleAddMacroSquare.h"
#include "ModuleMacroManager.h"
#include "ui_FrameMacro.h"

namespace {

constexpr int RoundRadius = 15;

} // namespace

FrameMacro::FrameMacro(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameMacro>())
    , store(ModuleMacroManager::instance())
    , recorder(new MacroRecorder(this))
{
    if (!store)
        store = new ModuleMacroManager({}, this);
    ui->setupUi(this);
    dress();
    saveTimer.setSingleShot(true);
    scrollTimer.setSingleShot(true);
    connect(&saveTimer, &QTimer::timeout, this, &FrameMacro::save);
    connect(&scrollTimer, &QTimer::timeout, this, &FrameMacro::scrollToEnd);
    connectTools();
    connectRecorder();
    showTexts();
    showState();
}

FrameMacro::~FrameMacro()
{
    setRecording(false);
    if (saveTimer.isActive())
        save();
}

void FrameMacro::dress()
{
    look::setStyleOnce(ui->frameList, macrostyle::Panels);
    look::setStyleOnce(ui->frameEditor, macrostyle::Panels);
    look::setStyleOnce(ui->frameLegend, macrostyle::Legend);
    look::setStyleOnce(ui->pushButtonAddMacro, macrostyle::RoundButton);
    ui->pushButtonAddMacro->setIcon(QIcon(QStringLiteral(":/images/macroedit/add.png")));
    FocusRing::follow(ui->pushButtonAddMacro, RoundRadius);
    for (QPushButton *button : {ui->pushButtonRecord, ui->pushButtonSave})
        look::setStyleOnce(button, macrostyle::AccentButton);
    for (QPushButton *button :
         {ui->pushButtonInsert, ui->pushButtonDelete, ui->pushButtonClear, ui->pushButtonSetDelay})
        look::setStyleOnce(button, macrostyle::PlainButton);
    for (QPushButton *button : {ui->pushButtonRecord, ui->pushButtonInsert, ui->pushButtonDelete,
                                ui->pushButtonClear, ui->pushButtonSetDelay, ui->pushButtonSave})
        FocusRing::follow(button, look::PillRadius);
    look::setStyleOnce(ui->spinBoxDelay, macrostyle::NumberBox);
    FocusRing::follow(ui->spinBoxDelay, look::EditRadius);
    for (QScrollArea *area : {ui->scrollAreaMacros, ui->scrollAreaSquares}) {
        look::setStyleOnce(area, macrostyle::ScrollArea);
        area->widget()->setAutoFillBackground(false);
        area->viewport()->setAutoFillBackground(false);
    }
}

void FrameMacro::connectTools()
{
    connect(ui->pushButtonAddMacro, &QPushButton::clicked, this, &FrameMacro::addMacro);
    connect(ui->pushButtonRecord, &QPushButton::clicked, this, &FrameMacro::setRecording);
    connect(ui->pushButtonInsert, &QPushButton::clicked, this, &FrameMacro::insertByHand);
    connect(ui->pushButtonSetDelay, &QPushButton::clicked, this, &FrameMacro::setFixedDelay);
    connect(ui->pushButtonDelete, &QPushButton::clicked, this, &FrameMacro::deleteSelected);
    connect(ui->pushButtonClear, &QPushButton::clicked, this, &FrameMacro::clearSquares);
    connect(ui->pushButtonSave, &QPushButton::clicked, this, &FrameMacro::save);
    connect(ui->macroGrid, &MacroGrid::squareAction, this, &FrameMacro::handleSquare);
    connect(ui->macroGrid, &MacroGrid::squareEdited, this, &FrameMacro::save);
    connect(ui->macroGrid, &MacroGrid::squareReached, this,
            [this](MacroSquare *square) { ui->scrollAreaSquares->ensureWidgetVisible(square); });
}

void FrameMacro::connectRecorder()
{
    connect(recorder, &MacroRecorder::gapMeasured, this, [this](quint16 milliseconds) {
        if (pendingDelay)
            pendingDelay->setValue(milliseconds);
    });
    connect(recorder, &MacroRecorder::keyRecorded, this, [this](quint8 code, bool down) {
        addSquare(MacroType::Key, code, down, macrokeys::nameOf(code));
    });
    connect(recorder, &MacroRecorder::buttonRecorded, this,
            [this](int button, bool down) { addSquare(MacroType::Button, quint16(button), down, {}); });
    connect(recorder, &MacroRecorder::interrupted, this, [this] { setRecording(false); });
}

MacroItem *FrameMacro::addRow(const Macro &macro)
{
    auto *row = new MacroItem(macro.id, macro.name, ui->macroRows);
    ui->verticalLayoutMacros->insertWidget(int(rows.size()), row);
    connect(row, &MacroItem::onOperation, this, &FrameMacro::handleRow);
    rows.append(row);
    QWidget *above = ui->pushButtonAddMacro;
    for (MacroItem *each : std::as_const(rows))
        above = each->followInTabOrder(above);
    return row;
}

void FrameMacro::addMacro()
{
    const Macro *macro = store->AddMacro();
    if (!macro)
        return;
    store->SaveHeader();
    MacroItem *row = addRow(*macro);
    if (!currentMacro)
        selectMacro(row);
    row->show();
    ui->verticalLayoutMacros->activate();
    ui->scrollAreaMacros->ensureWidgetVisible(row);
}

void FrameMacro::handleRow(int operation, QWidget *from)
{
    auto *row = qobject_cast<MacroItem *>(from);
    if (!row || !rows.contains(row))
        return;
    switch (operation) {
    case MacroItem::Select:
        selectMacro(row);
        break;
    case MacroItem::Delete:
        removeMacro(row);
        break;
    case MacroItem::Rename:
        if (Macro *macro = store->FindMacro(row->macroId())) {
            macro->name = row->text();
            store->SaveHeader();
        }
        showState();
        break;
    default:
        break;
    }
}

/// Leaves the open macro: what is recorded so far is saved, and nothing of the editing goes on in another
/// one.
void FrameMacro::leaveMacro()
{
    setRecording(false);
    if (saveTimer.isActive())
        save();
    insertAfter = nullptr;
    pendingDelay = nullptr;
    currentMacro = nullptr;
    if (currentRow)
        currentRow->setSelected(false);
    currentRow = nullptr;
    ui->macroGrid->clear();
}

void FrameMacro::selectMacro(MacroItem *row)
{
    if (row == currentRow)
        return;
    leaveMacro();
    currentMacro = store->FindMacro(row->macroId());
    currentRow = row;
    row->setSelected(true);
    loading = true;
    const QList<MacroEvent *> events = currentMacro ? currentMacro->events : QList<MacroEvent *>();
    for (qsizetype i = 0; i < events.size(); i += 2) {
        const MacroEvent &action = *events.at(i);
        addSquare(action.type, action.value, action.down, action.text);
        if (i + 1 < events.size())
            pendingDelay->setValue(events.at(i + 1)->value);
    }
    loading = false;
    pendingDelay = nullptr;
    rebuild();
    showState();
}

void FrameMacro::removeMacro(MacroItem *row)
{
    leaveMacro();
    store->RemoveMacro(store->FindMacro(row->macroId()));
    rows.removeOne(row);
    row->hide();
    row->deleteLater(); // it is the row that asks
    rebuild();
    showState();
}

void FrameMacro::showTexts()
{
    ui->retranslateUi(this);
    ui->pushButtonAddMacro->setToolTip(tr("新建宏"));
    ui->pushButtonAddMacro->setAccessibleName(tr("新建宏"));
    ui->spinBoxDelay->setAccessibleName(ui->pushButtonSetDelay->text());
    ui->pushButtonRecord->setText(recording ? tr("停止录制") : tr("开始录制"));
    showSize();
    ui->macroGrid->update();
}

/// What can be done, and what the page says where there is nothing to see.
void FrameMacro::showState()
{
    const bool isOpen = currentMacro != nullptr;
    const bool isEmpty = ui->macroGrid->squares().isEmpty();
    for (QWidget *tool : std::initializer_list<QWidget *>{
             ui->pushButtonRecord, ui->pushButtonInsert, ui->pushButtonDelete, ui->pushButtonClear,
             ui->pushButtonSetDelay, ui->spinBoxDelay, ui->pushButtonSave})
        tool->setEnabled(isOpen);
    const QString name = isOpen ? currentMacro->name : QString();
    const QFontMetrics metrics = ui->labelMacroName->fontMetrics();
    ui->labelMacroName->setText(metrics.elidedText(name, Qt::ElideRight, ui->labelMacroName->width()));
    ui->labelHint->setText(isOpen ? tr("点击“开始录制”后按下按键，或点击“插入”添加事件")
                                  : tr("请在左侧选择一个宏"));
    ui->labelHint->setVisible(isEmpty);
    ui->scrollAreaSquares->setVisible(!isEmpty);
    ui->labelSize->setVisible(isOpen);
}

void FrameMacro::showSize()
{
    constexpr qsizetype RepeatCountLength = 2;
    constexpr int KeyboardRoom = 256; // shown only: nothing stops a longer macro
    const qsizetype packed = PackMacro(currentMacro).size();
    const qsizetype size = packed < RepeatCountLength ? packed : packed + RepeatCountLength;
    ui->labelSize->setText(tr("占用") + QStringLiteral(": %1 / %2 ").arg(size).arg(KeyboardRoom) +
                           tr("字节"));
}

void FrameMacro::showEvent(QShowEvent *event)
{
    if (rows.isEmpty()) {
        const QList<Macro *> macros = store->macros();
        for (const Macro *macro : macros)
            addRow(*macro);
    }
    QFrame::showEvent(event);
    showState();
}

void FrameMacro::hideEvent(QHideEvent *event)
{
    setRecording(false);
    if (saveTimer.isActive())
        save();
    QFrame::hideEvent(event);
}

void FrameMacro::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    showState();
}

void FrameMacro::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        showTexts();
        showState();
    }
    QFrame::changeEvent(event);
}
