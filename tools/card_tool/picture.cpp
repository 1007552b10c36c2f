#include "card_tool/picture.h"

#include <algorithm>
#include <array>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "card_tool/failure.h"
#include "card_tool/units.h"
#include "toolkit/picture/color_table.h"
#include "view/halve_picture.h"

namespace card_tool {
namespace {

constexpr int oversampling = 4;
constexpr int samples = oversampling * oversampling;
constexpr int bandRows = 64;

QRgb sampleColor(Ink ink) { return toolkit::pixelOf(colorOf(ink)); }

Ink inkOf(QRgb sample) {
    for (const Ink ink : {Ink::Black, Ink::Red, Ink::Blue})
        if (sample == sampleColor(ink)) return ink;
    return Ink::Paper;
}

/// Some rows of the sheet, each sample of which is pure paper or pure ink.
QImage sampleBand(const Sheet& sheet, int top, int rows) {
    QImage band(pictureWidth * oversampling, rows * oversampling, QImage::Format_RGB32);
    band.fill(sampleColor(Ink::Paper));
    QPainter painter(&band);
    painter.setPen(Qt::NoPen);
    painter.scale(oversampling, oversampling);
    painter.translate(0, -top);
    for (const InkShape& shape : sheet.shapes)
        if (shape.bounds.bottom() >= top && shape.bounds.top() <= top + rows)
            painter.fillPath(shape.path, QColor(sampleColor(shape.ink)));
    return band;
}

/// The pixel's strongest ink, as strong as the share of samples that bear any.
std::uint8_t shadeOf(const QImage& band, int x, int row) {
    std::array<int, inkColors.size()> counts{};
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

toolkit::IndexedPicture print(const Sheet& sheet) {
    toolkit::IndexedPicture picture{pictureWidth, pictureHeight, pictureColors(), {}};
    picture.indices.reserve(std::size_t{pictureWidth} * pictureHeight);
    for (int top = 0; top < pictureHeight; top += bandRows) {
        const int rows = std::min(bandRows, pictureHeight - top);
        const QImage band = sampleBand(sheet, top, rows);
        for (int row = 0; row < rows; ++row)
            for (int x = 0; x < pictureWidth; ++x) picture.indices.push_back(shadeOf(band, x, row));
    }
    return picture;
}

toolkit::Bitmap bitmapOf(const toolkit::IndexedPicture& picture) {
    toolkit::Bitmap bitmap(picture.width, picture.height);
    std::ranges::transform(picture.indices, bitmap.row(0),
                           [&](std::uint8_t index) { return picture.palette[index]; });
    return bitmap;
}

toolkit::IndexedPicture halfOf(const toolkit::IndexedPicture& picture) {
    auto half = toolkit::exactlyIndexed(zev::halved(bitmapOf(picture)));
    if (!half) throw Failure("the half-size picture takes more than 256 colours");
    return *std::move(half);
}

} // namespace card_tool
