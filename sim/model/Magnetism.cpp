#include "Magnetism.h"

#include <algorithm>

namespace sim {
namespace {

std::size_t indexOf(const MagnetTable &table)
{
    return static_cast<std::size_t>(&table - MagnetTables.data());
}

} // namespace

Magnetism::Magnetism()
{
    for (const MagnetTable &table : MagnetTables) {
        for (int position = 0; position < KeyMatrices::Positions; ++position) {
            if (KeyMatrices::factoryKey(position) != KeyEntry{})
                values[indexOf(table)][position] = table.factory;
        }
    }
}

std::uint32_t Magnetism::value(Byte table, int position) const
{
    const MagnetTable *row = findMagnetTable(table);
    return row && position >= 0 && position < KeyMatrices::Positions ? values[indexOf(*row)][position] : 0;
}

void Magnetism::setValue(Byte table, int position, std::uint32_t value)
{
    const MagnetTable *row = findMagnetTable(table);
    if (!row)
        return;
    auto &keys = values[indexOf(*row)];
    if (position == AllKeys) {
        keys.fill(value);
    } else if (position >= 0 && position < KeyMatrices::Positions) {
        keys[position] = value;
    }
}

Answer Magnetism::write(const Frame &frame)
{
    const Byte table = frame[1];
    const Byte position = frame[3];
    const bool known = findMagnetTable(table) && table != SensorTable;
    if (!known || frame[2] != 0 || frame[4] > 1 ||
        (position >= KeyMatrices::Positions && position != AllKeys))
        return {};
    setValue(table, position, littleEndian(frame.payload(), 0, 4));
    group = frame[4] == 0;
    return frame.acknowledgement();
}

Answer Magnetism::read(const Frame &frame) const
{
    const MagnetTable *table = findMagnetTable(frame[1]);
    if (!table || frame[2] != 1 || frame[3] >= table->pages())
        return {};
    Page page{};
    const std::size_t keysPerPage = PageSize / table->width;
    for (std::size_t i = 0; i < keysPerPage; ++i) {
        putLittleEndian(page, i * table->width, table->width,
                        values[indexOf(*table)][frame[3] * keysPerPage + i]);
    }
    return page;
}

} // namespace sim
