#include "KeyMatrices.h"

#include <algorithm>

namespace sim {
namespace {

constexpr Byte WholeLayer = 0xFF; ///< in a read: the page counts through the layer
constexpr std::size_t EntriesPerPage = PageSize / sizeof(KeyEntry);

KeyEntry entryIn(const Frame &frame)
{
    KeyEntry entry;
    std::copy_n(frame.payload().begin(), entry.size(), entry.begin());
    return entry;
}

Answer pageOf(std::span<const KeyEntry> entries, std::size_t page)
{
    if ((page + 1) * EntriesPerPage > entries.size())
        return {};
    Page data;
    auto out = data.begin();
    for (const KeyEntry &entry : entries.subspan(page * EntriesPerPage, EntriesPerPage))
        out = std::copy(entry.begin(), entry.end(), out);
    return data;
}

} // namespace

KeyMatrices::KeyMatrices()
{
    for (int position = 0; position < Positions; ++position) {
        for (auto &profile : keys)
            profile[0][position] = factoryKey(position);
        fnKeys[position] = factoryFn(position);
    }
}

Answer KeyMatrices::writeKey(const Frame &frame)
{
    const Byte profile = frame[1];
    const Byte position = frame[2];
    const Byte layer = frame[6];
    if (profile >= Profiles || position >= Positions || layer >= Layers || frame[5] > 1)
        return {};
    keys[profile][layer][position] = entryIn(frame);
    group = frame[5] == 0;
    return frame.acknowledgement();
}

Answer KeyMatrices::readKeys(const Frame &frame) const
{
    const Byte profile = frame[1];
    const Byte layer = frame[4];
    if (profile >= Profiles || frame[2] != WholeLayer || layer >= Layers)
        return {};
    return pageOf(keys[profile][layer], frame[3]);
}

Answer KeyMatrices::writeFn(const Frame &frame)
{
    const Byte position = frame[3];
    if (frame[1] != 0 || frame[2] != 0 || position >= Positions)
        return {};
    fnKeys[position] = entryIn(frame);
    return frame.acknowledgement();
}

Answer KeyMatrices::readFn(const Frame &frame) const
{
    if (frame[1] != 0 || frame[2] != 0 || frame[3] != WholeLayer)
        return {};
    return pageOf(fnKeys, frame[4]);
}

} // namespace sim
