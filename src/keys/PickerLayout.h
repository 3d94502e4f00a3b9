#pragma once

#include <array>
#include <QList>
#include <QRect>

/// The two blocks of keys that the pickers show, together every usage from 4 to 101 and 224 to 231.
namespace keys {

/// A key of a block, placed in pixels from the block's upper left corner.
struct PickerKey
{
    quint8 usage;
    QRect place;
};

enum class PickerBlock : quint8 {
    Basic,    ///< letters, digits and signs
    Extended, ///< F keys, modifiers, navigation and number block; as wide as the basic block
};

/// The keys of a block row by row, each \a width pixels wide.
QList<PickerKey> pickerKeys(PickerBlock block, int width);

} // namespace keys
