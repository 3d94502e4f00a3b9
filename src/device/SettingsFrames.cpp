#include "SettingsFrames.h"

#include "CommandCatalogue.h"
#include "Framing.h"

#include <QtEndian>

namespace settingsframes {

QByteArray setProfile(quint8 profile)
{
    constexpr int Length = 12;
    return framing::bareCommand(Length, {command::SetProfile, profile});
}

QByteArray setSleepTimes(const std::array<quint16, 4> &seconds)
{
    constexpr int Length = framing::PayloadOffset + int(sizeof seconds);
    QByteArray frame = framing::bareCommand(Length, {command::SetSleepTime});
    qToLittleEndian<quint16>(seconds.data(), qsizetype(seconds.size()),
                             frame.data() + framing::PayloadOffset);
    return frame;
}

QByteArray setSideLed(const QByteArray &block)
{
    QByteArray frame = block;
    frame[0] = char(command::SetSideLedParam);
    return frame;
}

} // namespace settingsframes
