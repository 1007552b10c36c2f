#include "toolkit/color_table.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>
#include <unordered_map>

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

/// The colour without the lowest bits of each channel.
constexpr std::uint32_t coarse(std::uint32_t pixel, unsigned bits) {
    const std::uint32_t channel = 0xFFU << bits & 0xFFU;
    return pixel & (channel << 16U | channel << 8U | channel);
}

/// The most frequent colour of each coarse one.
Counts frequentOfCoarse(const Counts& counts, unsigned bits) {
    Counts frequent;
    for (const auto& [pixel, count] : counts) {
        const auto [place, isNew] = frequent.try_emplace(coarse(pixel, bits), pixel);
        if (isNew) continue;
        const std::uint32_t rival = counts.at(place->second);
        // The same for every order in which the colours come.
        if (count > rival || (count == rival && pixel < place->second)) place->second = pixel;
    }
    return frequent;
}

Counts replacementsOf(const Counts& counts) {
    for (unsigned bits = 0;; ++bits) {
        const Counts frequent = frequentOfCoarse(counts, bits);
        if (frequent.size() > mostColors) continue;
        Counts replacements;
        for (const auto& [pixel, count] : counts)
            replacements[pixel] = frequent.at(coarse(pixel, bits));
        return replacements;
    }
}

int channelShift(std::uint32_t left, std::uint32_t right, unsigned shift) {
    return std::abs(static_cast<int>(left >> shift & 0xFFU) -
                    static_cast<int>(right >> shift & 0xFFU));
}

} // namespace

std::optional<IndexedPicture> exactlyIndexed(const Bitmap& picture) {
    IndexedPicture indexed = emptyCopy(picture);
    ColorIndex colors;
    std::uint32_t last = 0;
    std::uint8_t index = 0;
    for (const std::uint32_t pixel : pixelsOf(picture)) {
        if (pixel != last || indexed.palette.empty()) {
            index = static_cast<std::uint8_t>(colors.indexOf(pixel, indexed.palette));
            last = pixel;
            if (indexed.palette.size() > mostColors) return std::nullopt;
        }
        indexed.indices.push_back(index);
    }
    return indexed;
}

IndexedPicture nearlyIndexed(const Bitmap& picture) {
    const Counts replacements = replacementsOf(countColors(picture));
    IndexedPicture indexed = emptyCopy(picture);
    ColorIndex colors;
    std::uint32_t last = 0;
    std::uint8_t index = 0;
    for (const std::uint32_t pixel : pixelsOf(picture)) {
        if (pixel != last || indexed.palette.empty()) {
            index =
                static_cast<std::uint8_t>(colors.indexOf(replacements.at(pixel), indexed.palette));
            last = pixel;
        }
        indexed.indices.push_back(index);
    }
    return indexed;
}

int largestShift(const Bitmap& picture, const IndexedPicture& indexed) {
    int largest = 0;
    const auto pixels = pixelsOf(picture);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::uint32_t shown = indexed.palette.at(indexed.indices.at(i));
        for (const unsigned shift : {0U, 8U, 16U})
            largest = std::max(largest, channelShift(pixels[i], shown, shift));
    }
    return largest;
}

} // namespace toolkit
