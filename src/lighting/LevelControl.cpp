#include "LevelControl.h"

#include <QLabel>
#include <QSlider>

namespace {

constexpr int PercentPerLevel = 25;

} // namespace

LevelControl::LevelControl(QSlider *movedSlider, QLabel *shownPercentage, QObject *parent)
    : QObject(parent)
    , slider(movedSlider)
    , percentage(shownPercentage)
{
    connect(slider, &QSlider::valueChanged, this, &LevelControl::takeValue);
    takeValue(slider->value());
}

void LevelControl::show(int level)
{
    fromKeyboard = true;
    slider->setValue(level);
    fromKeyboard = false; // also where the level is the one that stands there and the slider tells nothing
}

void LevelControl::takeValue(int value)
{
    percentage->setText(QString::asprintf("%d%%", value * PercentPerLevel));
    if (!fromKeyboard)
        Q_EMIT chosen(value);
}
