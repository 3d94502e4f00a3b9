#include "ModuleEfMode.h"

#include "EffectCatalogue.h"
#include "FocusRing.h"
#include "LightStyle.h"
#include "Look.h"
#include "ui_ModuleEfMode.h"

#include <algorithm>
#include <QButtonGroup>
#include <QEvent>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

constexpr QSize ButtonSize(250, 28);

} // namespace

ModuleEfMode::ModuleEfMode(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::ModuleEfMode>())
    , buttons(new QButtonGroup(this))
{
    look::setStyleOnce(this, lightstyle::Panel);
    ui->setupUi(this);
    ui->comboBoxPic->setFocusPolicy(Qt::StrongFocus);
    ui->comboBoxPic->installEventFilter(this);
    buildList();
    showTexts();
    connect(buttons, &QButtonGroup::idClicked, this, &ModuleEfMode::takeEffect);
    connect(ui->comboBoxPic, &QComboBox::currentIndexChanged, this,
            [this](int index) { Q_EMIT onModeChanged(effect, uchar(index)); });
    connect(ui->checkBoxEFMode, &QAbstractButton::clicked, this,
            [this](bool checked) { Q_EMIT onModeChanged(Darken, checked); });
    buttons->button(EffectCatalogue.front().id)->click();
}

ModuleEfMode::~ModuleEfMode() = default;

void ModuleEfMode::buildList()
{
    for (const Effect &row : EffectCatalogue) {
        auto *button = new QPushButton(ui->scrollAreaWidgetContents);
        button->setCheckable(true);
        button->setFixedSize(ButtonSize);
        button->setCursor(Qt::PointingHandCursor);
        FocusRing::follow(button, look::PillRadius);
        buttons->addButton(button, row.id);
        ui->layoutEffects->addWidget(button, 0, Qt::AlignHCenter);
    }
    setTabOrder(buttons->buttons().constLast(), ui->comboBoxPic);
}

void ModuleEfMode::takeEffect(int id)
{
    if (!fromKeyboard)
        Q_EMIT onModeChanged(id, 0);
    effect = quint8(id);
    fromKeyboard = false;
    showOptions();
}

void ModuleEfMode::showOptions()
{
    const QSignalBlocker quiet(ui->comboBoxPic);
    ui->comboBoxPic->clear();
    const auto *options = std::find_if(EffectOptionTable.begin(), EffectOptionTable.end(),
                                       [this](const EffectOptions &entry) { return entry.effect == effect; });
    const bool hasOptions = options != EffectOptionTable.end();
    ui->comboBoxPic->setEnabled(hasOptions);
    if (!hasOptions) {
        ui->comboBoxPic->addItem(tr("无"));
        return;
    }
    for (const char *text : options->texts) {
        if (text)
            ui->comboBoxPic->addItem(tr(text));
    }
}

void ModuleEfMode::setMode(int id)
{
    fromKeyboard = true;
    if (QAbstractButton *button = buttons->button(id)) {
        button->click();
        ui->scrollArea->ensureWidgetVisible(button, 0, look::Space32);
    }
}

void ModuleEfMode::showTexts()
{
    for (const Effect &row : EffectCatalogue) {
        const QString text = QStringLiteral("%1 (%2)").arg(tr(row.name), QString::asprintf("%02X", row.id));
        buttons->button(row.id)->setText(text);
    }
    ui->checkBoxEFMode->setAccessibleName(ui->labelDark->text());
    ui->comboBoxPic->setAccessibleName(ui->labelPicture->text());
}

// Who scrolls past the choice doesn't want to change it.
bool ModuleEfMode::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && !ui->comboBoxPic->hasFocus()) {
        event->ignore();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleEfMode::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showTexts();
        const int option = ui->comboBoxPic->currentIndex();
        showOptions();
        const QSignalBlocker quiet(ui->comboBoxPic);
        ui->comboBoxPic->setCurrentIndex(option);
    }
    QFrame::changeEvent(event);
}
