#include "FrameKeySetting.h"

#include "DialogDeviceConnect.h"
#include "DialogFNPicker.h"
#include "FittingButton.h"
#include "KeyBubble.h"
#include "KeyLog.h"
#include "KeyMatrix.h"
#include "KeyNameTable.h"
#include "KeySettingStyle.h"
#include "Look.h"
#include "ModuleMacroManager.h"
#include "ui_FrameKeySetting.h"

#include <QButtonGroup>
#include <QPointer>
#include <QShortcut>

using namespace std::chrono_literals;

namespace {

constexpr QSize ModeButtonSize(120, 32);
constexpr auto CustomHold = 500ms;
constexpr auto FnHold = 800ms;

/// The connection while keys can be shown and written, else null.
DialogDeviceConnect *readyConnection()
{
    DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    return connection && !connection->isReadingAll() ? connection : nullptr;
}

} // namespace

FrameKeySetting::FrameKeySetting(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameKeySetting>())
    , modeButtons(new QButtonGroup(this))
{
    ui->setupUi(this);
    refreshing.setSingleShot(true);
    connect(&refreshing, &QTimer::timeout, this, [this] { ui->frameOptions->setRefreshing(false); });
    buildAdvancedTabs();
    buildModes();
    connect(ui->frameKeyboard, &ModuleKeyboard::onKeyClicked, this, &FrameKeySetting::onPickKey);
    connect(ui->frameKeyboard, &ModuleKeyboard::onKeyChanged, this, [this](uchar code, uchar, bool enable) {
        DialogDeviceConnect *connection = DialogDeviceConnect::instance();
        if (mode == FnLayer && connection && keys::PositionOfCode(code) != keys::NoPosition)
            connection->DoSetFnCode(code, enable);
    });
    ui->frameKeyboard->setSelectionLimit(1);
}

FrameKeySetting::~FrameKeySetting() = default;

void FrameKeySetting::buildModes()
{
    const std::array<FittingButton *, ModeCount> buttons{ui->pushButtonSet1, ui->pushButtonSet2,
                                                         ui->pushButtonSet3, ui->pushButtonSet4};
    for (int id = 0; id < ModeCount; ++id) {
        FittingButton *button = buttons[size_t(id)];
        button->setFixedSize(ModeButtonSize);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        modeButtons->addButton(button, id);
        // The buttons take no focus, so hands on the keyboard get a key for each.
        auto *shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + id)), this);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
        button->setToolTip(shortcut->key().toString(QKeySequence::NativeText));
    }
    connect(modeButtons, &QButtonGroup::idClicked, this, &FrameKeySetting::changeMode);
    ui->pushButtonSet1->click();
}

void FrameKeySetting::buildAdvancedTabs()
{
    tabs = {ui->tab21, ui->tab22, ui->tab23, ui->tab24};
    for (ModuleAdvancedTab *tab : std::as_const(tabs)) {
        tab->setPickerArea(this);
        connect(tab, &ModuleAdvancedTab::onSaved, this, &FrameKeySetting::RefreshCustomLayer);
    }
    ui->tab21->setAdjustArea(ui->frameT);
    ui->tabWidgetAdv->setCurrentIndex(0);
}

void FrameKeySetting::changeMode(int id)
{
    mode = id;
    if (isVisible())
        showLayer();
    const std::array<QWidget *, ModeCount> pages{ui->page1, ui->page2, ui->page3, ui->page1};
    ui->stackedWidget->setCurrentWidget(pages.at(size_t(id)));
    ui->frameKeyboard->setEnabled(mode != Options);
}

void FrameKeySetting::showLayer()
{
    ui->labelFunc->setText(mode == FnLayer ? tr("Fn层按键设置") : tr("自定义按键"));
    if (mode == FnLayer)
        RefreshFnLayer();
    else
        RefreshCustomLayer();
}

void FrameKeySetting::RefreshPage()
{
    if (mode == Custom)
        RefreshCustomLayer();
    else if (mode == FnLayer)
        RefreshFnLayer();
}

void FrameKeySetting::RefreshCustomLayer()
{
    const DialogDeviceConnect *connection = readyConnection();
    if (!connection)
        return;
    beginRefresh(CustomHold);
    for (int position = 0; position < keys::PositionCount; ++position) {
        const KeyBubble bubble = KeyBubble::ofCustomLayer(*connection, quint8(position));
        ui->frameKeyboard->setKeyTooltip(keys::CodeOfPosition(quint8(position)), bubble.title, bubble.body,
                                         true);
    }
    ui->frameOptions->refresh();
}

void FrameKeySetting::RefreshFnLayer()
{
    const DialogDeviceConnect *connection = readyConnection();
    if (!connection)
        return;
    beginRefresh(FnHold);
    for (int position = 0; position < keys::PositionCount; ++position) {
        const auto bubble = KeyBubble::ofFnLayer(*connection, quint8(position));
        if (bubble)
            ui->frameKeyboard->setKeyTooltip(keys::CodeOfPosition(quint8(position)), bubble->title,
                                             bubble->body, true);
    }
    ui->frameOptions->refresh();
}

/// Keeps the options from writing back what the refresh shows in them, for some time after it too.
void FrameKeySetting::beginRefresh(std::chrono::milliseconds hold)
{
    ui->frameOptions->setRefreshing(true);
    refreshing.start(hold);
}

void FrameKeySetting::onPickKey(const QString &text, quint8 code)
{
    if (keys::PositionOfCode(code) == keys::NoPosition) {
        qCWarning(lcKeys) << "nothing can be set: no key has code" << code;
        return;
    }
    if (mode == Advanced)
        clickAdvanced(text, code);
    else if (mode != Options)
        pickFunction(code);
}

void FrameKeySetting::pickFunction(quint8 code)
{
    const QPointer<FrameKeySetting> self(this);
    DialogFNPicker picker(this);
    if (picker.exec() != QDialog::Accepted || !self)
        return;
    DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    if (!connection)
        return;
    if (mode == FnLayer) {
        connection->DoSetFn(code, picker.entry());
        RefreshFnLayer();
        return;
    }
    if (picker.isMacro())
        giveMacro(code, picker.entry());
    else
        connection->DoSetKey(code, picker.entry(), 0, 1);
    RefreshCustomLayer();
}

/// \a picked tells how the macro runs, as DialogFNPicker gives it.
void FrameKeySetting::giveMacro(quint8 code, const KeyEntry &picked)
{
    const auto [repeat, playMode, slot, unused] = picked.bytes;
    const ModuleMacroManager *store = ModuleMacroManager::instance();
    const QByteArray stream = PackMacro(store ? store->FindMacro(slot) : nullptr);
    DialogDeviceConnect::instance()->DoSetMacro(code, repeat, playMode, slot, stream);
}

void FrameKeySetting::clickAdvanced(const QString &text, quint8 code)
{
    const DialogDeviceConnect *connection = DialogDeviceConnect::instance();
    const quint8 keyMode = connection ? connection->GetKeyMode(code) & KeyMode::Bits : KeyMode::Plain;
    // The halves of the knob have no legend.
    const QString name = text.isEmpty() ? keys::KeyNameByCode(code) : text;
    const ModuleAdvancedTab::ClickedKey key{code, keys::PositionOfCode(code), keyMode, name};
    for (ModuleAdvancedTab *tab : std::as_const(tabs))
        tab->loadKey(key);
    if (ModuleAdvancedTab *current = tabs.value(ui->tabWidgetAdv->currentIndex()))
        current->takeKey(key);
}

bool FrameKeySetting::event(QEvent *event)
{
    // Styled when it first shows: most starts of the program go by without this page.
    if (event->type() == QEvent::Polish)
        look::setStyleOnce(ui->frameB, keysettingstyle::LowerHalf);
    return QFrame::event(event);
}

void FrameKeySetting::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    showLayer();
}

void FrameKeySetting::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        RefreshCustomLayer();
        if (isVisible())
            showLayer();
    }
    QFrame::changeEvent(event);
}
