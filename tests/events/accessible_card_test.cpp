#include "app/layouts.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

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

TEST_F(AccessibleCard, TheOpenTextHasItsFieldsName) {
    start();
    const toolkit::test::ScreenReader reader;
    clickText(2);
    EXPECT_EQ(toolkit::test::accessibleFocus(), "General approach, description");
    toolkit::test::typeKey(toolkit::key::escape);
    clickText(4);
    EXPECT_EQ(toolkit::test::accessibleFocus(), "Notrump opening bids, 1 notrump, lowest points");
}

TEST_F(AccessibleCard, NoFieldLabelOrRowIsMadeWhileNobodyListens) {
    start();
    const unsigned before = toolkit::test::partsMade();
    clickMark(12);
    toolkit::test::typeKey(toolkit::key::tab);
    clickText(2);
    toolkit::test::typeText("abc");
    toolkit::test::typeKey(toolkit::key::escape);
    toolkit::test::typeKey(toolkit::key::f1);
    toolkit::test::typeKey(toolkit::key::escape);
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    toolkit::test::typeKey(toolkit::key::escape);
    EXPECT_TRUE(toolkit::test::chooseMenu("View>Zoom In (Bigger)                   Ctrl +"));
    answerChooser([] { toolkit::test::typeKey(toolkit::key::escape); });
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Save As..."));
    constexpr unsigned widgets = 60;
    EXPECT_LT(toolkit::test::partsMade() - before, widgets);
    static_cast<void>(toolkit::test::accessibleFields());
    EXPECT_GT(toolkit::test::partsMade() - before, 400U);
}

} // namespace
} // namespace zev::test
