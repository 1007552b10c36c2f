#include "toolkit/base/twips.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

class Twips : public testing::Test {
  protected:
    ~Twips() override { overrideTwipsPerPixel(0); }
};

TEST_F(Twips, AreRoundedToPixelsHalvesToEven) {
    overrideTwipsPerPixel(10);
    EXPECT_EQ(pixelsFromTwips(14), 1);
    EXPECT_EQ(pixelsFromTwips(15), 2);
    EXPECT_EQ(pixelsFromTwips(25), 2);
    EXPECT_EQ(pixelsFromTwips(-15), -2);
    EXPECT_EQ(pixelsFromTwips(-25), -2);
    EXPECT_EQ(pixelsFromTwips(-14), -1);
}

TEST_F(Twips, AreThoseOfTheScreenUnlessOverridden) {
    const int real = twipsPerPixel();
    EXPECT_GT(real, 0);
    overrideTwipsPerPixel(real + 1);
    EXPECT_EQ(twipsPerPixel(), real + 1);
    overrideTwipsPerPixel(0);
    EXPECT_EQ(twipsPerPixel(), real);
}

} // namespace
} // namespace toolkit
