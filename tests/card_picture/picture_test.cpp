#include "card_picture/picture_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace card_picture {
namespace {

constexpr int footRows = 30;

TEST(Picture, IsAsLargeAsTheCardAtFullScale) {
    EXPECT_EQ(fullPicture().width, 2396);
    EXPECT_EQ(fullPicture().height, 2473);
}

TEST(Picture, OutermostRowsAndColumnsArePaper) {
    const Picture& picture = fullPicture();
    ASSERT_FALSE(picture.pixels.empty());
    for (int x = 0; x < picture.width; ++x) {
        ASSERT_FALSE(picture.ink(x, 0)) << x;
        ASSERT_FALSE(picture.ink(x, picture.height - 1)) << x;
    }
    for (int y = 0; y < picture.height; ++y) {
        ASSERT_FALSE(picture.ink(0, y)) << y;
        ASSERT_FALSE(picture.ink(picture.width - 1, y)) << y;
    }
}

TEST(Picture, FootIsFreeForTheTimeStamp) {
    const Picture& picture = fullPicture();
    ASSERT_FALSE(picture.pixels.empty());
    for (int y = picture.height - footRows; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) ASSERT_FALSE(picture.ink(x, y)) << x << "," << y;
}

TEST(Picture, HasTheThreeInksAtFullStrengthAndLittleElse) {
    const Picture& picture = fullPicture();
    const std::set<Colour> colours(picture.pixels.begin(), picture.pixels.end());
    for (const int number : {1, 2, 3})
        EXPECT_TRUE(colours.contains(printedColour(number))) << number;
    EXPECT_TRUE(colours.contains(paper));
    EXPECT_LE(colours.size(), 46U);
}

/// Whether a colour lies on the line from paper to an ink, but for rounding.
bool isShadeOf(const Colour& colour, const Colour& ink) {
    const auto depth = [](auto full, auto value) {
        return full == 255 ? 0.0 : (255.0 - value) / (255.0 - full);
    };
    const auto near = [](double share, auto full, auto value) {
        return std::abs(255 - share * (255 - full) - value) <= 1;
    };
    const double share = std::max({depth(std::get<0>(ink), std::get<0>(colour)),
                                   depth(std::get<1>(ink), std::get<1>(colour)),
                                   depth(std::get<2>(ink), std::get<2>(colour))});
    return near(share, std::get<0>(ink), std::get<0>(colour)) &&
           near(share, std::get<1>(ink), std::get<1>(colour)) &&
           near(share, std::get<2>(ink), std::get<2>(colour));
}

TEST(Picture, EachColourIsAShadeOfOneInk) {
    const Picture& picture = fullPicture();
    for (const Colour& colour : std::set<Colour>(picture.pixels.begin(), picture.pixels.end())) {
        int inks = 0;
        for (const int number : {1, 2, 3}) inks += isShadeOf(colour, printedColour(number)) ? 1 : 0;
        EXPECT_GT(inks, 0) << int{std::get<0>(colour)} << "," << int{std::get<1>(colour)} << ","
                           << int{std::get<2>(colour)};
    }
}

TEST(Picture, IsMostlyPaper) {
    const Picture& picture = fullPicture();
    const auto blank = std::ranges::count(picture.pixels, paper);
    EXPECT_GT(static_cast<double>(blank), 0.8 * static_cast<double>(picture.pixels.size()));
    EXPECT_LT(static_cast<double>(blank), 0.95 * static_cast<double>(picture.pixels.size()));
}

TEST(Picture, GifShowsThePackedPicture) {
    const Picture gif = readGif(CARD_OUTPUT "/card.gif");
    EXPECT_EQ(gif.width, fullPicture().width);
    EXPECT_EQ(gif.height, fullPicture().height);
    EXPECT_TRUE(gif.pixels == fullPicture().pixels);
}

TEST(Picture, GifStaysUnder400Kilobytes) {
    const std::size_t size = fileBytes(CARD_OUTPUT "/card.gif").size();
    EXPECT_GT(size, 0U);
    EXPECT_LT(size, 400'000U);
}

Colour averageOf(const Picture& picture, int left, int top) {
    int sums[3]{};
    int count = 0;
    for (int y = top; y < top + 2 && y < picture.height; ++y)
        for (int x = left; x < left + 2 && x < picture.width; ++x, ++count) {
            sums[0] += std::get<0>(picture.at(x, y));
            sums[1] += std::get<1>(picture.at(x, y));
            sums[2] += std::get<2>(picture.at(x, y));
        }
    const auto rounded = [count](int sum) {
        return static_cast<std::uint8_t>((2 * sum + count) / (2 * count));
    };
    return {rounded(sums[0]), rounded(sums[1]), rounded(sums[2])};
}

TEST(Picture, HalfIsTheAverageOfTwoByTwo) {
    const Picture& full = fullPicture();
    const Picture& half = halfPicture();
    ASSERT_EQ(half.width, 1198);
    ASSERT_EQ(half.height, 1237);
    for (int y = 0; y < half.height; ++y)
        for (int x = 0; x < half.width; ++x)
            ASSERT_EQ(half.at(x, y), averageOf(full, 2 * x, 2 * y)) << x << "," << y;
}

} // namespace
} // namespace card_picture
