#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

class Start : public FormTest {};

TEST_F(Start, ABlankCardStandsOnScreenWithAllFieldsOfTheLayout) {
    start();
    EXPECT_GT(form.AMark.UBound(), 200);
    EXPECT_GT(form.AText.UBound(), 90);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_TRUE(form.P1.Enabled);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
    EXPECT_FALSE(form.CardModified);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Start, AClickedMarkIsSetAndTheCardModified) {
    start();
    clickMark(1);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

/// On a screen with other dots per inch each start has the installed layout made for it.
class StartOnOtherScreens : public FormTest, public testing::WithParamInterface<int> {};

TEST_P(StartOnOtherScreens, TheInstalledLayoutFitsAndItsMarksCanBeClicked) {
    toolkit::overrideScreen({.twipsPerPixel = GetParam(), .width = 24000, .height = 24000});
    std::filesystem::remove(dataFile("Definitions.Ini"));
    start();
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1B");
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(form.OriginalTwips, GetParam());
    for (const int mark : {1, 50, 200}) {
        clickMark(mark);
        EXPECT_TRUE(form.AMark[mark].Visible) << mark;
    }
}

INSTANTIATE_TEST_SUITE_P(Twips, StartOnOtherScreens, testing::Values(12, 13, 15));

} // namespace
} // namespace zev::test
