// The painting of keys, and the layers of the keyboard; see FrameLightWorks.cpp for the works.

#include "FrameLight.h"

#include "AccessibleControls.h"
#include "DialogColorPicker.h"
#include "DialogDeviceConnect.h"
#include "EffectBinding.h"
#include "FocusRing.h"
#include "KeyboardButton.h"
#include "KeyMatrix.h"
#include "LightingLog.h"
#include "LightPageStyle.h"
#include "LightWorksModel.h"
#include "Look.h"
#include "ui_FrameLight.h"

#include <algorithm>
#include <cstdlib>
#include <QDateTime>
#include <QKeyEvent>

namespace {

constexpr qsizetype BlankMapSize = 500; ///< bytes; only the first 392 go to the keyboard
constexpr int Channels = 3;
constexpr int ChannelValues = 256;
constexpr int LayerOfAutomaticId = 2; ///< automatic ids of a button group run downward from -2

quint8 layerOfId(int id)
{
    return quint8(std::abs(id) - LayerOfAutomaticId);
}

bool isPressOf(const QEvent *event, std::initializer_list<int> keys)
{
    return event->type() == QEvent::KeyPress &&
           std::ranges::find(keys, static_cast<const QKeyEvent *>(event)->key()) != keys.end();
}

bool isLeftButton(const QEvent *event, QEvent::Type type)
{
    return event->type() == type && static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
}

} // namespace

FrameLight::FrameLight(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameLight>())
    , works(new LightWorksModel(this))
    , worksFolder(platform::workFolder(QStringLiteral("work")))
    , worksFile(worksFolder)
    , connection(DialogDeviceConnect::instance())
    , random(quint32(QDateTime::currentMSecsSinceEpoch()))
{
    ui->setupUi(this);
    look::setStyleOnce(ui->page1, lightpagestyle::Page);
    buildBoard();
    buildTools();
    buildTable();
    connectLayers();
    connectWorks();
    new EffectBinding({ui->frameLEDMode, ui->frameLEDColor, ui->frameLEDBright, ui->frameLEDSpeed},
                      connection, this);
    clearPainting();
    setColour(currentColour);
    showTexts();
    loadWorks();
}

FrameLight::~FrameLight() = default;

void FrameLight::buildBoard()
{
    ModuleKeyboard *keyboard = ui->frameKeyboard;
    keyboard->enterSelectMode();
    keyboard->setLegendVisible(false);
    keyboard->installEventFilter(this);
    connect(keyboard, &ModuleKeyboard::onKeyClicked, this, [this](const QString &, uchar code) {
        paintKey(code);
        ui->frameKeyboard->keyButton(code)->setChecked(false); // painted keys have no other state
    });
    connect(keyboard, &ModuleKeyboard::onSelect, this, [this] {
        if (!bandRunning)
            paintSelection();
    });
}

void FrameLight::buildTools()
{
    ui->labelPickup->setPixmap(
        look::picture(QStringLiteral(":/images/pickup2.png"), this)
            .scaledToHeight(int(look::SmallestTarget * devicePixelRatioF()), Qt::SmoothTransformation));
    for (QLabel *label : {ui->labelColor, ui->labelPickup}) {
        accessible::setRole(label, QAccessible::Button);
        label->installEventFilter(this);
        FocusRing::follow(label, look::PillRadius);
    }
    for (QAbstractButton *button : {ui->pushButtonReset, ui->pushButtonUpdate, ui->pushButtonSave})
        FocusRing::follow(button, look::PillRadius);
    FocusRing::follow(ui->lineEditName, look::EditRadius);
    ui->pushButtonUpdate->hide();
    connect(ui->pushButtonReset, &QPushButton::clicked, this, &FrameLight::clearPainting);
}

void FrameLight::connectLayers()
{
    for (const QButtonGroup *group : {ui->buttonGroupWrite, ui->buttonGroupRead}) {
        const auto radios = group->buttons();
        for (QAbstractButton *radio : radios) {
            radio->installEventFilter(this);
            FocusRing::follow(radio, look::EditRadius);
        }
    }
    if (!connection)
        return;
    connect(ui->buttonGroupWrite, &QButtonGroup::idClicked, this, [this](int id) {
        const DialogDeviceConnect::WriteGroup group(*connection);
        connection->DoWriteUserPic(layerOfId(id), colourMap);
    });
    connect(ui->buttonGroupRead, &QButtonGroup::idClicked, this, [this](int id) {
        const DialogDeviceConnect::WriteGroup group(*connection);
        connection->DoReadUserPic(layerOfId(id));
    });
    connect(connection, &DialogDeviceConnect::onGetPictrue, this, &FrameLight::takePicture);
}

void FrameLight::paintKey(quint8 code)
{
    const quint8 position = keys::PositionOfCode(code);
    if (position == keys::NoPosition)
        return;
    QColor colour = currentColour;
    if (ui->checkBoxRam->isChecked()) {
        colour.setRgb(int(random.bounded(ChannelValues)), int(random.bounded(ChannelValues)),
                      int(random.bounded(ChannelValues)));
    }
    const qsizetype offset = qsizetype(position) * Channels;
    if (colourMap.size() < offset + Channels)
        colourMap.resize(BlankMapSize, '\0');
    const char bytes[Channels] = {char(colour.red()), char(colour.green()), char(colour.blue())};
    colourMap.replace(offset, Channels, bytes, Channels);
    ui->frameKeyboard->setKeyColor(code, colour);
}

void FrameLight::paintSelection()
{
    QByteArray codes;
    ui->frameKeyboard->selectedCodes(codes);
    for (const char code : std::as_const(codes)) {
        paintKey(quint8(code));
        ui->frameKeyboard->keyButton(quint8(code))->setChecked(false);
    }
}

void FrameLight::clearPainting()
{
    colourMap.fill('\0', BlankMapSize);
    ui->frameKeyboard->setKeyColor(ModuleKeyboard::AllKeys, Qt::black);
}

QColor FrameLight::colourAt(int position) const
{
    const auto channel = [this, first = qsizetype(position) * Channels](int number) {
        return first + number < colourMap.size() ? int(quint8(colourMap.at(first + number))) : 0;
    };
    return {channel(0), channel(1), channel(2)};
}

void FrameLight::showMap()
{
    for (int position = 0; position < keys::PositionCount; ++position) {
        const quint8 code = keys::CodeOfPosition(quint8(position));
        if (code != ModuleKeyboard::AllKeys)
            ui->frameKeyboard->setKeyColor(code, colourAt(position));
    }
}

void FrameLight::setColour(const QColor &colour)
{
    if (!colour.isValid())
        return;
    currentColour = colour;
    look::setStyleOnce(ui->labelColor, lightpagestyle::dot(colour.red(), colour.green(), colour.blue()));
    ui->labelColor->setAccessibleDescription(colour.name());
}

void FrameLight::openPicker()
{
    if (!picker) {
        picker = new DialogColorPicker(this);
        connect(picker, &DialogColorPicker::onPickupColor, this, &FrameLight::setColour);
    }
    picker->setColor(currentColour);
    picker->showAt(-1, -1);
}

void FrameLight::takePicture(const QByteArray &picture)
{
    // Pages that waited behind a lost answer would put the colours on other keys.
    if (connection->deviceCache().pictureLacksPages) {
        qCWarning(lcLighting) << "A picture that lacks pages is not shown";
        return;
    }
    colourMap = picture;
    showMap();
}

bool FrameLight::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->labelColor || watched == ui->labelPickup) {
        if (isLeftButton(event, QEvent::MouseButtonRelease) ||
            isPressOf(event, {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})) {
            openPicker();
            return true;
        }
    } else if (watched == ui->frameKeyboard) {
        if (isLeftButton(event, QEvent::MouseButtonPress)) {
            bandRunning = true;
        } else if (isLeftButton(event, QEvent::MouseButtonRelease)) {
            bandRunning = false;
            paintSelection();
        }
    } else if (isPressOf(event, {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down})) {
        return moveAmongLayers(watched, static_cast<QKeyEvent *>(event)->key());
    }
    return QFrame::eventFilter(watched, event);
}

// Left to itself, a group of radio buttons clicks the one that an arrow key leads to, and every layer on the
// way would be written over.
bool FrameLight::moveAmongLayers(QObject *radio, int key)
{
    auto *button = qobject_cast<QAbstractButton *>(radio);
    if (!button || !button->group())
        return false;
    const auto radios = button->group()->buttons();
    const int step = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
    if (QAbstractButton *next = radios.value(radios.indexOf(button) + step))
        next->setFocus(Qt::TabFocusReason);
    return true;
}

void FrameLight::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        works->retranslate();
        showTexts();
    }
    QFrame::changeEvent(event);
}

void FrameLight::showTexts()
{
    const QString newDefault = tr("我的作品");
    if (ui->lineEditName->text() == defaultName)
        ui->lineEditName->setText(newDefault);
    defaultName = newDefault;
    ui->tableView->setHint(tr("还没有作品，给按键上色后点击“保存”"));
    ui->labelColor->setAccessibleName(ui->labelTitle2->text());
    ui->labelPickup->setAccessibleName(ui->labelTitle3->text());
    ui->checkBoxRam->setAccessibleName(ui->labelTitle4->text());
    ui->lineEditName->setAccessibleName(ui->labelName->text());
    ui->tableView->setAccessibleName(ui->labelTitle1->text());
    for (QAbstractButton *radio : ui->buttonGroupWrite->buttons())
        radio->setAccessibleName(ui->labelTitle5->text() + QLatin1Char(' ') + radio->text());
    for (QAbstractButton *radio : ui->buttonGroupRead->buttons())
        radio->setAccessibleName(ui->labelTitle6->text() + QLatin1Char(' ') + radio->text());
}
