#include "toolkit/print/pixel_runs.h"

#include <gtest/gtest.h>

#include "toolkit/picture/bitmap.h"

namespace toolkit::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// What a reader of the coding gets.
Bytes decoded(const Bytes& coded) {
    Bytes plain;
    for (std::size_t i = 0; i < coded.size() && coded[i] != endOfPixelRuns;) {
        const std::size_t length = coded[i++];
        if (length < 128) {
            plain.insert(plain.end(), coded.begin() + static_cast<std::ptrdiff_t>(i),
                         coded.begin() + static_cast<std::ptrdiff_t>(i + length + 1));
            i += length + 1;
        } else {
            plain.insert(plain.end(), 257 - length, coded[i++]);
        }
    }
    return plain;
}

Bytes channelsOf(const std::vector<std::uint32_t>& pixels) {
    Bytes bytes;
    for (const std::uint32_t pixel : pixels)
        for (const unsigned shift : {16U, 8U, 0U})
            bytes.push_back(static_cast<std::uint8_t>(pixel >> shift & 0xFFU));
    return bytes;
}

std::size_t codedLength(const std::vector<std::uint32_t>& pixels) {
    Bytes bytes;
    appendPixelRuns(pixels, bytes);
    bytes.push_back(endOfPixelRuns);
    EXPECT_EQ(decoded(bytes), channelsOf(pixels)) << pixels.size();
    return bytes.size();
}

std::vector<std::uint32_t> paper(std::size_t count) { return std::vector(count, pixelOf(white)); }

std::vector<std::uint32_t> ink(std::size_t count) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        pixels.push_back(0xFF000000U | static_cast<std::uint32_t>(i * 7919) % 0xFFFFFFU);
    return pixels;
}

std::vector<std::uint32_t> operator+(std::vector<std::uint32_t> left,
                                     const std::vector<std::uint32_t>& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

TEST(PixelRuns, AReaderGetsThePixelsWhateverTheirNumber) {
    for (const std::size_t count : {0U, 1U, 2U, 3U, 4U, 42U, 43U, 85U, 128U, 129U, 1000U}) {
        codedLength(paper(count));
        codedLength(ink(count));
        codedLength(ink(5) + paper(count) + ink(5));
        codedLength(paper(5) + ink(count) + paper(5));
    }
}

TEST(PixelRuns, PaperTakesAFewBytesAndInkHardlyMoreThanItsOwn) {
    EXPECT_LT(codedLength(paper(2396)), 2396 * 3 / 60);
    EXPECT_LT(codedLength(ink(2396)), 2396 * 3 * 102 / 100);
}

} // namespace
} // namespace toolkit::test
