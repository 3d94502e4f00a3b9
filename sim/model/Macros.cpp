#include "Macros.h"

#include <algorithm>

namespace sim {

const Macro *Macros::find(Byte slot) const
{
    const auto macro = macros.find(slot);
    return macro == macros.end() ? nullptr : &macro->second;
}

Answer Macros::write(const Frame &frame)
{
    const Byte slot = frame[1];
    const std::size_t offset = frame[2] * Frame::PayloadSize;
    if (slot >= Slots || frame[3] != Frame::PayloadSize || frame[4] > 1)
        return {};
    Macro &macro = macros[slot];
    if (offset == 0)
        macro = {};
    if (offset > macro.blob.size()) // a page was missed
        return {};
    macro.blob.resize(offset);
    macro.blob.insert(macro.blob.end(), frame.payload().begin(), frame.payload().end());
    macro.complete = frame[4] != 0;
    return frame.acknowledgement();
}

Answer Macros::read(const Frame &frame) const
{
    if (frame[1] >= Slots)
        return {};
    Page page{};
    const std::size_t offset = frame[2] * PageSize;
    if (const Macro *macro = find(frame[1]); macro && offset < macro->blob.size()) {
        std::copy_n(macro->blob.begin() + static_cast<std::ptrdiff_t>(offset),
                    std::min(PageSize, macro->blob.size() - offset), page.begin());
    }
    return page;
}

} // namespace sim
