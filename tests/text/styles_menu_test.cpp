// The pop-up menu of an open field: styles, undo, copy and paste as the player chooses them.
#include "text/edit_test.h"
#include "text/styles.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

constexpr std::size_t undoRow = 0;
constexpr std::size_t boldRow = 2;
constexpr std::size_t italicRow = 3;
constexpr std::size_t highlightRow = 5;

class StylesMenu : public EditTest {
  protected:
    /// Right-clicks the field and chooses a row, if it can be chosen.
    bool chooseOf(int field, std::size_t row) {
        bool enabled = false;
        answerPopup([&](std::span<const toolkit::PopupRow> rows) {
            enabled = rows[row].item->Enabled;
            if (enabled) rows[row].Click();
        });
        clickText(field, toolkit::button::right);
        return enabled;
    }
};

TEST_F(StylesMenu, HighlightLeavesTheFieldOpenAndIsCheckedTheNextTime) {
    startSmall();
    enter(1, "North");
    EXPECT_TRUE(chooseOf(1, highlightRow));
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_TRUE(isEditing());
    EXPECT_LT(form.Highlight[1].Stack, form.AText[1].Stack);
    EXPECT_TRUE(form.mpopHilite.Checked);
    EXPECT_TRUE(chooseOf(1, highlightRow));
    EXPECT_FALSE(form.Highlight[1].Visible);
}

TEST_F(StylesMenu, ItalicsByMenuAreTheKeysOwnPath) {
    startSmall();
    enter(1, "North");
    EXPECT_TRUE(chooseOf(1, italicRow));
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_LT(traceIndex("mpopItalic_Click"), traceIndex("xText_KeyPress 9"));
    EXPECT_NE(traceIndex("mpopItalic_Click"), -1);
}

TEST_F(StylesMenu, CopyRightAfterOpeningLosesTheSuitsAndAfterAKeyDoesNot) {
    startSmall();
    enter(1, "4^h");
    EXPECT_TRUE(chooseOf(1, copyRow));
    EXPECT_EQ(form.ClipText, "4\xA0\xA0\xA0");
    typeKey(toolkit::key::left);
    EXPECT_TRUE(chooseOf(1, copyRow));
    EXPECT_EQ(form.ClipText, "4^h");
}

TEST_F(StylesMenu, PastedSuitsShowOnlyAfterTheCommit) {
    startSmall();
    enter(1, "^s");
    clickText(1);
    typeKey(toolkit::key::left);
    EXPECT_TRUE(chooseOf(1, copyRow));
    EXPECT_TRUE(chooseOf(2, pasteRow));
    EXPECT_TRUE(form.ShownSymbols.size() <= 2 || form.ShownSymbols[2].empty());
    typeKey(toolkit::key::escape);
    EXPECT_EQ(form.ShownSymbols.at(2).size(), 1U);
}

TEST_F(StylesMenu, UndoIsGreyUntilTheFirstChangeAndThenBringsAllBackButTheHighlight) {
    startSmall();
    enter(1, "North");
    EXPECT_FALSE(chooseOf(1, undoRow));
    EXPECT_TRUE(chooseOf(1, boldRow));
    EXPECT_TRUE(chooseOf(1, highlightRow));
    typeText("x");
    EXPECT_TRUE(chooseOf(1, undoRow));
    EXPECT_FALSE(form.AText[1].Font.Bold);
    EXPECT_EQ(shownText(form.CText), "North");
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_FALSE(chooseOf(1, undoRow));
    EXPECT_TRUE(form.CardModified);
}

TEST_F(StylesMenu, WithBoldfaceOnTheItemIsGreyAndChecked) {
    startSmall();
    EXPECT_TRUE(chooseMenu("Options>Boldface"));
    EXPECT_FALSE(chooseOf(1, boldRow));
    EXPECT_TRUE(form.mpopBold.Checked);
}

TEST_F(StylesMenu, StylesGoIntoTheCardFile) {
    startSmall();
    enter(1, "North");
    EXPECT_TRUE(chooseOf(1, boldRow));
    EXPECT_TRUE(chooseOf(1, italicRow));
    EXPECT_TRUE(chooseOf(1, highlightRow));
    answerName("Jones");
    EXPECT_TRUE(chooseMenu("File>Save"));
    EXPECT_NE(dataFileContent("Jones.zev").find("1,\"North\",11"), std::string::npos);
}

} // namespace
} // namespace zev::test
