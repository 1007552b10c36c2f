#include "output/image_name.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(ImageName, ACardWithoutANameOffersCardImage) {
    EXPECT_EQ(offeredImageName("", ".gif"), "Card Image.gif");
    EXPECT_EQ(offeredImageName(".hidden", ".gif"), "Card Image.gif");
}

TEST(ImageName, ACardsNameIsCutAtItsFirstDot) {
    EXPECT_EQ(offeredImageName("My.Card", ".png"), "My.png");
    EXPECT_EQ(offeredImageName("Jones", ".bmp"), "Jones.bmp");
}

TEST(ImageName, AnotherExtensionIsReplaced) {
    EXPECT_EQ(imageFileName("test.bmp", ".png"), "test.png");
    EXPECT_EQ(imageFileName(" my card .old.bmp ", ".png"), "my card.png");
}

TEST(ImageName, AMissingExtensionIsAdded) {
    EXPECT_EQ(imageFileName(" test ", ".png"), "test.png");
}

TEST(ImageName, TheExtensionAnywhereIsEnough) {
    EXPECT_EQ(imageFileName("test.PNG", ".png"), "test.PNG");
    EXPECT_EQ(imageFileName("my.gift", ".gif"), "my.gift");
}

TEST(ImageName, DotsOfFoldersStay) {
    EXPECT_EQ(imageFileName("../x", ".png"), "../x.png");
    EXPECT_EQ(imageFileName("/home/j.doe/x.bmp", ".png"), "/home/j.doe/x.png");
    EXPECT_EQ(imageFileName("C:\\a.b\\x", ".png"), "C:\\a.b\\x.png");
}

TEST(ImageName, WithoutANameThereIsNoFile) {
    for (const char* answer : {"", "   ", "...", " . ", ".bmp", "folder/", "../"})
        EXPECT_EQ(imageFileName(answer, ".png"), std::nullopt) << answer;
}

} // namespace
} // namespace zev
