#include "DemoDesk.h"

#include "HubWindow.h"
#include "KeyboardLayout.h"
#include "KeyMatrix.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

using namespace std::chrono_literals;
using virtualhid::VirtualBus;

namespace {

constexpr int Margin = 24;
constexpr int Spacing = 8;
constexpr int DigitKeys = 9;
constexpr auto FingerPeriod = 600ms; ///< from one key to the next
constexpr auto FingerTravel = 200ms; ///< of a key on its way down, and up
constexpr auto FingerHold = 100ms;
constexpr auto LongHold = 4s;
constexpr auto PlacingDelay = 200ms; ///< the hub and the window manager have settled by then
constexpr int WindowGap = 8;
constexpr int TitleRoom = 32; ///< of a window whose frame isn't known yet

QString nameOf(const sim::Model &model)
{
    return QString::fromLatin1(model.name.data(), qsizetype(model.name.size()));
}

QString productOf(const sim::Model &model)
{
    return QString::fromUtf8(model.product.data(), qsizetype(model.product.size()));
}

bool hasKeys(const sim::Model &model)
{
    return model.kind == sim::Kind::Keyboard || !model.paired.empty();
}

} // namespace

DemoDesk::DemoDesk(const QStringList &plugged, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , title(new QLabel(this))
    , fingersBox(new QCheckBox(this))
    , lightBox(new QCheckBox(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(title);
    int number = 0;
    for (const sim::Model &model : sim::Models)
        addSwitch(layout, model, ++number, plugged.contains(nameOf(model)));
    addFingers(layout);
    addBoard(layout);
    placing.setSingleShot(true);
    placing.setInterval(PlacingDelay);
    connect(&placing, &QTimer::timeout, this, &DemoDesk::standBesideHub);
    retranslate();
}

QStringList DemoDesk::modelNames()
{
    QStringList names;
    for (const sim::Model &model : sim::Models)
        names.append(nameOf(model));
    return names;
}

QStringList DemoDesk::modelsWithCard()
{
    QStringList names = modelNames();
    names.removeOne(QStringLiteral("receiver-unpaired"));
    return names;
}

void DemoDesk::addSwitch(QVBoxLayout *layout, const sim::Model &model, int number, bool plugged)
{
    auto *box = new QCheckBox(QStringLiteral("%1  (%2)").arg(productOf(model), nameOf(model)), this);
    box->setObjectName(nameOf(model));
    layout->addWidget(box);
    connect(box, &QCheckBox::toggled, this,
            [this, name = std::string(model.name)](bool on) { plug(name, on); });
    box->setChecked(plugged);
    if (number <= DigitKeys) {
        const QKeySequence keys(Qt::CTRL | Qt::Key(Qt::Key_0 + number));
        auto *shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::ApplicationShortcut);
        connect(shortcut, &QShortcut::activated, box, &QCheckBox::toggle);
    }
}

void DemoDesk::setPlugged(const QString &model, bool plugged)
{
    if (auto *box = findChild<QCheckBox *>(model))
        box->setChecked(plugged);
}

void DemoDesk::plugOnly(const QStringList &models)
{
    for (const QString &model : modelNames())
        setPlugged(model, models.contains(model));
}

void DemoDesk::setDenied(const QString &model, bool denied)
{
    const auto device = devices.find(model.toStdString());
    if (device != devices.end() && device->second)
        device->second->denyOpens(denied);
}

void DemoDesk::plug(const std::string &model, bool plugged)
{
    virtualhid::DevicePtr &device = devices[model];
    if (!plugged)
        VirtualBus::instance().unplug(device);
    else if (device)
        VirtualBus::instance().replug(device);
    else
        device = VirtualBus::instance().plug(model);
    offerKeyboards();
}

void DemoDesk::offerKeyboards()
{
    QList<virtualhid::DevicePtr> keyboards;
    for (const sim::Model &model : sim::Models) {
        const auto device = devices.find(std::string(model.name));
        if (hasKeys(model) && device != devices.end() && device->second && device->second->isPlugged())
            keyboards.append(device->second);
    }
    lightBoard.setKeyboards(keyboards);
}

void DemoDesk::addFingers(QVBoxLayout *layout)
{
    fingersBox->setObjectName(QStringLiteral("fingers"));
    layout->addSpacing(Spacing);
    layout->addWidget(fingersBox);
    fingerTimer.setInterval(FingerPeriod);
    connect(&fingerTimer, &QTimer::timeout, this, &DemoDesk::pressNextKey);
    connect(fingersBox, &QCheckBox::toggled, this, [this](bool on) {
        nextKey = 0;
        on ? fingerTimer.start() : fingerTimer.stop();
    });
}

void DemoDesk::pressNextKey()
{
    const keys::KeyPlace &key = keys::KeyboardLayout.at(nextKey);
    nextKey = (nextKey + 1) % keys::KeyboardLayout.size();
    pressEverywhere(keys::PositionOfCode(key.code), FingerTravel, FingerHold);
}

bool DemoDesk::holdKey(int code)
{
    const quint8 position = keys::PositionOfCode(quint8(code));
    if (position != keys::NoPosition)
        pressEverywhere(position, FingerTravel, LongHold);
    return position != keys::NoPosition;
}

void DemoDesk::pressEverywhere(int position, std::chrono::milliseconds travel, std::chrono::milliseconds hold)
{
    for (const auto &[name, device] : devices) {
        if (device && device->isPlugged() && hasKeys(device->model()))
            device->press(position, sim::FullTravel, travel, hold);
    }
}

void DemoDesk::addBoard(QVBoxLayout *layout)
{
    lightBox->setObjectName(QStringLiteral("light"));
    lightBox->setChecked(true);
    layout->addWidget(lightBox);
    connect(lightBox, &QCheckBox::toggled, &lightBoard, &QWidget::setVisible);
    connect(&lightBoard, &DemoBoard::closed, lightBox, [this] { lightBox->setChecked(false); });
}

void DemoDesk::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    lightBoard.setVisible(lightBox->isChecked());
    placing.start();
}

void DemoDesk::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void DemoDesk::retranslate()
{
    setWindowTitle(tr("虚拟设备"));
    title->setText(tr("插入或拔出虚拟设备："));
    fingersBox->setText(tr("依次按下所有按键"));
    lightBox->setText(tr("显示键盘的灯光"));
}

bool DemoDesk::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        placing.start();
    return QWidget::eventFilter(watched, event);
}

/// Puts the board and below it the desk at the right of the screen. The hub moves to the left as far as it is
/// in their way.
void DemoDesk::standBesideHub()
{
    QWidget *hub = hubWindow();
    if (!hub || !isVisible())
        return;
    hub->installEventFilter(this);
    const QRect free = hub->screen()->availableGeometry();
    const int column = std::max(lightBoard.frameGeometry().width(), frameGeometry().width());
    const int left = free.right() + 1 - column;
    const int overlap = hub->frameGeometry().right() + WindowGap - left;
    if (overlap > 0)
        hub->move(std::max(free.left(), hub->x() - overlap), hub->y());
    const int top = std::max(free.top(), hub->frameGeometry().top());
    lightBoard.move(left, top);
    const int frame = std::max(TitleRoom, lightBoard.frameGeometry().height() - lightBoard.height());
    move(left, top + frame + lightBoard.height() + WindowGap);
}
