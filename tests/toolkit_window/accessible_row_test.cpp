// What a screen reader gets of a row that is described.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_menus.h"

namespace window_test {
namespace {

using namespace toolkit;

class AccessibleRow : public WindowTest {
  protected:
    AccessibleRow() {
        file.Caption = "&File";
        save.Caption = "&Save && go";
        save.Checked = true;
        more.Caption = "M&ore";
        deep.Caption = "Deep";
        grey.Caption = "Grey";
        grey.Enabled = false;
        plain.Caption = "Plain";
        wide.Caption = "Wide";
        last.Caption = "Last";
        menu = {
            {.level = 0, .item = &file},
            {.level = 1, .item = &save, .shortcut = "Ctrl+S", .Click = [this] { note("save"); }},
            {.level = 1, .item = &more},
            {.level = 2, .item = &deep},
            {.level = 1, .item = &grey, .Click = [this] { note("grey"); }},
            {.level = 1, .item = &plain, .Click = [this] { note("plain"); }},
            {.level = 0, .item = &wide, .Click = [] {}},
            {.level = 0, .item = &last, .Click = [] {}}};
        form.MenuDescription = [](std::string_view caption) {
            return caption == "Plain" ? std::string() : "about " + std::string(caption);
        };
    }

    MenuItem file;
    MenuItem save;
    MenuItem more;
    MenuItem deep;
    MenuItem grey;
    MenuItem plain;
    MenuItem wide;
    MenuItem last;
};

TEST_F(AccessibleRow, HasTheDescriptionBesideItsNameAndShortcut) {
    test::openMenu("File");
    const auto row = test::readRow("Save & go");
    EXPECT_EQ(row.name, "Save & go");
    EXPECT_EQ(row.description, "about &Save && go");
    EXPECT_EQ(row.shortcut, "Ctrl+S");
    EXPECT_TRUE(row.isInPlace);
    EXPECT_FALSE(row.leadsToMenu);
}

TEST_F(AccessibleRow, TellsWhetherItIsCheckedGreyedOrHighlighted) {
    test::openMenu("File");
    EXPECT_TRUE(test::readRow("Save & go").checked);
    EXPECT_FALSE(test::readRow("More").checked);
    EXPECT_TRUE(test::readRow("Grey").greyed);
    EXPECT_FALSE(test::readRow("More").greyed);
    test::pointAtRow("More");
    EXPECT_TRUE(test::readRow("More").highlighted);
    EXPECT_FALSE(test::readRow("Save & go").highlighted);
}

TEST_F(AccessibleRow, OfAHeaderLeadsToItsMenu) {
    test::openMenu("File");
    EXPECT_TRUE(test::readRow("More").leadsToMenu);
    EXPECT_EQ(test::readRow("More").description, "about M&ore");
    test::typeInMenu(key::down);
    test::typeInMenu(key::down);
    test::typeInMenu(key::right);
    EXPECT_EQ(test::readRow("Deep").description, "about Deep");
    EXPECT_TRUE(test::readRow("Deep").isInPlace);
}

TEST_F(AccessibleRow, CanBeUsedByTheReaderUnlessItIsGreyed) {
    test::openMenu("File");
    EXPECT_FALSE(test::useRow("Grey"));
    EXPECT_TRUE(test::useRow("Save & go"));
    EXPECT_EQ(log, Log{"save"});
}

TEST_F(AccessibleRow, HasNoDescriptionWhereNothingIsSaidOfIt) {
    test::openMenu("File");
    EXPECT_EQ(test::readRow("Plain").name, "Plain");
    EXPECT_EQ(test::readRow("Plain").description, "");
    form.MenuDescription = {};
    test::clickBesideMenus();
    test::openMenu("File");
    EXPECT_EQ(test::readRow("Save & go").description, "");
}

TEST_F(AccessibleRow, HasNoRowsOfBlanksInItsName) {
    plain.Caption = "Zoom In           Ctrl +";
    test::openMenu("File");
    EXPECT_EQ(test::readRow("Zoom In           Ctrl +").name, "Zoom In Ctrl +");
}

TEST_F(AccessibleRow, AHeaderIsNoneEvenWhereTheBarHadNoRoomForIt) {
    wide.Caption = std::string(60, 'w');
    form.Width = px(300);
    window->update();
    test::settle();
    wide.Caption = "Wide";
    form.Width = px(640);
    window->update();
    test::settle();
    EXPECT_TRUE(test::accessiblePart("Last").isShown);
}

TEST_F(AccessibleRow, StandsInAMenuThatHasAName) {
    test::openMenu("File");
    EXPECT_EQ(test::accessiblePart("File").role, "menu");
    EXPECT_EQ(test::accessiblePart("Save & go").role, "menu row");
}

} // namespace
} // namespace window_test
