#include "DemoBoard.h"

#include "EffectCatalogue.h"
#include "Look.h"

#include <algorithm>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

using namespace std::chrono_literals;

namespace {

constexpr auto FramePeriod = 33ms; ///< of a light that moves
constexpr auto IdlePeriod = 80ms;  ///< of a light that stands still: looks for what was set or pressed
constexpr auto HubPeriod = 500ms;  ///< looks for the keyboard that the hub talks to
constexpr auto MouseTravel = 40ms; ///< of a key that the mouse presses
constexpr int MouseDepth = sim::FullTravel;
constexpr int StepPercent = 25; ///< of a brightness and a speed that have five steps
constexpr int FastestStep = 4;

QString effectName(quint8 id)
{
    const auto row = std::find_if(EffectCatalogue.begin(), EffectCatalogue.end(),
                                  [id](const Effect &effect) { return effect.id == id; });
    return row == EffectCatalogue.end() ? QString::number(id)
                                        : QCoreApplication::translate("ModuleEfMode", row->name);
}

int percent(int step)
{
    return qBound(0, step, FastestStep) * StepPercent;
}

QString nameOf(const virtualhid::DevicePtr &device)
{
    const sim::Model &model = device->model();
    return QString::fromUtf8(model.product.data(), qsizetype(model.product.size()));
}

} // namespace

DemoBoard::DemoBoard(QWidget *parent)
    : QWidget(parent, Qt::Window)
    , light(BoardPicture::spots())
    , picture(new BoardPicture(this))
    , chooser(new QComboBox(this))
    , captionLabel(new QLabel(this))
    , hintLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("DemoBoard"));
    auto *top = new QHBoxLayout;
    top->addWidget(chooser);
    top->addStretch();
    top->addWidget(captionLabel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(look::Space16, look::Space16, look::Space16, look::Space12);
    layout->setSpacing(look::Space8);
    layout->addLayout(top);
    layout->addWidget(picture, 1);
    layout->addWidget(hintLabel);
    chooser->setMinimumHeight(look::Space32);
    hintLabel->setForegroundRole(QPalette::PlaceholderText);
    connect(chooser, &QComboBox::activated, this, [this](int row) { choose(keyboards.value(row)); });
    connect(picture, &BoardPicture::keyPressed, this, [this](int key) { moveKey(key, MouseDepth); });
    connect(picture, &BoardPicture::keyReleased, this, [this](int key) { moveKey(key, 0); });
    frameTimer.setTimerType(Qt::PreciseTimer);
    connect(&frameTimer, &QTimer::timeout, this, &DemoBoard::refresh);
    hubTimer.setInterval(HubPeriod);
    connect(&hubTimer, &QTimer::timeout, this, &DemoBoard::followHub);
    retranslate();
}

void DemoBoard::setKeyboards(const QList<virtualhid::DevicePtr> &plugged)
{
    keyboards = plugged;
    chooser->clear();
    for (const virtualhid::DevicePtr &keyboard : keyboards)
        chooser->addItem(nameOf(keyboard));
    if (!keyboards.contains(shown))
        shown = nullptr;
    choose(shown ? shown : keyboards.value(0));
}

void DemoBoard::choose(const virtualhid::DevicePtr &keyboard)
{
    const qsizetype row = keyboards.indexOf(keyboard);
    chooser->setCurrentIndex(int(row));
    if (row < 0 || keyboard == shown)
        return;
    shown = keyboard;
    light.restart();
    if (isVisible())
        refresh();
}

void DemoBoard::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

void DemoBoard::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    hubTimer.start();
    followHub();
    refresh();
}

void DemoBoard::hideEvent(QHideEvent *event)
{
    hubTimer.stop();
    frameTimer.stop();
    QWidget::hideEvent(event);
}

void DemoBoard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void DemoBoard::refresh()
{
    sim::LightView view;
    sim::KeySet pressed;
    if (shown) {
        view = shown->light();
        pressed = shown->pressedKeys();
    }
    light.advance(view, pressed, sim::Clock::now());
    picture->setLight(light.keys(), light.strip(), pressed);
    const QString text = shown ? caption(view) : tr("没有插入键盘");
    if (text != captionLabel->text())
        captionLabel->setText(text);
    frameTimer.start(light.moves() && !isMinimized() ? FramePeriod : IdlePeriod);
}

/// The keyboard that came to be open since the last look is the one that the user turns to.
void DemoBoard::followHub()
{
    const auto open = std::find_if(keyboards.begin(), keyboards.end(),
                                   [](const virtualhid::DevicePtr &each) { return each->openHandles() > 0; });
    const virtualhid::DevicePtr now = open == keyboards.end() ? nullptr : *open;
    if (now && now != connected)
        choose(now);
    connected = now;
}

void DemoBoard::moveKey(int position, int depth)
{
    if (shown)
        shown->moveFinger(position, {{MouseTravel, depth}});
}

void DemoBoard::retranslate()
{
    setWindowTitle(tr("虚拟键盘的灯光"));
    chooser->setAccessibleName(tr("虚拟键盘"));
    hintLabel->setText(tr("单击按键即可按下它，部分灯效会作出反应。"));
}

QString DemoBoard::caption(const sim::LightView &view) const
{
    if (!view.on)
        return tr("灯光已关闭");
    return tr("%1 · 亮度 %2% · 速度 %3%")
        .arg(effectName(view.keys.effect))
        .arg(percent(view.keys.brightness))
        .arg(percent(FastestStep - view.keys.speed));
}
