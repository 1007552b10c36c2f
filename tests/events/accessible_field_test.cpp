#include "app/layouts.h"
#include "support/form_test.h"
#include "toolkit/testing/test_accessible.h"

namespace zev::test {
namespace {

constexpr std::string_view oneNotrump = "Notrump opening bids, 1 notrump, lowest points";
constexpr std::string_view transfer = "Notrump opening bids, 2 diamonds transfer to hearts";

using toolkit::test::accessibleField;
using Actions = std::vector<std::string>;

class AccessibleField : public FormTest {};

TEST_F(AccessibleField, IsACheckBoxOrAText) {
    start();
    EXPECT_EQ(accessibleField(transfer).role, "check box");
    EXPECT_EQ(accessibleField(transfer).actions, (Actions{"Toggle", "Press"}));
    EXPECT_EQ(accessibleField(oneNotrump).role, "text");
    EXPECT_EQ(accessibleField(oneNotrump).actions, (Actions{"SetFocus", "Press"}));
}

TEST_F(AccessibleField, TellsWhetherItIsSet) {
    start();
    EXPECT_FALSE(accessibleField(transfer).isChecked);
    toolkit::test::act(transfer, "Toggle");
    EXPECT_TRUE(accessibleField(transfer).isChecked);
    EXPECT_TRUE(accessibleField(transfer).isFocused);
    EXPECT_TRUE(form.AMark[14].Visible);
    toolkit::test::act(transfer, "no such action");
    EXPECT_TRUE(accessibleField(transfer).isChecked);
}

TEST_F(AccessibleField, LiesWhereItsLabelLies) {
    start();
    const auto field = accessibleField(transfer);
    const toolkit::Label& label = form.AMark[14];
    EXPECT_NEAR(field.corner.x, label.Left, pixel);
    EXPECT_NEAR(field.corner.y, label.Top, pixel);
    EXPECT_NEAR(field.width, label.Width, pixel);
    EXPECT_NEAR(field.height, label.Height, pixel);
    EXPECT_FALSE(field.isOffscreen);
    form.P1.Move(-form.P1.Width, 0);
    EXPECT_TRUE(accessibleField(transfer).isOffscreen);
}

TEST_F(AccessibleField, ATextIsReadAndChangedInParts) {
    start();
    toolkit::test::replaceText(oneNotrump, 0, 0, "15");
    EXPECT_EQ(form.AText[4].Tag, "15");
    toolkit::test::replaceText(oneNotrump, 2, 2, "-17");
    EXPECT_EQ(accessibleField(oneNotrump).value, "15-17");
    EXPECT_EQ(toolkit::test::textOf(oneNotrump, 1, 3), "5-");
    EXPECT_EQ(toolkit::test::textOf(oneNotrump, 3, -1), "17");
    toolkit::test::replaceText(oneNotrump, 0, -1, "");
    EXPECT_EQ(form.AText[4].Tag, "");
}

TEST_F(AccessibleField, AnActionOpensAText) {
    start();
    toolkit::test::act(oneNotrump, "SetFocus");
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_EQ(form.TIndex, 4);
    EXPECT_TRUE(accessibleField(oneNotrump).isFocused);
}

} // namespace
} // namespace zev::test
