#include "PictureFrames.h"

#include "CommandCatalogue.h"
#include "Framing.h"

namespace pictureframes {

namespace {

constexpr quint8 WholePicture = 0xFF; ///< the page counts through the slot
constexpr quint8 PageLength = WrittenBytes / WritePages;

} // namespace

QByteArray writePage(quint8 slot, quint8 page, const QByteArray &colourMap)
{
    const bool last = page == WritePages - 1;
    QByteArray frame = framing::bareCommand(
        framing::PayloadOffset, {command::SetUserPicture, slot, WholePicture, page, PageLength, last});
    frame += colourMap.mid(qsizetype(page) * PageLength, PageLength);
    frame.resize(framing::PayloadOffset + PageLength, '\0');
    return frame;
}

QByteArray readPage(quint8 slot, quint8 page)
{
    return framing::bareCommand(framing::PayloadOffset, {command::GetUserPicture, slot, WholePicture, page});
}

} // namespace pictureframes
