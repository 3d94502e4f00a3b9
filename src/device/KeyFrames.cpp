#include "KeyFrames.h"

#include "CommandCatalogue.h"
#include "Framing.h"

#include <algorithm>

namespace keyframes {

namespace {

QByteArray withEntry(const KeyEntry &entry, std::initializer_list<quint8> head)
{
    QByteArray frame = framing::bareCommand(framing::PayloadOffset + int(KeyEntry::Size), head);
    std::ranges::copy(entry.bytes, frame.begin() + framing::PayloadOffset);
    return frame;
}

} // namespace

QByteArray setKey(quint8 profile, quint8 position, const KeyEntry &entry, quint8 layer, quint8 last)
{
    return withEntry(entry, {command::SetKeyMatrix, profile, position, 0, 0, last, layer});
}

QByteArray setFn(quint8 position, const KeyEntry &entry)
{
    return withEntry(entry, {command::SetFn, 0, 0, position});
}

} // namespace keyframes
