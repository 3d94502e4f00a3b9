#include "Framing.h"

#include <algorithm>
#include <numeric>

namespace framing {

namespace {

constexpr quint8 SetLedParam = 0x07;
constexpr quint8 SetSideLedParam = 0x08;
constexpr quint8 WirelessReportId = 0x06;
constexpr quint8 WirelessPrefix = 0x55;
constexpr quint8 WirelessNotice = 0x77;
constexpr int WiredHeader = 1;
constexpr int WirelessHeader = 2;

QByteArray unwrap(std::span<const quint8> buffer, int result, int header)
{
    if (result < 1)
        return {};
    const auto length = std::min<qsizetype>(result, qsizetype(buffer.size())) - header;
    // A read that brought the header and nothing else is an empty reply, which is not the same as none.
    if (length <= 0)
        return QByteArray("");
    return QByteArray(reinterpret_cast<const char *>(buffer.data()) + header, length);
}

} // namespace

QByteArray bareCommand(int length, std::initializer_list<quint8> head)
{
    QByteArray bytes(length, '\0');
    std::copy_n(head.begin(), std::min(head.size(), size_t(length)), bytes.begin());
    return bytes;
}

QByteArray close(const QByteArray &command)
{
    QByteArray frame = command + QByteArray(ClosingPadding, '\0');
    const auto first = quint8(frame.at(0));
    const int checksumAt = first == SetLedParam || first == SetSideLedParam ? 8 : 7;
    const auto sum = std::accumulate(frame.cbegin(), frame.cbegin() + checksumAt, quint8(0),
                                     [](quint8 total, char byte) { return quint8(total + quint8(byte)); });
    frame[checksumAt] = char(~sum);
    return frame;
}

QByteArray wrapWired(const QByteArray &closed)
{
    QByteArray report(1, '\0');
    report += closed;
    report.resize(WiredReportLength, '\0');
    return report;
}

QByteArray wrapWireless(const QByteArray &closed)
{
    QByteArray report;
    report += char(WirelessReportId);
    report += char(WirelessPrefix);
    report += closed;
    report.resize(WirelessReportLength, '\0');
    return report;
}

QByteArray unwrapWired(std::span<const quint8> buffer, int result)
{
    return unwrap(buffer, result, WiredHeader);
}

QByteArray unwrapWireless(std::span<const quint8> buffer, int result)
{
    return unwrap(buffer, result, WirelessHeader);
}

bool isWirelessNotice(std::span<const quint8> buffer)
{
    return buffer.size() >= 2 && buffer[0] == WirelessReportId && buffer[1] == WirelessNotice;
}

} // namespace framing
