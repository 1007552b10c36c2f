#include "events/mark_clicks.h"

#include <algorithm>
#include <vector>

#include "text/edit_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class MarkClicks : public EditTest {
  protected:
    using Region = std::vector<toolkit::Color>;
    /// What the card shows in a mark's rectangle.
    [[nodiscard]] Region shownAt(int mark) const {
        const toolkit::Label& label = form.AMark[mark];
        const auto card = grabCard();
        Region region;
        for (int y = 0; y < static_cast<int>(label.Height / pixel); ++y) {
            for (int x = 0; x < static_cast<int>(label.Width / pixel); ++x) {
                region.push_back(card.pixel(static_cast<int>(label.Left / pixel) + x,
                                            static_cast<int>(label.Top / pixel) + y)
                                     .value());
            }
        }
        return region;
    }
    /// Shows the help page in a corner, so that the fields can still be clicked.
    void showSmallHelp() {
        typeKey(toolkit::key::f1);
        ASSERT_TRUE(form.THelp.Visible);
        form.THelp.Move(700 * pixel, 700 * pixel, 50 * pixel, 50 * pixel);
    }
};

TEST_F(MarkClicks, CheckMarkShowsInItsColourAndIsGoneAfterTheSecondClick) {
    startSmall();
    const toolkit::Color colors[] = {toolkit::rgb(0, 0, 0), toolkit::rgb(195, 17, 25),
                                     toolkit::rgb(62, 153, 206)};
    for (const int mark : {1, 2, 3}) {
        const Region blank = shownAt(mark);
        const toolkit::Color color = colors[mark - 1];
        clickMark(mark);
        const Region set = shownAt(mark);
        EXPECT_GT(std::ranges::count(set, color), std::ranges::count(blank, color) + 20) << mark;
        clickMark(mark);
        EXPECT_EQ(shownAt(mark), blank) << mark;
    }
}

TEST_F(MarkClicks, ClearingKeepsThePlaceInTheStackAndModifiesTheCard) {
    startSmall();
    form.AMark[1].Visible = true;
    const int stack = form.AMark[1].Stack;
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_EQ(form.AMark[1].Stack, stack);
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.TabActive);
    EXPECT_EQ(form.TabCode, 1001);
    EXPECT_TRUE(hasPlatformFocus(form.P1));
    EXPECT_TRUE(traced("AMark_MouseDown 1"));
    EXPECT_TRUE(traced("Amark_Click (1)"));
}

TEST_F(MarkClicks, SetAndClearedAgainTheCardStaysModified) {
    startSmall();
    clickMark(1);
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(MarkClicks, PlaceIsTracedOnlyWhileTracing) {
    startSmall();
    form.AMark[1].Move(1500, 1500, 300, 375);
    form.AMark[1].Visible = true;
    click(1605, 1695);
    const std::string line =
        "  AMark_Click AMark(1)1500, 1500, 300, 375; Cursor: " + std::to_string(form.TabCursorX) +
        ", " + std::to_string(form.TabCursorY) + ", 1001";
    EXPECT_FALSE(traced(line));
    form.AMark[1].Visible = true;
    form.TraceOn = true;
    click(1605, 1695);
    form.TraceOn = false;
    EXPECT_TRUE(traced(line));
}

TEST_F(MarkClicks, RightClickOnASetMarkOnlyStoresTheButton) {
    startSmall();
    form.AMark[1].Move(1500, 1500, 300, 375);
    form.AMark[1].Visible = true;
    clickMark(1, toolkit::button::right);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.LastButton, 2);
    EXPECT_FALSE(form.CardModified);
    EXPECT_FALSE(form.TabActive);
    EXPECT_EQ(form.MCoord.Caption, "1: (1500,1500) - (1800,1875)  [300*375]");
}

TEST_F(MarkClicks, DesignModeReadsOutTheMarkInsteadOfClearingIt) {
    startSmall();
    form.AMark[2].Move(3000, 1500, 300, 375);
    form.AMark[2].Visible = true;
    form.MShowShapes.Checked = true;
    clickMark(2);
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_EQ(form.MCoord.Caption, "2: (3000,1500) - (3300,1875)  [300*375]");
}

TEST_F(MarkClicks, FirstClickOnTheCardOnlyClosesTheHelp) {
    startSmall();
    showSmallHelp();
    clickMark(1);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(form.MarkHitPending);
    EXPECT_TRUE(form.P1.Enabled);
    EXPECT_TRUE(hasPlatformFocus(form.P1));
    clickMark(1);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(MarkClicks, FirstClickOnASetMarkOnlyClosesTheHelp) {
    startSmall();
    form.AMark[1].Visible = true;
    showSmallHelp();
    clickMark(1);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(MarkClicks, FirstClickOnATextOnlyClosesTheHelpAndIsForgotten) {
    startSmall();
    showSmallHelp();
    clickText(1, toolkit::button::right);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.ClickIndex, 0);
    EXPECT_EQ(popups, 0);
    EXPECT_TRUE(hasPlatformFocus(form.P1));
}

TEST_F(MarkClicks, MarkThatDoesNotExistIsTraced) {
    startSmall();
    announceError("Error in");
    toolkit::MouseArguments press{1, 0, 0, 0};
    AMark_MouseDown(form, 99, press);
    AMark_Click(form, 99);
    EXPECT_TRUE(traced("Error in AMark_Click: #340, Control array element '99' doesn't exist"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(MarkClicks, SymbolWithoutAFieldIsTraced) {
    startSmall();
    announceError("Error in");
    form.SText.Load(1).Tag = "north";
    SText_Click(form, 1);
    EXPECT_TRUE(traced("SText_Click 1"));
    EXPECT_TRUE(traced("Error in SText_Click: #13, Type mismatch"));
    form.SText[1].Tag = "99999";
    SText_Click(form, 1);
    EXPECT_TRUE(traced("Error in SText_Click: #6, Overflow"));
    SText_Click(form, 5);
    EXPECT_TRUE(traced("Error in SText_Click: #340, Control array element '5' doesn't exist"));
}

} // namespace
} // namespace zev::test
