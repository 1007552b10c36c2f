#include "toolkit/picture/color_table.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace toolkit {
namespace {

constexpr std::size_t mostColors = 256;

std::size_t pixelCount(const Bitmap& picture) {
    return static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
}

std::span<const std::uint32_t> pixelsOf(const Bitmap& picture) {
    if (picture.empty()) return {};
    return {picture.row(0), pixelCount(picture)};
}

IndexedPicture emptyCopy(const Bitmap& picture) {
    IndexedPicture indexed;
    indexed.width = picture.width();
    indexed.height = picture.height();
    indexed.indices.reserve(pixelCount(picture));
    return indexed;
}

/// Colours with their indexes, probed from a place that the colour tells: a picture asks millions
/// of times.
class ColorIndex {
  public:
    ColorIndex() { places_.fill(unused); }

    /// The colour's index, a new one if it has none yet.
    std::size_t indexOf(std::uint32_t pixel, std::vector<std::uint32_t>& palette) {
        std::size_t place = (pixel * 2654435761U) >> 20U;
        for (;; place = (place + 1) % places_.size()) {
            const std::uint16_t index = places_[place];
            if (index == unused) break;
            if (palette[index] == pixel) return index;
        }
        places_[place] = static_cast<std::uint16_t>(palette.size());
        palette.push_back(pixel);
        return palette.size() - 1;
    }

  private:
    static constexpr std::uint16_t unused = 0xFFFF;
    std::array<std::uint16_t, 4096> places_{};
};

using Counts = std::unordered_map<std::uint32_t, std::uint32_t>;

/// Runs of one colour are counted at once: most of a card is paper.
Counts countColors(const Bitmap& picture) {
    Counts counts;
    const auto pixels = pixelsOf(picture);
    for (std::size_t i = 0; i < pixels.size();) {
        const std::size_t first = i;
        while (i < pixels.size() && pixels[i] == pixels[first]) ++i;
        counts[pixels[first]] += static_cast<std::uint32_t>(i - first);
    }
    return counts;
}

int channelShift(std::uint32_t left, std::uint32_t right, unsigned shift) {
    return std::abs(static_cast<int>(left >> shift & 0xFFU) -
                    static_cast<int>(right >> shift & 0xFFU));
}

int distance(std::uint32_t left, std::uint32_t right) {
    return std::max({channelShift(left, right, 0), channelShift(left, right, 8),
                     channelShift(left, right, 16)});
}

/// The most frequent first, in an order that is the same on every machine.
std::vector<std::uint32_t> byFrequency(const Counts& counts) {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> sorted;
    sorted.reserve(counts.size());
    for (const auto& [pixel, count] : counts) sorted.emplace_back(count, pixel);
    std::ranges::sort(sorted, std::greater{});
    std::vector<std::uint32_t> pixels;
    pixels.reserve(sorted.size());
    for (const auto& entry : sorted) pixels.push_back(entry.second);
    return pixels;
}

/// Each colour with the first of the palette that is within the reach; those that have none join
/// the palette. None if it gets too large.
std::optional<Counts> replacementsWithin(const std::vector<std::uint32_t>& pixels, int reach) {
    std::vector<std::uint32_t> palette;
    Counts replacements;
    for (const std::uint32_t pixel : pixels) {
        const auto near = std::ranges::find_if(
            palette, [&](std::uint32_t chosen) { return distance(chosen, pixel) <= reach; });
        replacements[pixel] = near == palette.end() ? pixel : *near;
        if (near != palette.end()) continue;
        if (palette.size() == mostColors) return std::nullopt;
        palette.push_back(pixel);
    }
    return replacements;
}

Counts replacementsOf(const Counts& counts) {
    const std::vector<std::uint32_t> pixels = byFrequency(counts);
    constexpr std::array reaches{0, 2, 3, 4, 5, 6, 7, 8, 12, 16, 24, 32, 64, 128};
    for (const int reach : reaches)
        if (auto replacements = replacementsWithin(pixels, reach)) return *std::move(replacements);
    constexpr int everything = 255;
    return *replacementsWithin(pixels, everything);
}

/// The picture in the colours that stand for its pixels' own, asked for once in a run of one
/// colour; none where they get too many.
template <typename Replacement>
std::optional<IndexedPicture> indexed(const Bitmap& picture, Replacement replacement) {
    IndexedPicture result = emptyCopy(picture);
    ColorIndex colors;
    const auto pixels = pixelsOf(picture);
    for (auto run = pixels.begin(); run != pixels.end();) {
        const auto end = std::find_if(run, pixels.end(),
                                      [own = *run](std::uint32_t pixel) { return pixel != own; });
        const std::size_t index = colors.indexOf(replacement(*run), result.palette);
        if (result.palette.size() > mostColors) return std::nullopt;
        result.indices.insert(result.indices.end(), static_cast<std::size_t>(end - run),
                              static_cast<std::uint8_t>(index));
        run = end;
    }
    return result;
}

} // namespace

std::optional<IndexedPicture> exactlyIndexed(const Bitmap& picture) {
    return indexed(picture, std::identity());
}

IndexedPicture nearlyIndexed(const Bitmap& picture) {
    const Counts replacements = replacementsOf(countColors(picture));
    return *indexed(picture, [&](std::uint32_t pixel) { return replacements.at(pixel); });
}

} // namespace toolkit
