#include "card_tool/failure.h"
#include "card_tool/picture.h"
#include "card_tool/units.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <array>

namespace card {
namespace {

constexpr int oversampling = 4;
constexpr int samples = oversampling * oversampling;
constexpr int bandRows = 64;

QRgb sampleColour(Ink ink) {
    const Rgb colour = inkColours[static_cast<std::size_t>(ink)];
    return qRgb(colour.red, colour.green, colour.blue);
}

Ink inkOf(QRgb sample) {
    for (const Ink ink : {Ink::Black, Ink::Red, Ink::Blue})
        if (sample == sampleColour(ink)) return ink;
    return Ink::Paper;
}

/// Some rows of the sheet, each sample of which is pure paper or pure ink.
QImage sampleBand(const Sheet& sheet, int top, int rows) {
    QImage band(pictureWidth * oversampling, rows * oversampling, QImage::Format_RGB32);
    band.fill(sampleColour(Ink::Paper));
    QPainter painter(&band);
    painter.setPen(Qt::NoPen);
    painter.scale(oversampling, oversampling);
    painter.translate(0, -top);
    for (const InkShape& shape : sheet.shapes)
        if (shape.bounds.bottom() >= top && shape.bounds.top() <= top + rows)
            painter.fillPath(shape.path, QColor(sampleColour(shape.ink)));
    return band;
}

/// The pixel's strongest ink, as strong as the share of samples that bear any.
std::uint8_t shadeOf(const QImage& band, int x, int row) {
    std::array<int, inkColours.size()> counts{};
    for (int down = 0; down < oversampling; ++down) {
        const auto* line =
            reinterpret_cast<const QRgb*>(band.constScanLine(row * oversampling + down));
        for (int right = 0; right < oversampling; ++right)
            ++counts[static_cast<std::size_t>(inkOf(line[x * oversampling + right]))];
    }
    const int covered = samples - counts[static_cast<std::size_t>(Ink::Paper)];
    const auto strongest = std::max_element(counts.begin() + 1, counts.end()) - counts.begin();
    return paletteIndex(static_cast<Ink>(strongest),
                        (covered * shadeCount + samples / 2) / samples);
}

} // namespace

IndexedPicture print(const Sheet& sheet) {
    const auto colours = pictureColours();
    IndexedPicture picture{pictureWidth, pictureHeight, {colours.begin(), colours.end()}, {}};
    picture.pixels.reserve(picture.index(0, pictureHeight));
    for (int top = 0; top < pictureHeight; top += bandRows) {
        const int rows = std::min(bandRows, pictureHeight - top);
        const QImage band = sampleBand(sheet, top, rows);
        for (int row = 0; row < rows; ++row)
            for (int x = 0; x < pictureWidth; ++x) picture.pixels.push_back(shadeOf(band, x, row));
    }
    return picture;
}

} // namespace card
