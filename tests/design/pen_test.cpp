#include "design/pen.h"

#include "support/form_test.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class Pen : public FormTest {
  protected:
    /// One letter for each checked item: size, colour, shape.
    [[nodiscard]] std::string checkedItems() const {
        std::string items;
        const std::pair<const toolkit::MenuItem*, char> all[] = {
            {&form.MSmall, 'S'}, {&form.MMedium, 'M'}, {&form.MLarge, 'L'},
            {&form.MBlack, 'k'}, {&form.MRed, 'r'},    {&form.MBlue, 'b'},
            {&form.MCheck, 'v'}, {&form.MCircle, 'o'}, {&form.MText, 't'}};
        for (const auto& [item, letter] : all) {
            if (item->Checked) items += letter;
        }
        return items;
    }
    void choose(const std::string& item) {
        EXPECT_TRUE(toolkit::test::chooseMenu("Design>" + item)) << item;
    }
};

TEST_F(Pen, BeginsSmallBlackAndAsACheckmark) {
    start();
    EXPECT_EQ(checkedItems(), "Skv");
    for (const char* line : {"MSmall_Click", "MBlack_Click", "MCheck_Click"}) {
        EXPECT_TRUE(traced(line)) << line;
    }
}

TEST_F(Pen, EachGroupHasOneCheckedItem) {
    start();
    form.MShapes.Visible = true;
    choose("Medium");
    EXPECT_EQ(checkedItems(), "Mkv");
    choose("Large");
    EXPECT_EQ(checkedItems(), "Lkv");
    choose("Red");
    EXPECT_EQ(checkedItems(), "Lrv");
    choose("Blue");
    EXPECT_EQ(checkedItems(), "Lbv");
    choose("Circle");
    EXPECT_EQ(checkedItems(), "Lbo");
    choose("Text");
    EXPECT_EQ(checkedItems(), "Lbt");
    choose("Small");
    choose("Black");
    choose("Checkmark");
    EXPECT_EQ(checkedItems(), "Skv");
}

TEST_F(Pen, AnItemThatIsCheckedStaysChecked) {
    start();
    form.MShapes.Visible = true;
    choose("Small");
    EXPECT_EQ(checkedItems(), "Skv");
}

} // namespace
} // namespace zev::test
