#include "PickerLayout.h"

#include <algorithm>

namespace keys {

namespace {

constexpr int Spacing = 6; ///< pixels between two keys

/// Usages by row; 0 for a place without a key. The main part of a keyboard, its columns upright.
constexpr std::array<std::array<quint8, 14>, 4> Basic{{
    {0x35, 0x1E, 0x1F, 0x20, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x27, 0x2D, 0x2E, 0x2A},
    {0x2B, 0x14, 0x1A, 0x08, 0x15, 0x17, 0x1C, 0x18, 0x0C, 0x12, 0x13, 0x2F, 0x30, 0x31},
    {0x39, 0x04, 0x16, 0x07, 0x09, 0x0A, 0x0B, 0x0D, 0x0E, 0x0F, 0x33, 0x34, 0x32, 0x28},
    {0x00, 0x64, 0x1D, 0x1B, 0x06, 0x19, 0x05, 0x11, 0x10, 0x36, 0x37, 0x38, 0x2C, 0x00},
}};

/// Esc and the menu key, F keys above modifiers, navigation above arrows, number block.
constexpr std::array<std::array<quint8, 12>, 5> Extended{{
    {0x29, 0x3A, 0x3B, 0x3C, 0x3D, 0x46, 0x47, 0x48, 0x53, 0x54, 0x55, 0x56},
    {0x00, 0x3E, 0x3F, 0x40, 0x41, 0x49, 0x4A, 0x4B, 0x5F, 0x60, 0x61, 0x57},
    {0x00, 0x42, 0x43, 0x44, 0x45, 0x4C, 0x4D, 0x4E, 0x5C, 0x5D, 0x5E, 0x00},
    {0x00, 0xE1, 0xE0, 0xE3, 0xE2, 0x00, 0x52, 0x00, 0x59, 0x5A, 0x5B, 0x58},
    {0x65, 0xE5, 0xE4, 0xE7, 0xE6, 0x50, 0x51, 0x4F, 0x62, 0x00, 0x63, 0x00},
}};

/// Columns of the extended block before which a gap stands.
constexpr std::array<size_t, 3> Gaps{1, 5, 8};
constexpr std::array<size_t, 0> NoGaps{};

/// Keys two rows high.
constexpr std::array<quint8, 2> TallKeys{0x57, 0x58};

template <size_t Columns, size_t Rows, size_t GapCount>
QList<PickerKey> placed(const std::array<std::array<quint8, Columns>, Rows> &block,
                        const std::array<size_t, GapCount> &gaps, int width)
{
    const int pitch = width + Spacing;
    const int missing = int(Basic.front().size() - Columns) * pitch; // spread over the gaps
    QList<PickerKey> result;
    for (size_t row = 0; row < Rows; ++row) {
        for (size_t column = 0; column < Columns; ++column) {
            const quint8 usage = block[row][column];
            if (usage == 0)
                continue;
            int left = int(column) * pitch;
            if constexpr (GapCount > 0) {
                const auto passed =
                    std::ranges::count_if(gaps, [column](size_t gap) { return gap <= column; });
                left += missing * int(passed) / int(GapCount);
            }
            const bool tall = std::ranges::find(TallKeys, usage) != TallKeys.end();
            result.append({usage, QRect(left, int(row) * pitch, width, tall ? width + pitch : width)});
        }
    }
    return result;
}

} // namespace

QList<PickerKey> pickerKeys(PickerBlock block, int width)
{
    return block == PickerBlock::Basic ? placed(Basic, NoGaps, width) : placed(Extended, Gaps, width);
}

} // namespace keys
