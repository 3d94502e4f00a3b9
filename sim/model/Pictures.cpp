#include "Pictures.h"

#include <algorithm>

namespace sim {
namespace {

constexpr Byte WholePicture = 0xFF; ///< the page counts through the slot

}

Colour Pictures::colour(int slot, int position) const
{
    Colour result;
    std::copy_n(slots[slot].begin() + std::ptrdiff_t{position} * 3, result.size(), result.begin());
    return result;
}

void Pictures::setColour(int slot, int position, Colour colour)
{
    std::copy(colour.begin(), colour.end(), slots[slot].begin() + std::ptrdiff_t{position} * 3);
}

Answer Pictures::write(const Frame &frame)
{
    const Byte slot = frame[1];
    const Byte page = frame[3];
    const bool lastPage = page == WritePages - 1;
    if (slot >= Slots || frame[2] != WholePicture || page >= WritePages || frame[4] != Frame::PayloadSize ||
        frame[5] != Byte{lastPage})
        return {};
    std::ranges::copy(frame.payload(), slots[slot].begin() + page * Frame::PayloadSize);
    complete += lastPage;
    return frame.acknowledgement();
}

Answer Pictures::read(const Frame &frame) const
{
    const Byte slot = frame[1];
    const Byte page = frame[3];
    if (slot >= Slots || frame[2] != WholePicture || page >= ReadPages)
        return {};
    Page data;
    std::copy_n(slots[slot].begin() + page * PageSize, PageSize, data.begin());
    return data;
}

} // namespace sim
