#pragma once

#include <QtGlobal>

class QString;

/// Lengths of travel: a keyboard counts them in steps of 0.005 mm, pages show millimetres.
namespace travel {

/// The millimetres at the start of a typed text, at most what a 16-bit table holds; 0 if there are none. Of a
/// text, 100 bytes count, and only up to the first character that is neither a digit nor a point.
float fromText(const QString &text);

/// Thousandths of a millimetre, cut off toward zero and kept to the range.
int toThousandths(float millimetres, int lowest, int highest);

/// Steps of 0.005 mm, cut off toward zero and kept to what a 16-bit table holds.
quint32 toRaw(float millimetres);

inline float fromRaw(quint32 raw)
{
    return float(raw / 200.0);
}

/// Three decimals, whatever the locale.
QString toText(double millimetres, int decimals = 3);

} // namespace travel
