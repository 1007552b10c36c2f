#include "events/edit_keys.h"
#include "text/edit_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

/// Rows of the pop-up menu.
constexpr std::size_t boldRow = 2;
constexpr std::size_t leftRow = 4;

class EditMenu : public EditTest {
  protected:
    void chooseInPopup(std::size_t row) {
        answerPopup([row](std::span<const toolkit::PopupRow> rows) { rows[row].Click(); });
    }
};

TEST_F(EditMenu, RightClickOnAClosedFieldOpensItAndTheMenu) {
    startSmall();
    bool open = false;
    answerPopup([&](auto) { open = form.CText.Visible; });
    clickText(1, toolkit::button::right);
    EXPECT_EQ(popups, 1);
    EXPECT_TRUE(open);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    EXPECT_EQ(form.ClickIndex, 0);
}

TEST_F(EditMenu, LeftClickOpensNoMenu) {
    startSmall();
    clickText(1);
    clickText(1);
    EXPECT_EQ(popups, 0);
    EXPECT_TRUE(traced("CText_MouseDown 1"));
}

TEST_F(EditMenu, RowsAreAsWritten) {
    startSmall();
    std::vector<std::string> shown;
    answerPopup([&](std::span<const toolkit::PopupRow> rows) {
        for (const auto& row : rows) {
            shown.push_back(row.item == nullptr ? "-" : row.item->Caption + "|" + row.shortcut);
        }
    });
    clickText(1, toolkit::button::right);
    const std::vector<std::string> written{
        "&Undo|Ctrl+Z",     "-", "Boldface|Ctrl+B", "Italicize|Ctrl+I", "Left-Justify|Ctrl+L",
        "Highlight|Ctrl+G", "-", "Copy|Ctrl+C",     "Paste|Ctrl+V"};
    EXPECT_EQ(shown, written);
}

TEST_F(EditMenu, RightClickInTheOpenBoxOpensTheMenuAndKeepsTheCaret) {
    startSmall();
    clickText(1);
    typeText("North");
    typeKey(toolkit::key::left);
    const auto point = middleOf(form.AText[1]);
    click(point.x, point.y, toolkit::button::right, toolkit::shift::shift);
    EXPECT_EQ(popups, 1);
    EXPECT_EQ(form.CText.SelStart, 4);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    EXPECT_EQ(shownText(form.CText), "North");
}

TEST_F(EditMenu, PressIsTracedWithoutItsShift) {
    startSmall();
    toolkit::MouseArguments press{toolkit::button::right, toolkit::shift::shift, 30, 45};
    clickText(1);
    CText_MouseDown(form, press);
    EXPECT_TRUE(traced("CText_MouseDown 2"));
    EXPECT_TRUE(traced("xText_MouseDown ix=1 B=2 S=0 X=30 Y=45"));
}

TEST_F(EditMenu, StyleFromTheMenuLeavesTheFieldOpenWithTheSameWayBack) {
    startSmall();
    clickText(1);
    typeText("North");
    const auto point = middleOf(form.AText[1]);
    chooseInPopup(boldRow);
    click(point.x, point.y, toolkit::button::right);
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_TRUE(hasPlatformFocus(form.CText));
    EXPECT_EQ(form.AText[1].Tag, "North");
    EXPECT_EQ(form.UText.Text, "");
    EXPECT_TRUE(form.mpopUndo.Enabled);
    EXPECT_TRUE(traced("mpopBold_Click"));
}

TEST_F(EditMenu, JustifyingFromTheMenuShowsTheOtherBoxWithTheCaretWhereItWas) {
    startSmall();
    clickText(1);
    typeText("North");
    typeKey(toolkit::key::left);
    const auto point = middleOf(form.AText[1]);
    chooseInPopup(leftRow);
    click(point.x, point.y, toolkit::button::right);
    EXPECT_TRUE(form.LText.Visible);
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_TRUE(hasPlatformFocus(form.LText));
    EXPECT_EQ(shownText(form.LText), "North");
    EXPECT_EQ(form.LText.SelStart, 4);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
}

TEST_F(EditMenu, JustifyingAClosedFieldFromTheMenuLeavesOneBoxOpen) {
    startSmall();
    enter(1, "North");
    chooseInPopup(leftRow);
    clickText(1, toolkit::button::right);
    EXPECT_TRUE(form.LText.Visible);
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(shownText(form.LText), "North");
    EXPECT_EQ(form.LText.Height, form.AText[1].Height - 3 * pixel);
    EXPECT_FALSE(form.OpeningField);
}

} // namespace
} // namespace zev::test
