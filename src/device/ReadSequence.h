#pragma once

#include <QByteArray>
#include <QList>

/// The commands that pull the whole state of a keyboard, in the order that the firmware expects: 47 of them,
/// and 52 more if the firmware has magnetism tables.
QList<QByteArray> readSequence(quint8 profile, bool withMagnetism);
