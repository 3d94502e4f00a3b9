#include "PreviewPng.h"

#include <algorithm>
#include <QBuffer>
#include <QHash>

namespace {

constexpr qsizetype PaletteSize = 256;
constexpr int PngQuality = 70; ///< as Qt counts: the higher, the faster and the larger

/// Calls a function with each run of pixels of one colour: line, first pixel, length, colour.
template <typename Function>
void forEachRun(const QImage &image, Function function)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0, end = 0; x < image.width(); x = end) {
            while (end < image.width() && line[end] == line[x])
                ++end;
            function(y, x, end - x, line[x]);
        }
    }
}

struct Colour
{
    QRgb rgb;
    int pixels;
};

/// All colours of an image; those with the most pixels come first, as many as a palette takes.
QList<Colour> coloursOf(const QImage &image)
{
    QHash<QRgb, int> pixels;
    forEachRun(image, [&pixels](int, int, int length, QRgb colour) { pixels[colour] += length; });
    QList<Colour> colours;
    colours.reserve(pixels.size());
    for (auto it = pixels.cbegin(); it != pixels.cend(); ++it)
        colours.append({it.key(), it.value()});
    const auto frequent = colours.begin() + std::min(PaletteSize, colours.size());
    std::ranges::partial_sort(colours, frequent, [](const Colour &a, const Colour &b) {
        return a.pixels != b.pixels ? a.pixels > b.pixels : a.rgb < b.rgb;
    });
    return colours;
}

int distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

} // namespace

QByteArray previewPng(const QImage &image)
{
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    const QList<Colour> colours = coloursOf(source);
    QList<QRgb> palette;
    for (const Colour &colour : colours.first(std::min(PaletteSize, colours.size())))
        palette.append(colour.rgb);
    QHash<QRgb, uchar> places;
    places.reserve(colours.size());
    for (const Colour &colour : colours) {
        const auto nearest = std::ranges::min_element(
            palette, {}, [&colour](QRgb entry) { return distance(colour.rgb, entry); });
        places.insert(colour.rgb, uchar(nearest - palette.begin()));
    }
    QImage indexed(source.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette);
    forEachRun(source, [&indexed, &places](int y, int x, int length, QRgb colour) {
        std::fill_n(indexed.scanLine(y) + x, length, places.value(colour));
    });
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    indexed.save(&buffer, "PNG", PngQuality);
    return buffer.data();
}
