// What a screen reader gets of a list.
#include "list_fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/window/dialog.h"

namespace window_test {
namespace {

using namespace toolkit;

class AccessibleList : public ListTest {
  protected:
    AccessibleList() {
        list.AccessibleName = "Cards";
        list.IsLink = [](int row) { return row == 1; };
    }

    static std::vector<std::string> namesOfRows() {
        std::vector<std::string> names;
        for (const auto& row : test::accessiblePartsOf("Cards")) names.push_back(row.name);
        return names;
    }
};

TEST_F(AccessibleList, HasItsRowsAndNothingElse) {
    openList({"one", "two & more", "caf\xe9"});
    EXPECT_EQ(test::accessiblePart("Cards").role, "list");
    EXPECT_EQ(namesOfRows(), (Log{"one", "two & more", "caf\u00e9"}));
    list.List = {"other"};
    window->update();
    EXPECT_EQ(namesOfRows(), Log{"other"});
    list.List = {};
    window->update();
    EXPECT_EQ(namesOfRows(), Log{});
}

TEST_F(AccessibleList, IsTheSameWhereSomebodyListensFromTheStart) {
    const test::ScreenReader reader;
    open();
    openList({"one", "two", "three"});
    EXPECT_EQ(test::accessiblePart("two").role, "link");
}

TEST_F(AccessibleList, TellsWhichRowIsALink) {
    openList({"one", "two", "three"});
    EXPECT_EQ(test::accessiblePart("one").role, "row");
    EXPECT_EQ(test::accessiblePart("two").role, "link");
    list.IsLink = {};
    EXPECT_EQ(test::accessiblePart("two").role, "row");
}

TEST_F(AccessibleList, ARowIsPressedAsByAClick) {
    openList({"one", "two", "three"});
    EXPECT_FALSE(test::accessiblePart("three").isSelected);
    EXPECT_TRUE(test::press("three"));
    EXPECT_EQ(log, (Log{"list.GotFocus", "list.Click"}));
    EXPECT_EQ(list.ListIndex, 2);
    EXPECT_TRUE(test::accessiblePart("three").isSelected);
    EXPECT_TRUE(test::accessiblePart("three").isFocused);
    EXPECT_FALSE(test::accessiblePart("one").isSelected);
}

TEST_F(AccessibleList, ARowLiesWhereItIsSeen) {
    openList({"one", "two", "three"});
    EXPECT_EQ(test::accessiblePartAt("two"), "two");
    // At 90, 90 of the card, inside a frame of a pixel.
    EXPECT_NEAR(test::accessiblePart("one").corner.x, px(91), px(1));
    EXPECT_NEAR(test::accessiblePart("one").corner.y, px(91), px(1));
    EXPECT_TRUE(test::accessiblePart("one").isShown);
    EXPECT_FALSE(test::accessiblePart("one").isOffscreen);
}

TEST_F(AccessibleList, ARowOutOfSightIsOffScreen) {
    openList({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14"});
    EXPECT_TRUE(test::accessiblePart("14").isOffscreen);
    list.TopIndex = 13;
    window->update();
    EXPECT_FALSE(test::accessiblePart("14").isOffscreen);
    EXPECT_TRUE(test::accessiblePart("1").isOffscreen);
}

TEST_F(AccessibleList, ItsCurrentRowIsToldWithTheFocus) {
    openList({"one", "two", "three"});
    list.ListIndex = 1;
    const test::ScreenReader reader;
    form.SetFocus(list);
    window->update();
    test::settle();
    EXPECT_EQ(reader.all().back(), "Focus two");
}

TEST_F(AccessibleList, OtherRowsAreTold) {
    openList({"one", "two", "three"});
    const test::ScreenReader reader;
    list.List = {"four"};
    window->update();
    EXPECT_TRUE(reader.heard("Order Cards"));
}

TEST_F(AccessibleList, IsOutOfReachBelowABoxAndWhileItIsHidden) {
    openList({"one", "two"});
    test::readNextBox([this] {
        EXPECT_EQ(list.ListIndex, -1);
        test::pressInWindow("two");
        EXPECT_EQ(list.ListIndex, -1);
        test::press("OK");
    });
    tell("Done", Icon::Information);
    list.Visible = false;
    window->update();
    EXPECT_FALSE(test::accessiblePart("two").isShown);
    EXPECT_TRUE(test::press("two"));
    EXPECT_EQ(list.ListIndex, -1);
    EXPECT_EQ(times("list.Click"), 0);
}

} // namespace
} // namespace window_test
