#pragma once

#include <QByteArray>
#include <QString>

/// A painting that the user keeps: plain data, its texts as they stand in the file.
struct LightWork
{
    QByteArray image; ///< base64 of a PNG of the painted keyboard
    QString name;
    QByteArray data; ///< the colour map, hexadecimal

    bool operator==(const LightWork &) const = default;
};
