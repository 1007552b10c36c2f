// Which row of the menus the form hears of.
#include "fixture.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_menus.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class MenuWatch : public WindowTest {
  protected:
    MenuWatch() {
        file.Caption = "&File";
        save.Caption = "&Save && go";
        more.Caption = "M&ore";
        deep.Caption = "Deep";
        deepest.Caption = "Deepest";
        grey.Caption = "Grey";
        grey.Enabled = false;
        view.Caption = "&View";
        fit.Caption = "Fit";
        menu = {{.level = 0, .item = &file},
                {.level = 1, .item = &save, .shortcut = "Ctrl+S", .Click = [this] { note("run"); }},
                {.level = 1},
                {.level = 1, .item = &more},
                {.level = 2, .item = &deep, .Click = [this] { note("deep"); }},
                {.level = 2, .item = &deepest},
                {.level = 1, .item = &grey},
                {.level = 0, .item = &view},
                {.level = 1, .item = &fit}};
        form.MenuSelect = [this](const MenuSelection& selection) {
            last = selection;
            note("[" + selection.Caption + "]");
        };
    }

    [[nodiscard]] const std::string& selected() const { return last.Caption; }

    MenuSelection last;
    MenuItem file;
    MenuItem save;
    MenuItem more;
    MenuItem deep;
    MenuItem deepest;
    MenuItem grey;
    MenuItem view;
    MenuItem fit;
};

TEST_F(MenuWatch, AMenuThatOpensHasNoRowHighlighted) {
    test::openMenu("File");
    EXPECT_EQ(selected(), "");
}

TEST_F(MenuWatch, ThePointerTellsTheRowByItsItemsCaption) {
    test::openMenu("File");
    test::pointAtRow("Save & go");
    EXPECT_EQ(selected(), "&Save && go");
    EXPECT_EQ(log, Log{"[&Save && go]"});
}

TEST_F(MenuWatch, KeysTellTheRow) {
    test::openMenu("File");
    test::typeInMenu(key::down);
    EXPECT_EQ(selected(), "&Save && go");
    test::typeInMenu(key::down);
    EXPECT_EQ(selected(), "M&ore");
}

TEST_F(MenuWatch, AHeaderCountsUntilOneOfItsRowsIsHighlightedAndWhenThePlayerComesBack) {
    test::openMenu("File");
    test::typeInMenu(key::down);
    test::typeInMenu(key::down);
    test::typeInMenu(key::right);
    EXPECT_EQ(selected(), "Deep");
    test::typeInMenu(key::down);
    EXPECT_EQ(selected(), "Deepest");
    test::typeInMenu(key::left);
    EXPECT_EQ(selected(), "M&ore");
    test::typeInMenu(key::right);
    EXPECT_EQ(selected(), "Deep");
    test::pointAtRow("More");
    EXPECT_EQ(selected(), "M&ore");
    test::pointAtRow("Deepest");
    EXPECT_EQ(selected(), "Deepest");
}

TEST_F(MenuWatch, SeparatorsAndLeavingAreNoRow) {
    test::openMenu("File");
    test::pointAtRow("Save & go");
    test::pointAtSeparator();
    EXPECT_EQ(selected(), "");
    test::pointAtRow("Save & go");
    test::pointBesideMenus();
    EXPECT_EQ(selected(), "");
}

TEST_F(MenuWatch, AGreyedRowIsToldWhileThePointerRestsOnIt) {
    test::openMenu("File");
    test::pointAtRow("Save & go");
    test::pointAtRow("Grey");
    EXPECT_EQ(selected(), "Grey");
    test::typeInMenu(key::up);
    EXPECT_NE(selected(), "Grey");
    test::pointAtRow("Grey");
    test::pointAtSeparator();
    EXPECT_EQ(selected(), "");
}

TEST_F(MenuWatch, NothingIsHighlightedAnyMoreWhenTheMenusClose) {
    for (const auto& close : {std::function([] { test::typeInMenu(key::escape); }),
                              std::function(test::clickBesideMenus)}) {
        test::openMenu("File");
        test::pointAtRow("Save & go");
        ASSERT_NE(selected(), "");
        close();
        EXPECT_EQ(selected(), "");
    }
    EXPECT_EQ(times("run"), 0);
}

TEST_F(MenuWatch, NothingIsHighlightedAnyMoreBeforeAChosenRowRuns) {
    test::openMenu("File");
    test::clickRow("Save & go");
    EXPECT_EQ(log, (Log{"[&Save && go]", "[]", "run"}));
    log.clear();
    test::openMenu("File");
    test::pointAtRow("More");
    test::typeInMenu(key::right);
    test::typeInMenu(key::enter);
    ASSERT_GE(log.size(), 2U);
    EXPECT_EQ(log[log.size() - 2], "[]");
    EXPECT_EQ(log.back(), "deep");
    EXPECT_EQ(times("deep"), 1);
}

TEST_F(MenuWatch, GoingOnToTheNextMenuTellsItsRow) {
    test::openMenu("File");
    test::typeInMenu(key::down);
    test::typeInMenu(key::left);
    EXPECT_EQ(selected(), "Fit");
}

TEST_F(MenuWatch, AnArrowToAnEntryWithoutAMenuLeavesNothingHighlighted) {
    MenuItem help{.Caption = "&Help"};
    menu.push_back({.level = 0, .item = &help, .Click = [this] { note("help"); }});
    open();
    test::openMenu("View");
    test::typeInMenu(key::right);
    EXPECT_EQ(test::highlightedOnBar(), "");
    EXPECT_EQ(selected(), "");
    test::typeKey(key::escape);
    EXPECT_EQ(test::highlightedOnBar(), "");
    EXPECT_EQ(times("help"), 0);
    // The bar isn't left half open.
    test::openMenu("File");
    EXPECT_EQ(test::highlightedOnBar(), "File");
    test::clickBesideMenus();
}

TEST_F(MenuWatch, ThePlacesAreThoseOfTheRowAndOfAllOpenMenus) {
    test::openMenu("File");
    test::pointAtRow("More");
    const auto alone = test::openMenus();
    EXPECT_EQ(last.Left, alone.Left);
    EXPECT_EQ(last.Top, alone.Top);
    EXPECT_EQ(last.Width, alone.Width);
    EXPECT_EQ(last.Height, alone.Height);
    EXPECT_GE(last.RowTop, last.Top);
    EXPECT_LT(last.RowTop, last.Top + last.Height);
    test::typeInMenu(key::right);
    test::pointAtRow("More");
    const auto both = test::openMenus();
    EXPECT_GT(both.Width, alone.Width);
    EXPECT_EQ(selected(), "M&ore");
    EXPECT_EQ(last.Width, both.Width);
    test::pointAtRow("Save & go");
    const float upper = last.RowTop;
    test::pointAtRow("Grey");
    EXPECT_GT(last.RowTop, upper);
}

TEST_F(MenuWatch, AWindowThatGoesWhileAMenuIsOpenTellsNothing) {
    test::openMenu("File");
    test::pointAtRow("Save & go");
    log.clear();
    window.reset();
    EXPECT_EQ(log, Log{});
}

TEST_F(MenuWatch, AFormThatDoesNotAskHearsNothing) {
    form.MenuSelect = {};
    test::openMenu("File");
    test::clickRow("Save & go");
    EXPECT_EQ(log, Log{"run"});
}

} // namespace
} // namespace window_test
