#include "ReadSequence.h"

#include "CommandCatalogue.h"
#include "Framing.h"
#include "MagnetFrames.h"
#include "MagnetTables.h"

#include <array>

namespace {

constexpr std::array Settings{command::GetReport, command::GetLedParam, command::GetSideLedParam,
                              command::GetDebounce, command::GetSleepTime};
constexpr quint8 Layers = 4;
constexpr quint8 KeyPagesPerLayer = 8;
constexpr quint8 FnPages = 10;

QByteArray eightBytes(std::initializer_list<quint8> head)
{
    return framing::bareCommand(8, head);
}

} // namespace

QList<QByteArray> readSequence(quint8 profile, bool withMagnetism)
{
    QList<QByteArray> frames;
    for (const quint8 setting : Settings)
        frames.append(eightBytes({setting}));
    for (quint8 layer = 0; layer < Layers; ++layer) {
        for (quint8 page = 0; page < KeyPagesPerLayer; ++page)
            frames.append(eightBytes({command::GetKeyMatrix, profile, 0xFF, page, layer}));
    }
    for (quint8 page = 0; page < FnPages; ++page)
        frames.append(eightBytes({command::GetFn, 0, 0, 0xFF, page}));
    if (withMagnetism) {
        for (const MagnetTable &table : MagnetTables) {
            for (quint8 page = 0; page < table.pages; ++page)
                frames.append(magnetframes::readPage(table.number, page));
        }
    }
    return frames;
}
