#include "Travel.h"

#include <limits>
#include <QString>

namespace travel {

namespace {

constexpr int LongestNumber = 100; ///< bytes of a typed text
constexpr float StepsPerMillimetre = 200;
constexpr float ThousandthsPerMillimetre = 1000;
constexpr auto MostSteps = float(std::numeric_limits<quint16>::max());

} // namespace

float fromText(const QString &text)
{
    const QByteArray typed = text.trimmed().toUtf8().left(LongestNumber);
    qsizetype end = 0;
    bool point = false;
    for (; end < typed.size(); ++end) {
        const char sign = typed.at(end);
        const bool firstPoint = sign == '.' && !point;
        if (!firstPoint && (sign < '0' || sign > '9'))
            break;
        point = point || firstPoint;
    }
    return qMin(typed.left(end).toFloat(), MostSteps / StepsPerMillimetre); // a lone point is 0
}

// Both multiply in single precision, in which the decimals that pages show come out as they were meant.
int toThousandths(float millimetres, int lowest, int highest)
{
    return int(qBound(float(lowest), millimetres * ThousandthsPerMillimetre, float(highest)));
}

quint32 toRaw(float millimetres)
{
    return quint32(qBound(0.0F, millimetres * StepsPerMillimetre, MostSteps));
}

QString toText(double millimetres, int decimals)
{
    return QString::number(millimetres, 'f', decimals);
}

} // namespace travel
