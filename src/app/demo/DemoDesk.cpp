#include "DemoDesk.h"

#include "KeyboardLayout.h"
#include "KeyMatrix.h"

#include <QCheckBox>
#include <QLabel>
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
{
    setWindowTitle(tr("虚拟设备"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(new QLabel(tr("插入或拔出虚拟设备："), this));
    int number = 0;
    for (const sim::Model &model : sim::Models)
        addSwitch(layout, model, ++number, plugged.contains(nameOf(model)));
    addFingers(layout);
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

void DemoDesk::plug(const std::string &model, bool plugged)
{
    virtualhid::DevicePtr &device = devices[model];
    if (!plugged)
        VirtualBus::instance().unplug(device);
    else if (device)
        VirtualBus::instance().replug(device);
    else
        device = VirtualBus::instance().plug(model);
}

void DemoDesk::addFingers(QVBoxLayout *layout)
{
    auto *box = new QCheckBox(tr("依次按下所有按键"), this);
    box->setObjectName(QStringLiteral("fingers"));
    layout->addSpacing(Spacing);
    layout->addWidget(box);
    fingerTimer.setInterval(FingerPeriod);
    connect(&fingerTimer, &QTimer::timeout, this, &DemoDesk::pressNextKey);
    connect(box, &QCheckBox::toggled, this, [this](bool on) {
        nextKey = 0;
        on ? fingerTimer.start() : fingerTimer.stop();
    });
}

void DemoDesk::pressNextKey()
{
    const keys::KeyPlace &key = keys::KeyboardLayout.at(nextKey);
    nextKey = (nextKey + 1) % keys::KeyboardLayout.size();
    const int position = keys::PositionOfCode(key.code);
    for (const auto &[name, device] : devices) {
        if (device && device->isPlugged() && hasKeys(device->model()))
            device->press(position, sim::FullTravel, FingerTravel, FingerHold);
    }
}
