#include "DialogFNPicker.h"

#include "AccessibleControls.h"
#include "Look.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"
#include "PickerButton.h"
#include "ui_DialogFNPicker.h"

#include <QButtonGroup>

namespace {

constexpr int KeyWidth = 42;
constexpr int CombinationTab = 0;
constexpr int MacroColumns = 5;
constexpr int FunctionColumns = 7;
constexpr int MouseColumns = 4;
constexpr qsizetype FewestEvents = 2; ///< an action and its delay: less than that isn't a macro

/// Ids in the group of functions: the number of a macro's slot, or the row of a list above one of these.
constexpr int FirstFunctionId = 100;
constexpr int FirstMouseId = 200;

/// The first rows of the function list, as they are drawn. From the 14th on the pictures don't show what the
/// row does; the captions tell. The row is the place in this list, and stays.
constexpr std::array FunctionPictures{
    "fn",           "houtui",  "kuaijin",           "zanting",        "guanbiyinliang", "yinliangjia",
    "yinliangjian", "yinyue",  "jisuanqi",          "youjian",        "frame",          "sousuo",
    "shouye",       "shuaxin", "jianpanliangdujia", "jianpanliangdu", "fangda",         "suoxiao",
    "yuyin",
};

/// The rows after those, in words.
constexpr std::array FunctionWords{"IME On", "IME Off"};

/// The first rows of the mouse list.
struct MouseFunction
{
    const char *text;
    const char *picture;
};

constexpr std::array MouseFunctions{
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "左键"), "left"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "右键"), "right"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "中键"), "middle"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "前移"), "forward"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "后移"), "back"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "左滚"), "wheel-left"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "右滚"), "wheel-right"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "上滚"), "wheel-up"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "下滚"), "wheel-down"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "向上滚屏"), "page-up"},
    MouseFunction{QT_TRANSLATE_NOOP("DialogFNPicker", "向下滚屏"), "page-down"},
};

void setPictures(PickerButton *tile, const QString &name)
{
    const QString path = QStringLiteral(":/images/macro/fn%2/%1.png").arg(name);
    tile->setPictures(path.arg(0), path.arg(1));
}

QString numberedName(const char *stem, int number)
{
    return QStringLiteral("pushButton_%1%2").arg(QLatin1String(stem)).arg(number, 2, 10, QLatin1Char('0'));
}

/// The name of the macro recorded in a slot; empty if there is none.
QString recordedName(int slot)
{
    const ModuleMacroManager *store = ModuleMacroManager::instance();
    const Macro *macro = store ? store->FindMacro(quint8(slot)) : nullptr;
    return macro && macro->events.size() >= FewestEvents ? macro->name : QString();
}

} // namespace

DialogFNPicker::DialogFNPicker(QWidget *parent)
    : KeyPicker(parent)
    , ui(std::make_unique<Ui::DialogFNPicker>())
    , functionGroup(new QButtonGroup(this))
{
    ui->setupUi(this);
    setUp(partsOf(*ui), KeyWidth);
    functionGroup->setObjectName(QStringLiteral("buttonGroupFN"));
    addMacros();
    addFunctions();
    addMouseFunctions();
    leadTabBehind(functionGroup->buttons().constLast());
    connectControls();
    ui->spinBoxM->setAccessibleName(ui->radioButtonM1->text());
    accessible::setDefaultName(this, tr("自定义按键"));
}

DialogFNPicker::~DialogFNPicker() = default;

PickerButton *DialogFNPicker::addFunctionButton(PickerButton::Face face, const QString &name, int id,
                                                QWidget *frame)
{
    auto *button = new PickerButton(face, name, frame);
    button->setCheckable(true);
    functionGroup->addButton(button, id);
    return button;
}

void DialogFNPicker::addMacros()
{
    for (int slot = 0; slot < ModuleMacroManager::MostMacros; ++slot) {
        auto *button =
            addFunctionButton(PickerButton::Face::Words, numberedName("Micro", slot), slot, ui->frameMocro);
        const QString name = recordedName(slot);
        button->setText(name.isEmpty() ? tr("宏") + QString::number(slot + 1) : name);
        button->setToolTip(name);
        ui->gridMacros->addWidget(button, slot / MacroColumns, slot % MacroColumns);
    }
    QWidget *before = functionGroup->buttons().constLast();
    for (QWidget *mode : std::initializer_list<QWidget *>{ui->radioButtonM1, ui->spinBoxM, ui->radioButtonM2,
                                                          ui->radioButtonM3}) {
        setTabOrder(before, mode);
        before = mode;
    }
}

void DialogFNPicker::addFunctions()
{
    constexpr int Pictures = int(FunctionPictures.size());
    for (int row = 0; row < Pictures + int(FunctionWords.size()); ++row) {
        auto *button = addFunctionButton(PickerButton::Face::Tile, numberedName("F", row + 1),
                                         FirstFunctionId + row, ui->frameFnKey);
        if (row < Pictures) {
            setPictures(button, QLatin1String(FunctionPictures.at(size_t(row))));
        } else {
            button->setText(QLatin1String(FunctionWords.at(size_t(row - Pictures))));
        }
        const KeyFunction *function = ModuleGenKeymapping::FunctionEntryAt(quint8(row));
        button->setCaption(function->name());
        button->setToolTip(ModuleGenKeymapping::KeyEntryText(function->entry, true));
        ui->gridFunctions->addWidget(button, row / FunctionColumns, row % FunctionColumns);
    }
}

void DialogFNPicker::addMouseFunctions()
{
    for (int row = 0; row < int(MouseFunctions.size()); ++row) {
        const MouseFunction &function = MouseFunctions.at(size_t(row));
        auto *button = addFunctionButton(PickerButton::Face::Tile, numberedName("Mouse", row),
                                         FirstMouseId + row, ui->frameFnMouse);
        button->setText(tr(function.text));
        setPictures(button, QLatin1String("mouse-") + QLatin1String(function.picture));
        ui->gridMouse->addWidget(button, row / MouseColumns, row % MouseColumns);
    }
}

void DialogFNPicker::connectControls()
{
    connect(ui->tabWidgetKey, &QTabWidget::currentChanged, this, &DialogFNPicker::showTab);
    connect(functionGroup, &QButtonGroup::idClicked, this, &DialogFNPicker::pickFunction);
    connect(ui->spinBoxM, &QSpinBox::valueChanged, this, &DialogFNPicker::takePlayMode);
    for (const QRadioButton *mode : {ui->radioButtonM1, ui->radioButtonM2, ui->radioButtonM3})
        connect(mode, &QRadioButton::toggled, this, &DialogFNPicker::takePlayMode);
}

void DialogFNPicker::showTab(int tab)
{
    clearPicked();
    slotLabel(1)->setVisible(tab == CombinationTab);
    slotLabel(2)->setVisible(tab == CombinationTab);
}

void DialogFNPicker::clearPicked()
{
    macroPicked = false;
    if (QAbstractButton *checked = functionGroup->checkedButton()) {
        functionGroup->setExclusive(false);
        checked->setChecked(false);
        functionGroup->setExclusive(true);
    }
    KeyPicker::clearPicked();
}

void DialogFNPicker::pickKey(quint8 usage)
{
    macroPicked = false;
    KeyPicker::pickKey(usage);
}

void DialogFNPicker::clearSlot(size_t slot)
{
    // Away from the combinations one label stands for the entry as a whole.
    if (ui->tabWidgetKey->currentIndex() == CombinationTab) {
        KeyPicker::clearSlot(slot);
    } else {
        clearPicked();
    }
}

void DialogFNPicker::pickFunction(int id)
{
    macroPicked = id < FirstFunctionId;
    if (macroPicked) {
        picked.bytes = {0, 0, quint8(id), 0};
        takePlayMode();
        const QString name = recordedName(id);
        slotLabel(0)->fill(name.isEmpty() ? tr("未录制的宏") : name);
        return;
    }
    const KeyFunction *function = id < FirstMouseId
                                      ? ModuleGenKeymapping::FunctionEntryAt(quint8(id - FirstFunctionId))
                                      : ModuleGenKeymapping::MouseEntryAt(quint8(id - FirstMouseId));
    picked = function->entry;
    slotLabel(0)->fill(ModuleGenKeymapping::KeyEntryText(picked, true));
}

void DialogFNPicker::takePlayMode()
{
    ui->spinBoxM->setEnabled(ui->radioButtonM1->isChecked());
    if (!macroPicked)
        return;
    picked.bytes[0] = quint8(ui->spinBoxM->value());
    picked.bytes[1] = ui->radioButtonM2->isChecked() ? 1 : ui->radioButtonM3->isChecked() ? 2 : 0;
}
