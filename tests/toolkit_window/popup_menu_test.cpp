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
        test::PopupPlace place;
        test::chooseInNextPopup(0, place);
        popupMenu(rows);
        const int originX = isOnSecondScreen ? 800 : 0;
        const int originY = isOnSecondScreen ? 100 : 0;
        EXPECT_EQ(place.x, originX + cursorPosition().x);
        EXPECT_EQ(place.y, originY + cursorPosition().y);
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

} // namespace
} // namespace window_test
