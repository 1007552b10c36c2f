#include "support/form_test.h"

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

} // namespace
} // namespace zev::test
