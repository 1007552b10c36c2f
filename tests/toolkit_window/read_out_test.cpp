// A text at the end of the menu bar that is only read.
#include "fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class ReadOut : public WindowTest {
  protected:
    ReadOut() {
        file.Caption = "&File";
        places.Caption = "7: (7185,7418) - (7185,7418)  [123*456]";
        view.Caption = "&View";
        menu = {{.level = 0, .item = &file, .Click = [] {}},
                {.level = 0, .item = &view, .Click = [] {}},
                {.level = 0, .item = &places}};
    }
    MenuItem file;
    MenuItem view;
    MenuItem places;
};

TEST_F(ReadOut, StandsAtItsEndAndKeepsItsPlaceWhileItChanges) {
    const test::ShownReadOut before = test::shownReadOut();
    EXPECT_EQ(before.text, places.Caption);
    EXPECT_TRUE(before.isWhole);
    EXPECT_EQ(before.left + before.width, 640);
    places.Caption = "8 && 9";
    const test::ShownReadOut after = test::shownReadOut();
    EXPECT_EQ(after.text, "8 & 9");
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.width, before.width);
}

TEST_F(ReadOut, CantBeChosenAndGoesWithItsItem) {
    EXPECT_FALSE(test::chooseMenu("7: (7185,7418) - (7185,7418)  [123*456]"));
    places.Visible = false;
    EXPECT_EQ(test::shownReadOut().text, "");
}

TEST_F(ReadOut, StaysWholeBesideTheMenusOfANarrowBar) {
    for (const int wider : {-200, 150, -160}) {
        test::resizeWindow(wider, 0);
        EXPECT_TRUE(test::shownReadOut().isWhole) << wider;
    }
    file.Caption = "A menu that takes more of the bar";
    EXPECT_TRUE(test::shownReadOut().isWhole);
}

TEST_F(ReadOut, GivesWayWhereEvenTheMenusHaveNoRoom) {
    view.Caption = "A menu that takes more of the bar than there is left of it by now";
    test::resizeWindow(-450, 0);
    EXPECT_EQ(test::shownReadOut().width, 0);
    view.Caption = "&View";
    EXPECT_GT(test::shownReadOut().width, 0);
}

} // namespace
} // namespace window_test
