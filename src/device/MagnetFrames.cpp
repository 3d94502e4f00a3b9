#include "MagnetFrames.h"

#include "CommandCatalogue.h"
#include "Framing.h"

#include <QtEndian>

namespace magnetframes {

QByteArray readPage(quint8 table, quint8 page)
{
    return framing::bareCommand(4, {command::ReadMagnetTable, table, 1, page});
}

QByteArray setValue(quint8 table, quint8 position, quint32 value, quint8 commit)
{
    QByteArray frame = framing::bareCommand(framing::PayloadOffset + int(sizeof value),
                                            {command::SetMagnetValue, table, 0, position, commit});
    qToLittleEndian(value, frame.data() + framing::PayloadOffset);
    return frame;
}

QByteArray switchKeyTest(bool on)
{
    return framing::bareCommand(2, {command::KeyTest, on});
}

QByteArray switchCalibration(bool on)
{
    return framing::bareCommand(2, {command::Calibration, on});
}

} // namespace magnetframes
