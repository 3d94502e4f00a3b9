#include "Lighting.h"

#include <algorithm>

namespace sim {

LightZone::LightZone(const LedParams &factory)
    : effect(factory.effect)
{
    params.fill(factory);
}

LedParams LightZone::of(Byte number) const
{
    LedParams result = params[number];
    result.effect = number;
    return result;
}

void LightZone::show(const LedParams &shown)
{
    effect = shown.effect;
    params[effect] = shown;
}

Answer LightZone::write(const Frame &frame)
{
    show({frame[1], frame[2], frame[3], frame[4], frame[5], frame[6], frame[7]});
    return frame.acknowledgement();
}

Answer LightZone::read(const Frame &frame) const
{
    const LedParams shown = current();
    return Page{frame.command(), shown.effect, shown.speed, shown.brightness,
                shown.option,    shown.red,    shown.green, shown.blue};
}

Answer Lighting::writeOnOff(const Frame &frame)
{
    if (frame[1] > 1 || frame[2] > 1)
        return {};
    on = frame[1] != 0;
    onSecond = frame[2];
    return frame.acknowledgement();
}

Answer Lighting::readOnOff(const Frame &frame) const
{
    return Page{frame.command(), Byte{on}, onSecond};
}

Answer Music::write(const Frame &frame, TimePoint now)
{
    std::copy_n(frame.payload().begin(), levels.size(), levels.begin());
    ++reports;
    last = now;
    return frame.acknowledgement();
}

} // namespace sim
