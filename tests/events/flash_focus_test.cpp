#include "events/flash_focus.h"

#include "text/edit_test.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
namespace key = toolkit::key;

class FlashFocusTest : public EditTest {};

TEST_F(FlashFocusTest, FlashIsOverWhenTheFieldIsOpenAndTheCursorIsAtItsCorner) {
    startSmall();
    clickText(1);
    typeKey(key::tab);
    const toolkit::Label& label = form.AText[2];
    EXPECT_EQ(label.BackColor, toolkit::white);
    EXPECT_EQ(label.BackStyle, toolkit::BackStyle::Transparent);
    const float x = form.FrameWidth + form.Left + form.P1.Left + label.Left;
    const float y = form.FrameHeight + form.Top + form.P1.Top + label.Top;
    EXPECT_EQ(toolkit::cursorPosition().x, toolkit::pixelsFromTwips(x));
    EXPECT_EQ(toolkit::cursorPosition().y, toolkit::pixelsFromTwips(y));
    EXPECT_TRUE(traced("FlashFocus 2"));
    EXPECT_TRUE(traced("CheckOnScreen 2"));
}

TEST_F(FlashFocusTest, FieldFlashesPaleYellow) {
    startSmall();
    int flashes = 0;
    duringWait = [&](int milliseconds) {
        ++flashes;
        EXPECT_EQ(milliseconds, 100);
        EXPECT_EQ(form.AText[1].BackColor, toolkit::rgb(255, 255, 160));
        EXPECT_EQ(form.AText[1].BackStyle, toolkit::BackStyle::Opaque);
        EXPECT_EQ(grabCard().pixel(103, 303), toolkit::rgb(255, 255, 160));
    };
    form.TabActive = true;
    FlashFocus(form, 1);
    EXPECT_EQ(flashes, 1);
    EXPECT_FALSE(form.TabActive);
    EXPECT_EQ(form.AText[1].BackColor, toolkit::white);
}

TEST_F(FlashFocusTest, MarksBlinkInDesignModeOnlyAndComeBackAsTheyWere) {
    startSmall();
    clickMark(1);
    std::vector<bool> shown;
    duringWait = [&](int milliseconds) {
        EXPECT_EQ(milliseconds, 100);
        shown.push_back(form.AMark[1].Visible);
    };
    FlashFocus(form, 1001);
    EXPECT_TRUE(shown.empty());
    form.MShowShapes.Checked = true;
    FlashFocus(form, 1001);
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(FlashFocusTest, FieldThatGoesDuringItsFlashIsNotOpened) {
    startSmall();
    clickText(1);
    typeText("North");
    duringWait = [&](int) {
        form.AText.UnloadAbove(0);
        form.Highlight.UnloadAbove(0);
    };
    typeKey(key::tab);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_FALSE(isEditing());
}

TEST_F(FlashFocusTest, MarkThatGoesDuringItsBlinkIsLeftAlone) {
    startSmall();
    form.MShowShapes.Checked = true;
    duringWait = [&](int) { form.AMark.UnloadAbove(0); };
    FlashFocus(form, 1001);
    EXPECT_EQ(form.AMark.UBound(), 0);
}

TEST_F(FlashFocusTest, OfAFieldThatDoesNotExistIsTraced) {
    startSmall();
    announceError("Error in");
    FlashFocus(form, 99);
    EXPECT_TRUE(traced("Error in FlashFocus: #340, Control array element '99' doesn't exist"));
    FlashFocus(form, 0);
    FlashFocus(form, -3);
    EXPECT_TRUE(traced("FlashFocus -3"));
}

} // namespace
} // namespace zev::test
