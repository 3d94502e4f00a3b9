// What the connection does with the pictures that give every key a colour of its own.

#include "CommandCatalogue.h"
#include "DialogDeviceConnect.h"
#include "PictureFrames.h"

void DialogDeviceConnect::DoWriteUserPic(quint8 slot, const QByteArray &colourMap)
{
    if (readingAll)
        return;
    DoSetLedEffect(PictureEffect, slot);
    for (quint8 page = 0; page < pictureframes::WritePages; ++page)
        pump.enqueue(pictureframes::writePage(slot, page, colourMap), CommandPump::Kick::Deferred);
}

void DialogDeviceConnect::DoReadUserPic(quint8 slot)
{
    if (readingAll)
        return;
    cache.beginPicture();
    for (quint8 page = 0; page < pictureframes::ReadPages; ++page)
        pump.enqueue(pictureframes::readPage(slot, page), CommandPump::Kick::Deferred);
}
