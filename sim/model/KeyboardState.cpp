#include "KeyboardState.h"

namespace sim {

LightView lightOf(const KeyboardState &state)
{
    const Lighting &lighting = state.active().lighting;
    LightView view{.on = lighting.on, .keys = lighting.keys.current(), .side = lighting.side.current()};
    const int slot = view.keys.option >> 4;
    if (view.keys.effect == PictureEffect && slot < Pictures::Slots) {
        for (int position = 0; position < KeyMatrices::Positions; ++position)
            view.picture[position] = state.pictures.colour(slot, position);
    }
    if (view.keys.effect == MusicEffect)
        view.music = state.music.levels;
    return view;
}

} // namespace sim
