#include "app/layouts.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

constexpr std::string_view stayman = "Notrump opening bids, 2 clubs Stayman";

class AccessibleCard : public FormTest {};

TEST_F(AccessibleCard, HasASectionForEachOfThePrintedOnes) {
    start();
    const auto sections = toolkit::test::accessibleSections();
    EXPECT_EQ(sections.size(), 28U);
    for (const auto& section : sections) {
        EXPECT_EQ(section.role, "group");
        EXPECT_GT(section.width, 0) << section.name;
    }
    EXPECT_EQ(toolkit::test::accessibleFields().size(),
              static_cast<std::size_t>(form.AMark.UBound() + form.AText.UBound()));
}

TEST_F(AccessibleCard, FindsTheFieldUnderAPoint) {
    start();
    const toolkit::Label& mark = form.AMark[12];
    EXPECT_EQ(
        toolkit::test::accessibleFieldAt({mark.Left + mark.Width / 2, mark.Top + mark.Height / 2}),
        stayman);
}

TEST_F(AccessibleCard, TheWalkMovesTheFocusToTheMarkThatItComesTo) {
    start();
    EXPECT_EQ(toolkit::test::accessibleFocus(), "Convention card");
    clickMark(12);
    EXPECT_EQ(toolkit::test::accessibleFocus(), stayman);
    toolkit::test::typeKey(toolkit::key::tab);
    EXPECT_EQ(toolkit::test::accessibleFocus(), "Notrump opening bids, 2 clubs Puppet Stayman");
}

TEST_F(AccessibleCard, KnowsTheFieldsThatComeLater) {
    start();
    static_cast<void>(toolkit::test::accessibleSections());
    form.AMark.Load(form.AMark.UBound() + 1);
    form.AMark[form.AMark.UBound()].Width = 300;
    EXPECT_EQ(toolkit::test::accessibleSections().back().name, "Other fields");
    EXPECT_EQ(toolkit::test::accessibleField("Check box 272").role, "check box");
}

} // namespace
} // namespace zev::test
