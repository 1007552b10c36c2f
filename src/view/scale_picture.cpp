#include "view/scale_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace zev {
namespace {

using Pixel = std::uint32_t;

// Two channels of a pixel in one word, each with room for its sum and weights.
struct Channels {
    std::uint64_t redAndBlue = 0; ///< lanes of 32 bits
    std::uint64_t green = 0;
};

constexpr Channels split(Pixel pixel) {
    return {std::uint64_t{pixel & 0xFF0000U} << 16U | (pixel & 0xFFU), pixel >> 8U & 0xFFU};
}

// The pixels of one direction that an output pixel covers. Their weights sum to `whole`.
struct Span {
    int first = 0;
    int count = 0;
    std::size_t weights = 0; ///< place of the first one in the list of weights
};

constexpr std::uint32_t whole = 65536;

struct Coverage {
    std::vector<Span> spans;
    std::vector<std::uint32_t> weights;
};

// A weight is the difference of two rounded boundaries, so that each sum is exactly whole and an
// even area keeps its colour.
void addSpan(Coverage& coverage, double from, double to, int last) {
    const int first = std::min(static_cast<int>(from), last);
    const int count = std::clamp(static_cast<int>(std::ceil(to)), first + 1, last + 1) - first;
    const double end = std::min(to, last + 1.0);
    coverage.spans.push_back({first, count, coverage.weights.size()});
    std::uint32_t given = 0;
    for (int i = 1; i < count; ++i) {
        const double share = (first + i - from) / (end - from);
        const auto boundary = static_cast<std::uint32_t>(std::lround(share * whole));
        coverage.weights.push_back(boundary - given);
        given = boundary;
    }
    coverage.weights.push_back(whole - given);
}

// For each output pixel that `length` pixels reach when shrunk, the input pixels below it.
Coverage coverageOf(int length, double factor, int outputLength) {
    Coverage coverage;
    const double reached = std::nearbyint(length * factor);
    const int count = static_cast<int>(std::clamp<double>(reached, 0, outputLength));
    for (int i = 0; i < count; ++i) addSpan(coverage, i / factor, (i + 1) / factor, length - 1);
    return coverage;
}

// The rows below an output row, averaged to 8 bits and as many behind the point. All rows of a
// column at once, so that no sum is stored before it is whole.
template <typename Element, typename ChannelsOf>
void averageRows(const Element* first, const Span& rows, const std::uint32_t* weights,
                 std::span<Channels> averages, ChannelsOf channelsOf) {
    const std::size_t width = averages.size();
    for (std::size_t x = 0; x < width; ++x) {
        Channels sum{0x0000008000000080U, 0x80U};
        const Element* element = first + x;
        for (int i = 0; i < rows.count; ++i, element += width) {
            const Channels& channels = channelsOf(*element);
            sum.redAndBlue += channels.redAndBlue * weights[i];
            sum.green += channels.green * weights[i];
        }
        averages[x] = {sum.redAndBlue >> 8U & 0x0000FFFF0000FFFFU, sum.green >> 8U};
    }
}

Pixel averageColumns(const Channels* columns, const std::uint32_t* weights, int count) {
    Channels sum{0x0080000000800000U, 0x800000U};
    for (int i = 0; i < count; ++i) {
        sum.redAndBlue += columns[i].redAndBlue * weights[i];
        sum.green += columns[i].green * weights[i];
    }
    const auto red = static_cast<Pixel>(sum.redAndBlue >> 56U);
    const auto green = static_cast<Pixel>(sum.green >> 24U);
    const auto blue = static_cast<Pixel>(sum.redAndBlue >> 24U) & 0xFFU;
    return 0xFF000000U | red << 16U | green << 8U | blue;
}

constexpr Pixel lowChannels = 0x00FF00FFU;

// The rounded average of two by two pixels, two channels at a time.
constexpr Pixel averageOfFour(Pixel a, Pixel b, Pixel c, Pixel d) {
    const auto average = [](Pixel sum) { return (sum + 0x00020002U) >> 2U & lowChannels; };
    const Pixel redAndBlue =
        average((a & lowChannels) + (b & lowChannels) + (c & lowChannels) + (d & lowChannels));
    const Pixel green = average((a >> 8U & lowChannels) + (b >> 8U & lowChannels) +
                                (c >> 8U & lowChannels) + (d >> 8U & lowChannels));
    return 0xFF000000U | (green & 0xFFU) << 8U | redAndBlue;
}

// Averages the pixels that `pixelOf` finds for the elements of two rows; a single last column
// counts twice.
template <typename Element, typename PixelOf>
void halveRows(const Element* upper, const Element* lower, int width, Pixel* output,
               PixelOf pixelOf) {
    for (int x = 0; x + 1 < width; x += 2)
        *output++ = averageOfFour(pixelOf(upper[x]), pixelOf(upper[x + 1]), pixelOf(lower[x]),
                                  pixelOf(lower[x + 1]));
    if (width % 2 == 0) return;
    const Pixel above = pixelOf(upper[width - 1]);
    const Pixel below = pixelOf(lower[width - 1]);
    *output = averageOfFour(above, above, below, below);
}

template <typename Row, typename PixelOf>
toolkit::Bitmap halvedRows(int width, int height, Row row, PixelOf pixelOf) {
    toolkit::Bitmap half((width + 1) / 2, (height + 1) / 2);
    for (int y = 0; y < half.height(); ++y) {
        const int lower = std::min(2 * y + 1, height - 1);
        halveRows(row(2 * y), row(lower), width, half.row(y), pixelOf);
    }
    return half;
}

using Palette = std::array<Pixel, 256>;

// Every index has a colour, also one beyond the picture's palette.
Palette fullPalette(const toolkit::IndexedPicture& picture) {
    Palette palette;
    palette.fill(toolkit::pixelOf(toolkit::white));
    std::copy_n(picture.palette.begin(), std::min(picture.palette.size(), palette.size()),
                palette.begin());
    return palette;
}

const std::uint8_t* indexRow(const toolkit::IndexedPicture& picture, int y) {
    return picture.indices.data() +
           static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width);
}

template <typename Row, typename ChannelsOf>
toolkit::Bitmap scaledRows(int sourceWidth, int sourceHeight, const ScaleRequest& request, Row row,
                           ChannelsOf channelsOf) {
    toolkit::Bitmap result(request.width, request.height);
    const double factor = request.factor;
    const Coverage columns = coverageOf(sourceWidth, factor, result.width());
    const Coverage rows = coverageOf(sourceHeight, factor, result.height());
    std::vector<Channels> sums(static_cast<std::size_t>(sourceWidth));
    Pixel* output = result.row(0);
    for (const Span& span : rows.spans) {
        averageRows(row(span.first), span, &rows.weights[span.weights], sums, channelsOf);
        Pixel* pixel = output;
        for (const Span& column : columns.spans)
            *pixel++ = averageColumns(&sums[static_cast<std::size_t>(column.first)],
                                      &columns.weights[column.weights], column.count);
        output += result.width();
    }
    return result;
}

} // namespace

toolkit::Bitmap halved(const toolkit::IndexedPicture& picture) {
    const Palette palette = fullPalette(picture);
    return halvedRows(
        picture.width, picture.height, [&](int y) { return indexRow(picture, y); },
        [&](std::uint8_t index) { return palette[index]; });
}

toolkit::Bitmap halved(const toolkit::Bitmap& picture) {
    return halvedRows(
        picture.width(), picture.height(), [&](int y) { return picture.row(y); },
        [](Pixel pixel) { return pixel; });
}

toolkit::Bitmap expanded(const toolkit::IndexedPicture& picture) {
    const Palette palette = fullPalette(picture);
    toolkit::Bitmap bitmap(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* indices = indexRow(picture, y);
        std::transform(indices, indices + picture.width, bitmap.row(y),
                       [&](std::uint8_t index) { return palette[index]; });
    }
    return bitmap;
}

toolkit::Bitmap scaled(const toolkit::Bitmap& source, const ScaleRequest& request) {
    return scaledRows(
        source.width(), source.height(), request, [&](int y) { return source.row(y); }, split);
}

toolkit::Bitmap scaled(const toolkit::IndexedPicture& source, const ScaleRequest& request) {
    std::array<Channels, 256> palette;
    std::ranges::transform(fullPalette(source), palette.begin(), split);
    return scaledRows(
        source.width, source.height, request, [&](int y) { return indexRow(source, y); },
        [&](std::uint8_t index) -> const Channels& { return palette[index]; });
}

} // namespace zev
