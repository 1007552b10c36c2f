// Holes: fields without a record, which are only there so that the others keep their numbers.
#include "app/layouts.h"
#include "card/write_card.h"
#include "layout/field.h"
#include "layout/write_layout.h"
#include "text/edit_test.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
namespace key = toolkit::key;
namespace shift = toolkit::shift;

/// Marks 1 to 3 and texts 1 to 3, of which number 2 is a hole each. TAB goes from text 1 by text 2
/// to text 3, by mark 2 to mark 3 and back to text 1.
class Holes : public EditTest {
  protected:
    Holes() {
        writeLayout(replaced(replaced(wholeLayout(), "2,200,100,", "1,200,100,"), "2,100,400,",
                             "1,100,400,"));
    }
    static std::string wholeLayout() {
        return smallLayout({{100, 100, 0, 0, 1, 2}, {200, 100, 0, 0, 2, 2}, {300, 100, 0, 0, 3, 2}},
                           {{100, 300, 300, 0}, {100, 400, 300, 0}, {100, 500, 300, 0}},
                           "1,2\r\n2,3\r\n3,1002\r\n1002,1003\r\n1003,1\r\n", 1003);
    }
    static void choose(std::string_view item) { EXPECT_TRUE(chooseMenu(item)) << item; }
    static void pressDesignKey() { typeKey('D', shift::shift | shift::ctrl); }
};

TEST_F(Holes, AreNoFields) {
    start();
    ASSERT_EQ(form.AMark.UBound(), 3);
    ASSERT_EQ(form.AText.UBound(), 3);
    EXPECT_TRUE(isField(form.AMark[1]) && isField(form.AMark[3]));
    EXPECT_TRUE(isField(form.AText[1]) && isField(form.AText[3]));
    EXPECT_FALSE(isField(form.AMark[2]) || isField(form.AText[2]));
}

TEST_F(Holes, HaveNothingOfAFieldThatWasThere) {
    const std::string layout = dataFileContent("Definitions.Ini");
    writeLayout(wholeLayout());
    start();
    ASSERT_TRUE(isField(form.AMark[2]) && isField(form.AText[2]));
    writeLayout(layout);
    RebuildScreenImage(form);
    EXPECT_FALSE(isField(form.AMark[2]) || isField(form.AText[2]));
    EXPECT_EQ(form.AMark[2].Caption, "");
    EXPECT_FALSE(form.AText[2].Visible);
    click(205 * pixel, 105 * pixel);
    EXPECT_FALSE(form.AMark[2].Visible);
    click(150 * pixel, 405 * pixel);
    EXPECT_FALSE(isEditing());
}

TEST_F(Holes, StayHolesInALayoutThatIsSaved) {
    start();
    pressDesignKey();
    choose("Design>Save Design");
    pressDesignKey();
    RebuildScreenImage(form);
    EXPECT_FALSE(isField(form.AMark[2]) || isField(form.AText[2]));
}

TEST_F(Holes, AreNotShownInDesignMode) {
    start();
    pressDesignKey();
    EXPECT_TRUE(form.AMark[1].Visible && form.AMark[3].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_TRUE(form.AText[3].Caption.starts_with("[ 3"));
    EXPECT_EQ(form.AText[2].Caption, "");
}

TEST_F(Holes, AreNotMovedWithTheOthers) {
    start();
    pressDesignKey();
    choose("Design>Text");
    const float left = form.AText[2].Left;
    typeKey(key::right, shift::shift);
    EXPECT_EQ(form.AText[1].Left, 101 * pixel);
    EXPECT_EQ(form.AText[2].Left, left);
}

TEST_F(Holes, TakeNoColourAndNoStyle) {
    start();
    const toolkit::Label mark = form.AMark[2];
    const toolkit::Label text = form.AText[2];
    choose("Options>Boldface");
    choose("Options>Left-Justify all text");
    choose("Options>Color Management>Custom...");
    form.ColorLabel.BackColor = toolkit::rgb(120, 0, 120);
    const PointOnCard ok = pointOn(form.ColorBut[0]);
    click(ok.x, ok.y);
    EXPECT_EQ(form.AMark[3].ForeColor, toolkit::rgb(120, 0, 120));
    EXPECT_TRUE(form.AText[3].Font.Bold);
    EXPECT_EQ(form.AText[3].Alignment, toolkit::Alignment::Left);
    EXPECT_EQ(form.AMark[2], mark);
    EXPECT_EQ(form.AText[2], text);
}

TEST_F(Holes, ArePassedByTheWalk) {
    start();
    clickText(1);
    typeKey(key::tab);
    EXPECT_EQ(form.TIndex, 3);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TIndex, 1);
    typeKey(key::tab);
    typeKey(key::tab);
    EXPECT_EQ(form.TabCode, 1003);
    EXPECT_TRUE(form.TabActive);
    typeKey(key::tab, shift::shift);
    EXPECT_EQ(form.TIndex, 3);
}

TEST_F(Holes, ASequenceOfHolesAloneEndsTheWalk) {
    writeLayout(replaced(dataFileContent("Definitions.Ini"), "2,3\r\n", "2,1002\r\n"));
    writeLayout(replaced(dataFileContent("Definitions.Ini"), "1002,1003\r\n", "1002,2\r\n"));
    start();
    clickText(1);
    typeKey(key::tab);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_FALSE(form.TabActive);
}

/// What a card made with another layout has for a hole stays in the card, unshown.
TEST_F(Holes, KeepTheirShareOfACardUnshown) {
    writeCard("Jones", "' Program version: 2.0.0\r\n\"\",\"\"\r\n3\r\n1,1,0\r\n2,1,0\r\n3,0,0\r\n"
                       "3\r\n1,\"\",0\r\n2,\"5^h\",0\r\n3,\"a\",0\r\n");
    start("Jones");
    EXPECT_EQ(form.SText.UBound(), 0);
    EXPECT_EQ(form.AText[3].Tag, "a");
    EXPECT_EQ(form.AText[2].Tag, "5^h");
    EXPECT_FALSE(form.AText[2].Visible);
    choose("File>Save");
    EXPECT_NE(dataFileContent("Jones.zev").find("2,\"5^h\""), std::string::npos);
}

} // namespace
} // namespace zev::test
