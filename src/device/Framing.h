#pragma once

#include <initializer_list>
#include <QByteArray>
#include <QtGlobal>
#include <span>

/// How a bare command becomes a report on the wire, and a report a reply. Pure functions on bytes.
namespace framing {

/// Lengths of the reports, in bytes, with their report id (wired) or report id and prefix (wireless).
constexpr int WiredReportLength = 65;
constexpr int WirelessReportLength = 66;
/// Zero bytes that closing appends, so that every byte which a frame can hold exists.
constexpr int ClosingPadding = 128;
/// Where the data of a long command begins, behind its arguments and the checksum.
constexpr int PayloadOffset = 8;

/// A bare command of \a length bytes that begins with \a head and is 0 behind it. A head longer than the
/// command is cut.
QByteArray bareCommand(int length, std::initializer_list<quint8> head);

/// Extends a bare command with zeros and writes its checksum: the one's complement of the sum of the bytes
/// before it, at offset 8 for the two lighting parameter commands and at offset 7 for all others. A byte of
/// the caller's that stands at that offset is lost.
QByteArray close(const QByteArray &command);

/// A closed frame as the feature report that goes to a keyboard on the cable: 65 bytes.
QByteArray wrapWired(const QByteArray &closed);

/// A closed frame as the output report that goes to a keyboard over the air: 66 bytes.
QByteArray wrapWireless(const QByteArray &closed);

/// The reply inside a feature report. \a result is what the read returned; below 1 there is no reply, and
/// the result is null. A result longer than the buffer is cut to it.
QByteArray unwrapWired(std::span<const quint8> buffer, int result);

/// The reply inside an input report that came over the air; null as above.
QByteArray unwrapWireless(std::span<const quint8> buffer, int result);

/// True for the notice that the air link puts ahead of a late reply, which is not the reply itself.
bool isWirelessNotice(std::span<const quint8> buffer);

} // namespace framing
