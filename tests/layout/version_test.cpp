#include "layout/version.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(Version, ComparesByteByByteNotByNumber) {
    EXPECT_FALSE(isBelow("1.0.99", switchesVersion));
    EXPECT_TRUE(isBelow("1.0.180", switchesVersion));
    EXPECT_TRUE(isBelow("1.0.1000", switchesVersion));
    EXPECT_FALSE(isBelow("2.0.0", switchesVersion));
}

TEST(Version, IsNotBelowItself) { EXPECT_FALSE(isBelow("1.0.181", switchesVersion)); }

TEST(Version, EmptyIsBelowEverything) { EXPECT_TRUE(isBelow("", switchesVersion)); }

TEST(Version, BytesCompareUnsigned) {
    EXPECT_FALSE(isBelow("\xE9", "z"));
    EXPECT_TRUE(isBelow("z", "\xE9"));
}

TEST(VersionText, JoinsTheNumbersWithDots) {
    EXPECT_EQ(versionText(1, 0, "181"), "1.0.181");
    EXPECT_EQ(versionText(2, 0, "0"), "2.0.0");
}

TEST(VersionText, BracketsTheLastTwoOfFourCharacters) {
    EXPECT_EQ(versionText(1, 0, "1812"), "1.0.18(12)");
    EXPECT_EQ(versionText(1, 0, "18123"), "1.0.18123");
}

TEST(ComparedVersion, IsTheFirstTwoNumbers) {
    EXPECT_EQ(comparedVersion("' Program version: 1.0.181\r\n15,19200\r\n"), "1.0");
    EXPECT_EQ(comparedVersion("' Program version: 1.0.200\r\n"), "1.0");
    EXPECT_EQ(comparedVersion("' Program version: 10.21.3.4\r\n"), "10.21");
}

TEST(ComparedVersion, WithFewerThanTwoDotsStaysWhole) {
    EXPECT_EQ(comparedVersion("' Program version: 3.1\r\n"), "3.1");
    EXPECT_EQ(comparedVersion("' Program version: 3 beta\r\n"), "3 beta");
}

TEST(ComparedVersion, IsFoundInAnyCase) {
    EXPECT_EQ(comparedVersion("x\r\n' PROGRAM Version: 4.2.9\r\n"), "4.2");
}

TEST(ComparedVersion, IsEmptyWithoutAVersionLine) {
    EXPECT_EQ(comparedVersion("15,19200\r\n"), "");
    EXPECT_EQ(comparedVersion(""), "");
}

TEST(ComparedVersion, IsNoneWithoutACarriageReturnBehindIt) {
    EXPECT_EQ(comparedVersion("' Program version: 1.0.181"), std::nullopt);
    EXPECT_EQ(comparedVersion("'\r\n' Program version: 1.0.181\n15,19200\n"), std::nullopt);
    EXPECT_EQ(comparedVersion("' Program version:"), std::nullopt);
}

TEST(ComparedVersion, BeginsTwoCharactersBehindTheColon) {
    EXPECT_EQ(comparedVersion("' Program version:1.0.181\r\n"), ".0");
}

} // namespace
} // namespace zev
