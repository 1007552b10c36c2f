#include "design/field_colors.h"

#include "design/design_test.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::button::right;
using Rows = std::span<const toolkit::PopupRow>;

class FieldColors : public DesignTest {
  protected:
    /// Right-clicks the label; an X for each row of its menu that is checked. With a row chosen the
    /// menu recolours.
    std::string menuOf(const toolkit::Label& label, int chosen = -1) {
        std::string checks;
        answerPopup([&](Rows rows) {
            for (const auto& row : rows) checks += row.item->Checked ? 'X' : '.';
            if (chosen >= 0) rows[static_cast<std::size_t>(chosen)].Click();
        });
        const CardPoint at = middleOf(label);
        click(at.x, at.y, right);
        return checks;
    }
};

TEST_F(FieldColors, TheMenuOffersThreeColours) {
    design();
    std::string captions;
    answerPopup([&](Rows rows) {
        for (const auto& row : rows) captions += row.item->Caption + ",";
    });
    clickMark(1, right);
    EXPECT_EQ(captions, "Black,Red,Blue,");
    EXPECT_EQ(form.PopupIndex, 1);
    EXPECT_EQ(form.PopupKind, 1);
}

TEST_F(FieldColors, ThePresentColourIsChecked) {
    design();
    EXPECT_EQ(menuOf(form.AMark[1]), "X..");
    EXPECT_EQ(menuOf(form.AMark[2]), ".X.");
    EXPECT_EQ(menuOf(form.AMark[3]), "..X");
    EXPECT_EQ(menuOf(form.AText[2]), "X..");
    EXPECT_EQ(form.PopupIndex, 2);
    EXPECT_EQ(form.PopupKind, 2);
}

TEST_F(FieldColors, AColourNotAmongTheThreeLeavesAllUnchecked) {
    design();
    // A new field's red is brighter than the layout's.
    choose("Design>Red");
    addField();
    ASSERT_EQ(form.AMark.UBound(), 5);
    EXPECT_EQ(menuOf(form.AMark[5]), "...");
    EXPECT_EQ(form.PopupIndex, 5);
    EXPECT_EQ(menuOf(form.AMark[2]), ".X.");
    EXPECT_EQ(menuOf(form.AMark[5]), "...");
}

TEST_F(FieldColors, AChosenColourIsTheFieldsOwn) {
    design();
    menuOf(form.AMark[1], 1);
    EXPECT_EQ(form.AMark[1].ForeColor, form.ColorRed);
    EXPECT_EQ(form.MarkColors.at(1), form.ColorRed);
    EXPECT_FALSE(form.DesignDirty);
    menuOf(form.AText[3], 2);
    EXPECT_EQ(form.AText[3].ForeColor, form.ColorBlue);
    EXPECT_EQ(form.TextColors.at(3), form.ColorBlue);
    menuOf(form.AMark[3], 0);
    EXPECT_EQ(form.AMark[3].ForeColor, form.ColorBlack);
    EXPECT_TRUE(traced("mpopDesignColor_Click"));
    EXPECT_EQ(menuOf(form.AMark[1]), ".X.");
}

TEST_F(FieldColors, AColourAloneIsNoChangeOfTheDesign) {
    design();
    menuOf(form.AMark[1], 1);
    EXPECT_FALSE(form.DesignDirty);
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark[1].ForeColor, form.ColorRed);
    form.PopupKind = 2;
    form.PopupIndex = 3;
    mpopDesignColor_Click(form, 3);
    EXPECT_EQ(form.AText[3].ForeColor, form.ColorBlue);
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(FieldColors, AColourIsSavedWithTheDesign) {
    design();
    menuOf(form.AMark[1], 1);
    choose("Design>Save Design");
    EXPECT_EQ(form.AMark[1].ForeColor, form.ColorRed);
    EXPECT_NE(dataFileContent("Definitions.Ini").find(",2,2,252,0\r\n2,200"), std::string::npos);
}

TEST_F(FieldColors, TheRightButtonDragsNothing) {
    design();
    const float before = form.AMark[2].Left;
    dragLabel(form.AMark[2], 10, 10, right);
    EXPECT_EQ(form.AMark[2].Left, before);
    EXPECT_EQ(popups, 1);
    EXPECT_EQ(form.AMark.UBound(), 4);
}

TEST_F(FieldColors, AFailureIsTraced) {
    design();
    announceError("Error in mpopDesignColor_Click: #");
    form.PopupIndex = 9;
    form.PopupKind = 1;
    mpopDesignColor_Click(form, 1);
    EXPECT_TRUE(traced("Error in mpopDesignColor_Click: #340, Control array element '9' doesn't "
                       "exist"));
}

} // namespace
} // namespace zev::test
