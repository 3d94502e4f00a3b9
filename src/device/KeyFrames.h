#pragma once

#include "KeyEntry.h"

#include <QByteArray>

/// The commands that change what a key does. One command carries one entry; there is none for a whole matrix.
namespace keyframes {

/// One entry of a layer of a profile. \a last is 1 on the final frame of a group of writes, else 0.
QByteArray setKey(quint8 profile, quint8 position, const KeyEntry &entry, quint8 layer, quint8 last);

/// One entry of the Fn matrix, which all profiles share.
QByteArray setFn(quint8 position, const KeyEntry &entry);

} // namespace keyframes
