#include "MacroFrames.h"

#include "CommandCatalogue.h"
#include "Framing.h"

namespace macroframes {

namespace {

constexpr qsizetype PageLength = 56;

} // namespace

QList<QByteArray> setMacro(quint8 slot, quint16 repeat, const QByteArray &stream)
{
    QByteArray blob;
    blob.append(char(repeat & 0xFF)).append(char(repeat >> 8)).append(stream);
    const auto count = quint8((blob.size() + PageLength - 1) / PageLength);
    blob.resize(qMax(blob.size(), count * PageLength), '\0');

    QList<QByteArray> pages;
    for (quint8 page = 0; page < count; ++page) {
        const quint8 isLast = page + 1 == count;
        pages.append(framing::bareCommand(framing::PayloadOffset,
                                          {command::SetMacro, slot, page, quint8(PageLength), isLast}) +
                     blob.mid(page * PageLength, PageLength));
    }
    return pages;
}

} // namespace macroframes
