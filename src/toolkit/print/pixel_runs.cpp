#include "toolkit/print/pixel_runs.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/picture/bitmap.h"

namespace toolkit {
namespace {

using Pixels = std::span<const std::uint32_t>;
using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t channels = 3;
/// Most that one length byte can tell; of pixels so many fit in whole.
constexpr std::size_t mostBytes = 128;
constexpr std::size_t mostPixels = mostBytes / channels;
/// A shorter run of paper between ink isn't worth two length bytes.
constexpr std::size_t shortestRun = 4;

std::size_t paperLength(Pixels pixels) {
    const auto ink =
        std::ranges::find_if(pixels, [](std::uint32_t pixel) { return pixel != pixelOf(white); });
    return static_cast<std::size_t>(ink - pixels.begin());
}

/// Up to the next run of paper.
std::size_t inkLength(Pixels pixels) {
    std::size_t paper = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        paper = pixels[i] == pixelOf(white) ? paper + 1 : 0;
        if (paper == shortestRun) return i + 1 - paper;
    }
    return pixels.size();
}

void appendInk(Pixels pixels, Bytes& bytes) {
    while (!pixels.empty()) {
        const std::size_t count = std::min(pixels.size(), mostPixels);
        bytes.push_back(static_cast<std::uint8_t>(channels * count - 1));
        for (const std::uint32_t pixel : pixels.first(count))
            for (const unsigned shift : {16U, 8U, 0U})
                bytes.push_back(static_cast<std::uint8_t>(pixel >> shift & 0xFFU));
        pixels = pixels.subspan(count);
    }
}

void appendPaper(std::size_t pixels, Bytes& bytes) {
    constexpr std::uint8_t paper = 0xFF;
    for (std::size_t rest = channels * pixels; rest > 0;) {
        const std::size_t count = std::min(rest, mostBytes);
        // A single byte is no run.
        bytes.push_back(static_cast<std::uint8_t>(count == 1 ? 0 : 2 * mostBytes + 1 - count));
        bytes.push_back(paper);
        rest -= count;
    }
}

} // namespace

void appendPixelRuns(Pixels pixels, Bytes& bytes) {
    while (!pixels.empty()) {
        const std::size_t paper = paperLength(pixels);
        appendPaper(paper, bytes);
        pixels = pixels.subspan(paper);
        const std::size_t ink = inkLength(pixels);
        appendInk(pixels.first(ink), bytes);
        pixels = pixels.subspan(ink);
    }
}

} // namespace toolkit
