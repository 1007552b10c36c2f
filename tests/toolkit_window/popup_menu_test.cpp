// Pop-up menus on the screen.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_boxes.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"
#include "toolkit/window/popup_menu.h"

namespace window_test {
namespace {

using namespace toolkit;

class PopupMenu : public WindowTest {};

TEST_F(PopupMenu, PopupRunsTheChosenRow) {
    MenuItem bold{.Caption = "Boldface"};
    MenuItem italic{.Caption = "Italicize"};
    const std::vector<PopupRow> rows{
        {.item = &bold, .Click = [this] { note("bold"); }},
        {},
        {.item = &italic, .shortcut = "Ctrl+I", .Click = [this] { note("italic"); }}};
    test::chooseInNextPopup(2);
    popupMenu(rows);
    EXPECT_EQ(log, (Log{"italic"}));
}

TEST_F(PopupMenu, OpensAtThePointerOnWhicheverScreenTheFormLies) {
    MenuItem bold{.Caption = "Boldface"};
    const std::vector<PopupRow> rows{{.item = &bold}};
    for (const bool isOnSecondScreen : {false, true}) {
        if (isOnSecondScreen) test::shiftWindow(850, 90);
        test::moveMouse(px(30), px(40));
        test::ScreenArea place;
        test::chooseInNextPopup(0, place);
        popupMenu(rows);
        const int originX = isOnSecondScreen ? 800 : 0;
        const int originY = isOnSecondScreen ? 100 : 0;
        EXPECT_EQ(place.left, originX + cursorPosition().x);
        EXPECT_EQ(place.top, originY + cursorPosition().y);
    }
}

TEST_F(PopupMenu, AScreenReaderKnowsAndChoosesItsRows) {
    MenuItem bold{.Caption = "&Boldface && more", .Checked = true};
    MenuItem italic{.Caption = "Italicize", .Enabled = false};
    const std::vector<PopupRow> rows{
        {.item = &bold, .shortcut = "Ctrl+B", .Click = [this] { note("bold"); }},
        {.item = &italic, .Click = [this] { note("italic"); }}};
    test::readNextBox([] {
        EXPECT_EQ(test::accessiblePart("Text").role, "menu");
        EXPECT_EQ(test::accessiblePart("Boldface & more").role, "menu row");
        EXPECT_TRUE(test::accessiblePart("Boldface & more").isChecked);
        EXPECT_FALSE(test::press("Italicize"));
        // It hangs below the form, where a reader looks for it.
        EXPECT_TRUE(test::pressInWindow("Boldface & more"));
    });
    popupMenu(rows, "Text");
    EXPECT_EQ(log, Log{"bold"});
}

TEST_F(PopupMenu, OfAListOpensBelowItsCurrentRowWhereverThePointerIs) {
    MenuItem bold{.Caption = "Boldface"};
    const std::vector<PopupRow> rows{{.item = &bold, .Click = [this] { note("bold"); }}};
    list.Move(px(100), px(100), px(200), px(100));
    list.List = std::vector<std::string>(20, "row");
    list.Visible = true;
    std::vector<test::ScreenArea> places;
    for (const int row : {0, 1, 15}) {
        test::moveMouse(px(500), px(30));
        list.ListIndex = row;
        test::ScreenArea place;
        test::chooseInNextPopup(0, place);
        popupMenu(rows, "Row", list);
        places.push_back(place);
    }
    EXPECT_EQ(times("bold"), 3);
    // In pixels of the form's inside.
    const int left = toolkit::pixelsFromTwips(form.Left + form.FrameWidth) + 100;
    const int top = toolkit::pixelsFromTwips(form.Top + form.FrameHeight) + 100;
    const int height = places[1].top - places[0].top;
    EXPECT_GT(height, 8);
    EXPECT_NEAR(places[0].top, top + height, 3);
    // Rows out of sight are scrolled in.
    EXPECT_GT(places[2].top, top + height);
    EXPECT_LE(places[2].top, top + 102);
    for (const auto& place : places) {
        EXPECT_GT(place.left, left);
        EXPECT_LT(place.left, left + 50);
    }
}

} // namespace
} // namespace window_test
