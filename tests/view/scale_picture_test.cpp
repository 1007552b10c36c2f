#include "view/scale_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

#include "view/halve_picture.h"

namespace zev {
namespace {

using toolkit::Bitmap;
using toolkit::Color;
using toolkit::rgb;

Bitmap noise(int width, int height) {
    std::mt19937 random(7);
    Bitmap picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.row(y)[x] = 0xFF000000U | (static_cast<std::uint32_t>(random()) & 0xFFFFFFU);
    return picture;
}

std::array<int, 3> channels(Color color) {
    return {toolkit::redOf(color), toolkit::greenOf(color), toolkit::blueOf(color)};
}

/// How much of pixel `place` of the source lies below output pixel `output`.
double overlap(int place, int output, double factor) {
    const double from = std::max<double>(place, output / factor);
    const double to = std::min<double>(place + 1, (output + 1) / factor);
    return std::max(0.0, to - from);
}

/// The average of the area below an output pixel, computed without any rounding.
std::array<double, 3> areaAverage(const Bitmap& source, int x, int y, double factor) {
    std::array<double, 3> sums{};
    double area = 0;
    for (int row = static_cast<int>(y / factor); row < source.height(); ++row) {
        const double height = overlap(row, y, factor);
        if (height <= 0) break;
        for (int column = static_cast<int>(x / factor); column < source.width(); ++column) {
            const double part = height * overlap(column, x, factor);
            if (part <= 0) break;
            area += part;
            const auto parts = channels(*source.pixel(column, row));
            for (std::size_t i = 0; i < sums.size(); ++i) sums[i] += part * parts[i];
        }
    }
    for (double& sum : sums) sum /= area;
    return sums;
}

void expectAreaAverages(const Bitmap& source, float factor) {
    const int width = static_cast<int>(std::nearbyint(source.width() * double{factor}));
    const int height = static_cast<int>(std::nearbyint(source.height() * double{factor}));
    const Bitmap result = scaled(source, {.factor = factor, .width = width, .height = height});
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto expected = areaAverage(source, x, y, factor);
            const auto parts = channels(*result.pixel(x, y));
            for (std::size_t i = 0; i < parts.size(); ++i)
                ASSERT_NEAR(parts[i], expected[i], 0.52) << factor << " at " << x << ", " << y;
        }
    }
}

TEST(Scaled, IsTheRoundedAreaAverage) {
    const Bitmap source = noise(97, 61);
    for (const float factor : {0.13F, 0.2F, 0.35F, 0.425F, 0.5F, 0.63F, 0.75F, 0.85F, 0.99F})
        expectAreaAverages(source, factor);
}

TEST(Scaled, KeepsEvenColoursBitForBit) {
    for (const Color color : {toolkit::white, toolkit::black, rgb(195, 17, 25), rgb(1, 254, 127)}) {
        const Bitmap source(83, 71, color);
        for (const float factor : {0.2F, 0.333F, 0.7F, 0.85F}) {
            const Bitmap result = scaled(source, {.factor = factor, .width = 14, .height = 12});
            for (int y = 0; y < 12; ++y)
                for (int x = 0; x < 14; ++x) ASSERT_EQ(result.pixel(x, y), color);
        }
    }
}

TEST(Scaled, AtFullSizeIsTheSame) {
    const Bitmap source = noise(31, 17);
    const Bitmap result = scaled(source, {.factor = 1, .width = 31, .height = 17});
    for (int y = 0; y < 17; ++y)
        ASSERT_TRUE(std::equal(source.row(y), source.row(y) + 31, result.row(y)));
}

TEST(Scaled, ByHalfIsTheHalvedPicture) {
    const Bitmap source = noise(64, 48);
    const Bitmap result = scaled(source, {.factor = 0.5F, .width = 32, .height = 24});
    const Bitmap half = halved(source);
    for (int y = 0; y < 24; ++y)
        ASSERT_TRUE(std::equal(half.row(y), half.row(y) + 32, result.row(y))) << y;
}

TEST(Scaled, BeginsAtTheCorner) {
    Bitmap source(40, 40);
    source.fill(0, 0, 4, 4, toolkit::black);
    const Bitmap result = scaled(source, {.factor = 0.25F, .width = 10, .height = 10});
    EXPECT_EQ(result.pixel(0, 0), toolkit::black);
    EXPECT_EQ(result.pixel(1, 0), toolkit::white);
    EXPECT_EQ(result.pixel(0, 1), toolkit::white);
}

TEST(Scaled, IsWhiteBeyondTheContent) {
    const Bitmap source(40, 40, toolkit::black);
    const Bitmap result = scaled(source, {.factor = 0.5F, .width = 25, .height = 30});
    EXPECT_EQ(result.width(), 25);
    EXPECT_EQ(result.height(), 30);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 25; ++x)
            ASSERT_EQ(result.pixel(x, y), x < 20 && y < 20 ? toolkit::black : toolkit::white);
}

/// At full size nothing is averaged: each pixel is copied, and beside them lies what memory held.
TEST(Scaled, IsWhiteBesideAndBelowWhatIsCopied) {
    const Bitmap black(31, 17, toolkit::black);
    const Bitmap result =
        scaled(black, {.factor = 1, .width = 40, .height = 30, .contentHeight = 12});
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            EXPECT_EQ(result.pixel(x, y), x < 31 && y < 12 ? toolkit::black : toolkit::white)
                << x << ", " << y;
}

TEST(Scaled, IsWhiteFromTheContentsEndOn) {
    const Bitmap source(40, 40, toolkit::black);
    for (const float factor : {0.5F, 1.0F}) {
        const Bitmap result =
            scaled(source, {.factor = factor, .width = 20, .height = 20, .contentHeight = 13});
        EXPECT_EQ(result.pixel(19, 12), toolkit::black);
        for (int y = 13; y < 20; ++y)
            for (int x = 0; x < 20; ++x) ASSERT_EQ(result.pixel(x, y), toolkit::white) << factor;
    }
}

TEST(Scaled, IsCutWhereTheContentIsLarger) {
    const Bitmap result = scaled(noise(40, 40), {.factor = 0.5F, .width = 3, .height = 2});
    EXPECT_EQ(result.width(), 3);
    EXPECT_EQ(result.height(), 2);
    EXPECT_EQ(result.pixel(2, 1), halved(noise(40, 40)).pixel(2, 1));
}

TEST(Scaled, FillsAPixelThatTheContentReachesToAHalf) {
    const Bitmap source(11, 11, toolkit::black);
    const Bitmap result = scaled(source, {.factor = 0.6F, .width = 8, .height = 8});
    EXPECT_EQ(result.pixel(6, 6), toolkit::black);
    EXPECT_EQ(result.pixel(7, 7), toolkit::white);
}

TEST(Scaled, MayBeEmpty) {
    EXPECT_TRUE(scaled(noise(5, 5), {.factor = 0.5F, .width = 0, .height = 0}).empty());
    EXPECT_EQ(scaled(Bitmap(), {.factor = 0.5F, .width = 2, .height = 2}).pixel(1, 1),
              toolkit::white);
}

toolkit::IndexedPicture indexed(int width, int height) {
    toolkit::IndexedPicture picture{.width = width, .height = height, .palette = {}, .indices = {}};
    std::mt19937 random(3);
    for (int i = 0; i < 200; ++i)
        picture.palette.push_back(0xFF000000U | (static_cast<std::uint32_t>(random()) & 0xFFFFFFU));
    for (int i = 0; i < width * height; ++i)
        picture.indices.push_back(static_cast<std::uint8_t>(random() % 200));
    return picture;
}

Bitmap expanded(const toolkit::IndexedPicture& picture) {
    Bitmap bitmap(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            bitmap.row(y)[x] =
                picture.palette[picture.indices[static_cast<std::size_t>(y) *
                                                    static_cast<std::size_t>(picture.width) +
                                                static_cast<std::size_t>(x)]];
    return bitmap;
}

void expectSame(const Bitmap& one, const Bitmap& other) {
    ASSERT_EQ(one.width(), other.width());
    ASSERT_EQ(one.height(), other.height());
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            ASSERT_EQ(one.pixel(x, y), other.pixel(x, y)) << x << ", " << y;
}

TEST(Scaled, IsTheSameFromIndicesAndFromPixels) {
    const toolkit::IndexedPicture picture = indexed(61, 47);
    for (const float factor : {1.0F, 0.85F, 0.5F, 0.21F}) {
        const ScaleRequest request{.factor = factor, .width = 40, .height = 40};
        expectSame(scaled(picture, request), scaled(expanded(picture), request));
    }
}

TEST(Scaled, IsWhiteWhereThePaletteEnds) {
    const toolkit::IndexedPicture picture{
        .width = 2, .height = 1, .palette = {0xFF000000U}, .indices = {0, 255}};
    const Bitmap result = scaled(picture, {.factor = 1, .width = 2, .height = 1});
    EXPECT_EQ(result.pixel(0, 0), toolkit::black);
    EXPECT_EQ(result.pixel(1, 0), toolkit::white);
}

TEST(Scaled, NeedsNoWhiteInThePalette) {
    toolkit::IndexedPicture picture = indexed(40, 30);
    picture.palette.assign(256, 0xFF102030U);
    const Bitmap result = scaled(picture, {.factor = 0.5F, .width = 20, .height = 15});
    for (int x = 0; x < 20; ++x) ASSERT_EQ(result.pixel(x, 7), rgb(0x10, 0x20, 0x30));
}

/// Strokes as thin and as far apart as those of a card, at every place in a block of eight columns.
TEST(Scaled, IsTheAreaAverageOfSparseInk) {
    std::mt19937 random(11);
    Bitmap card(131, 97);
    for (int i = 0; i < 60; ++i)
        card.setPixel(static_cast<int>(random() % 131), static_cast<int>(random() % 97),
                      rgb(static_cast<int>(random() % 256), 17, 25));
    card.fill(40, 0, 1, 97, toolkit::black);
    card.fill(130, 0, 1, 97, toolkit::black);
    card.fill(0, 96, 131, 1, toolkit::black);
    for (const float factor : {1.0F, 0.9F, 2.0F / 3.0F, 0.6F, 0.5F, 0.4F, 0.2F, 0.07F})
        expectAreaAverages(card, factor);
}

} // namespace
} // namespace zev
