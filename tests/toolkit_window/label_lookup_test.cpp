// Which label is under the pointer.
#include "fixture.h"
#include "toolkit/testing/test_mouse.h"

namespace window_test {
namespace {

using namespace toolkit;

class LabelLookup : public WindowTest {
  protected:
    /// Who gets the press: "mark1", "text2", "card"; empty for no one.
    std::string at(int x, int y) {
        log.clear();
        test::pressMouse(px(x), px(y));
        std::string found;
        for (const std::string& line : log)
            if (const std::size_t end = line.find(".MouseDown"); end != std::string::npos)
                found = line.substr(0, end);
        test::releaseMouse(px(x), px(y));
        return found;
    }
};

TEST_F(LabelLookup, LeftAndTopEdgeBelongToTheLabelRightAndBottomDoNot) {
    place(marks[1], 50, 60, 20, 10);
    EXPECT_EQ(at(50, 60), "mark1");
    EXPECT_EQ(at(69, 69), "mark1");
    EXPECT_EQ(at(49, 60), "card");
    EXPECT_EQ(at(50, 59), "card");
    EXPECT_EQ(at(70, 65), "card");
    EXPECT_EQ(at(60, 70), "card");
}

TEST_F(LabelLookup, EdgesAreRoundedToTheNearestPixelEachByItself) {
    marks[1].Visible = true;
    // 50.4 to 70.6 pixels across, 60.6 to 70.4 down.
    const float tenth = px(1) / 10;
    marks[1].Move(px(50) + 4 * tenth, px(60) + 6 * tenth, px(20) + 2 * tenth, px(10) - 2 * tenth);
    EXPECT_EQ(at(50, 61), "mark1");
    EXPECT_EQ(at(70, 69), "mark1");
    EXPECT_EQ(at(71, 65), "card");
    EXPECT_EQ(at(60, 60), "card");
    EXPECT_EQ(at(60, 70), "card");
}

TEST_F(LabelLookup, HigherInTheStackWins) {
    place(marks[1], 50, 60, 20, 20, 5);
    place(marks[2], 60, 60, 20, 20, 4);
    place(texts[1], 65, 60, 20, 20, 6);
    EXPECT_EQ(at(62, 65), "mark1");
    EXPECT_EQ(at(67, 65), "text1");
    EXPECT_EQ(at(52, 65), "mark1");
    marks[2].Stack = 7;
    EXPECT_EQ(at(67, 65), "mark2");
}

TEST_F(LabelLookup, AmongEqualsTheLaterGroupAndTheHigherIndexWin) {
    place(marks[1], 50, 60, 20, 20);
    place(marks[2], 50, 60, 20, 20);
    EXPECT_EQ(at(55, 65), "mark2");
    place(texts[1], 50, 60, 20, 20);
    EXPECT_EQ(at(55, 65), "text1");
}

TEST_F(LabelLookup, HiddenLabelLetsThePressThrough) {
    place(marks[1], 50, 60, 20, 20);
    marks[1].Visible = false;
    EXPECT_EQ(at(55, 65), "card");
}

TEST_F(LabelLookup, LabelPartlyOutsideTheCardIsHitOnTheCard) {
    place(marks[1], -10, -10, 20, 20);
    EXPECT_EQ(at(0, 0), "mark1");
    EXPECT_EQ(at(9, 9), "mark1");
    EXPECT_EQ(at(10, 9), "card");
}

TEST_F(LabelLookup, EditBoxLiesOverTheLabels) {
    place(texts[1], 20, 20, 120, 20, 1000);
    openBox("abc");
    EXPECT_EQ(at(30, 30), "box");
    box.Visible = false;
    EXPECT_EQ(at(30, 30), "text1");
}

TEST_F(LabelLookup, ListLiesOverTheCard) {
    list.Move(px(100), px(100), px(80), px(80));
    list.List = {"one"};
    list.Visible = true;
    // The card lies at 10, 10 of the form.
    EXPECT_EQ(at(100, 100), "list");
    EXPECT_EQ(at(85, 100), "card");
}

} // namespace
} // namespace window_test
