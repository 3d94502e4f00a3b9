#pragma once

#include <QByteArray>
#include <QList>

/// The writes of a macro's steps as bare commands. Pure functions on bytes.
namespace macroframes {

/// Pages that carry the repeat count and the packed steps to a slot, the last one marked as such. Their
/// number is kept in a byte: 256 pages or more wrap, and only the first ones of them are made.
QList<QByteArray> setMacro(quint8 slot, quint16 repeat, const QByteArray &stream);

} // namespace macroframes
