// Pop-up menus on the screen.
#include "fixture.h"
#include "toolkit/testing/test_boxes.h"
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

} // namespace
} // namespace window_test
