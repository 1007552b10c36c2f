#include "view/card_picture.h"

#include "support/form_test.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/bitmap_file.h"

namespace zev::test {
namespace {

class Picture : public FormTest {
  protected:
    [[nodiscard]] int failureOf(const std::filesystem::path& path) {
        try {
            picture.load(path);
        } catch (const toolkit::RunTimeError& failure) {
            return failure.number();
        }
        return 0;
    }
    CardPicture picture;
};

TEST_F(Picture, TheBuiltInCardHasItsFullSize) {
    EXPECT_EQ(picture.width(), 2396);
    EXPECT_EQ(picture.height(), 2473);
}

TEST_F(Picture, AScaledCardFillsWhatIsAskedFor) {
    for (const float scale : {0.2F, 0.425F, 0.5F, 0.6F, 1.0F}) {
        const auto width = static_cast<int>(2396 * scale);
        const auto height = static_cast<int>(2473 * scale);
        const auto scaled = picture.scaled({.factor = scale, .width = width, .height = height});
        EXPECT_EQ(scaled.width(), width);
        EXPECT_EQ(scaled.height(), height);
    }
}

TEST_F(Picture, BothSidesOfHalfSizeShowTheSameCard) {
    // The half comes ready made, the other is made from the full picture.
    const auto half = picture.scaled({.factor = 0.5F, .width = 1198, .height = 1236});
    const auto above = picture.scaled({.factor = 0.5001F, .width = 1198, .height = 1236});
    int different = 0;
    for (int y = 0; y < 1236; ++y) {
        for (int x = 0; x < 1198; ++x) {
            const int left = static_cast<int>(half.row(y)[x] & 0xFFU);
            const int right = static_cast<int>(above.row(y)[x] & 0xFFU);
            if (std::abs(left - right) > 64) ++different;
        }
    }
    EXPECT_LT(different, 1198 * 1236 / 100);
}

TEST_F(Picture, AFileTakesThePlaceOfTheBuiltInCard) {
    toolkit::savePng(toolkit::Bitmap(40, 20, toolkit::rgb(9, 8, 7)), dataFile("own.png"));
    EXPECT_EQ(failureOf(dataFile("own.png")), 0);
    EXPECT_EQ(picture.width(), 40);
    EXPECT_EQ(picture.height(), 20);
    for (const float scale : {0.25F, 0.75F}) {
        const auto scaled = picture.scaled({.factor = scale, .width = 10, .height = 5});
        EXPECT_EQ(scaled.pixel(5, 2), toolkit::rgb(9, 8, 7)) << scale;
    }
}

TEST_F(Picture, AFileThatIsNoPictureLeavesTheCardAsItWas) {
    toolkit::writeFile(dataFile("bad.gif"), "GIF89a");
    EXPECT_EQ(failureOf(dataFile("bad.gif")), 481);
    EXPECT_EQ(failureOf(dataFile("none.gif")), 53);
    EXPECT_EQ(failureOf(dataFolder), 75);
    EXPECT_EQ(picture.width(), 2396);
}

} // namespace
} // namespace zev::test
