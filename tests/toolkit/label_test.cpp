#include "toolkit/model/label.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(Label, ADoubledAmpersandPaintsOne) { EXPECT_EQ(paintedText("a&&b"), "a&b"); }

TEST(Label, ASingleAmpersandPaintsNothing) {
    EXPECT_EQ(paintedText("a&b"), "ab");
    EXPECT_EQ(paintedText("ab&"), "ab");
    EXPECT_EQ(paintedText("&"), "");
}

TEST(Label, AmpersandsPairFromTheLeft) {
    EXPECT_EQ(paintedText("&&&x"), "&x");
    EXPECT_EQ(paintedText("&&&&"), "&&");
}

TEST(Label, TextWithoutAmpersandIsPaintedAsItIs) { EXPECT_EQ(paintedText("1\xA0NT"), "1\xA0NT"); }

} // namespace
} // namespace toolkit
