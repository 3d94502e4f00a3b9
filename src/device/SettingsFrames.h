#pragma once

#include <array>
#include <QByteArray>

/// The commands of the settings that aren't written as a row of the catalogue.
namespace settingsframes {

/// Makes an onboard profile, 0 to 3, the active one.
QByteArray setProfile(quint8 profile);

/// The four sleep times, in seconds.
QByteArray setSleepTimes(const std::array<quint16, 4> &seconds);

/// A side-light block whose byte 0 is free for the command. The block must not be empty.
QByteArray setSideLed(const QByteArray &block);

} // namespace settingsframes
