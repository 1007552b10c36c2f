#include "design/searched_picture.h"

#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "toolkit/base/error.h"

namespace zev {
namespace {

using Pixel = SearchedPicture::Pixel;

constexpr auto paperColor = toolkit::rgb(255, 250, 240);

SearchedPicture pictureOf(int twipsPerPixel = 15, float scale = 1) {
    toolkit::Bitmap bitmap(20, 10, paperColor);
    bitmap.setPixel(7, 4, toolkit::rgb(255, 250, 241));
    return {std::move(bitmap), twipsPerPixel, scale};
}

template <typename Act>
int numberOfFailure(Act act) {
    try {
        act();
    } catch (const toolkit::RunTimeError& failure) {
        return failure.number();
    }
    return 0;
}

TEST(SearchedPicture, InkIsWhateverHasAnotherColourThanTheFirstPixel) {
    const SearchedPicture picture = pictureOf();
    EXPECT_TRUE(picture.isInk(Pixel{7, 4}));
    EXPECT_FALSE(picture.isInk(Pixel{0, 0}));
    EXPECT_FALSE(picture.isInk(Pixel{8, 4}));
}

TEST(SearchedPicture, APlaceIsInThePixelThatItLiesIn) {
    const SearchedPicture picture = pictureOf();
    EXPECT_TRUE(picture.isInk(105, 60));
    EXPECT_TRUE(picture.isInk(119.9F, 74.9F));
    EXPECT_FALSE(picture.isInk(104.9F, 60));
    EXPECT_FALSE(picture.isInk(120, 60));
    EXPECT_FALSE(picture.isInk(105, 59.9F));
    EXPECT_FALSE(picture.isInk(105, 75));
}

TEST(SearchedPicture, OutsideIsInkThatStays) {
    SearchedPicture picture = pictureOf();
    for (const Pixel pixel : {Pixel{-1, 0}, Pixel{0, -1}, Pixel{20, 0}, Pixel{0, 10}}) {
        EXPECT_TRUE(picture.isInk(pixel)) << pixel.column << ' ' << pixel.row;
        picture.erase(pixel);
        EXPECT_TRUE(picture.isInk(pixel)) << pixel.column << ' ' << pixel.row;
    }
    // Half a pixel to the left of the card is no pixel of it.
    EXPECT_TRUE(picture.isInk(-7.5F, 0));
    EXPECT_TRUE(picture.isInk(0, -7.5F));
    EXPECT_TRUE(picture.isInk(300, 0));
    EXPECT_TRUE(picture.isInk(0, 150));
    EXPECT_TRUE(picture.isInk(1e30F, 0));
    EXPECT_TRUE(picture.isInk(0, std::numeric_limits<float>::quiet_NaN()));
}

TEST(SearchedPicture, ErasedInkIsPaper) {
    SearchedPicture picture = pictureOf();
    picture.erase({7, 4});
    EXPECT_FALSE(picture.isInk(Pixel{7, 4}));
}

TEST(SearchedPicture, LengthsAreTwipsAndSomeGrowWithTheCard) {
    const SearchedPicture picture = pictureOf(13, 1.5F);
    EXPECT_EQ(picture.pixels(2), 26);
    EXPECT_EQ(picture.scaledPixels(2), 39);
    EXPECT_FLOAT_EQ(picture.scaled(picture.pixels(2) / 3), 13);
    EXPECT_EQ(picture.twipsPerPixel(), 13);
    EXPECT_EQ(picture.width(), 20);
    EXPECT_EQ(picture.height(), 10);
}

TEST(SearchedPicture, EdgesLieAtOrBeforeTheirPlaces) {
    const SearchedPicture picture = pictureOf();
    EXPECT_EQ(picture.edgeOf(30), 30);
    EXPECT_EQ(picture.edgeOf(44.9F), 30);
    EXPECT_EQ(picture.edgeOf(-0.1F), -15);
    EXPECT_EQ(picture.pixelAt(44, -1).column, 2);
    EXPECT_EQ(picture.pixelAt(44, -1).row, -1);
}

TEST(SearchedPicture, PlacesAreCutToWholePixelsTowardsZero) {
    const SearchedPicture picture = pictureOf();
    EXPECT_EQ(picture.cutToPixels(44), 30);
    EXPECT_EQ(picture.cutToPixels(44.4F), 30);
    EXPECT_EQ(picture.cutToPixels(44.6F), 45) << "to the nearest twip first";
    EXPECT_EQ(picture.cutToPixels(44.5F), 30) << "halves to even";
    EXPECT_EQ(picture.cutToPixels(-44), -30);
    EXPECT_EQ(numberOfFailure([&] { (void)picture.cutToPixels(3e9F); }), 6);
}

TEST(SearchedPicture, WithoutTwipsAPlaceIsADivisionByZero) {
    const SearchedPicture picture = pictureOf(0);
    EXPECT_EQ(numberOfFailure([&] { (void)picture.edgeOf(1); }), 11);
    EXPECT_EQ(numberOfFailure([&] { (void)picture.cutToPixels(1); }), 11);
    EXPECT_EQ(numberOfFailure([&] { (void)picture.isInk(1.0F, 1.0F); }), 11);
}

TEST(SearchedPicture, NeedsAPicture) {
    EXPECT_EQ(numberOfFailure([] { (void)SearchedPicture({}, 15, 1); }), 481);
}

} // namespace
} // namespace zev
