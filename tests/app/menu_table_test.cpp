#include "app/menu_table.h"

#include <algorithm>
#include <set>

#include "app/layouts.h"
#include "card/lifecycle.h"
#include "card/save.h"
#include "layout/save_layout.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "view/color_panel.h"

namespace zev::test {
namespace {

struct Written {
    int level;
    std::string_view caption;
    std::string_view shortcut;
    friend bool operator==(const Written&, const Written&) = default;
};

/// The menu bar as players know it; an empty caption is a separator.
const std::vector<Written> menuBar = {{0, "&File", ""},
                                      {1, "&New", ""},
                                      {1, "&Open...", "Ctrl+O"},
                                      {1, "&Save", "Ctrl+S"},
                                      {1, "Save &As...", ""},
                                      {1, "", ""},
                                      {1, "&Print card", "Ctrl+P"},
                                      {1, "Print Partner's card", ""},
                                      {1, "Print two cards", ""},
                                      {1, "Printer Setup...", ""},
                                      {1, "", ""},
                                      {1, "Export Image to file as...", ""},
                                      {2, "GIF", ""},
                                      {2, "PNG", ""},
                                      {2, "JPG", ""},
                                      {2, "BMP", ""},
                                      {1, "Export Partner Image to file as..", ""},
                                      {2, "GIF", ""},
                                      {2, "PNG", ""},
                                      {2, "JPG", ""},
                                      {2, "BMP", ""},
                                      {1, "Copy to Clipboard", ""},
                                      {1, "", ""},
                                      {1, "E&xit", ""},
                                      {0, "&Edit", ""},
                                      {1, "&Undo", "Ctrl+Z"},
                                      {1, "&Redo", "Ctrl+Y"},
                                      {0, "&View", ""},
                                      {1, "Zoom In (Bigger)                   Ctrl +", ""},
                                      {1, "Zoom Out (Smaller)               Ctrl  -", ""},
                                      {1, "", ""},
                                      {1, "Fit to screen width                Ctrl  0", ""},
                                      {1, "Fit to screen height", ""},
                                      {1, "", ""},
                                      {1, "Go to first field", "F2"},
                                      {0, "&Options", ""},
                                      {1, "My Name", ""},
                                      {1, "Partner's Name", ""},
                                      {1, "", ""},
                                      {1, "Font size", ""},
                                      {2, "Smaller", ""},
                                      {2, "Normal", ""},
                                      {2, "Larger", ""},
                                      {2, "Big", ""},
                                      {1, "Boldface", ""},
                                      {1, "Left-Justify all text", ""},
                                      {1, "Fill-in Checkmarks", ""},
                                      {1, "", ""},
                                      {1, "Color Management", ""},
                                      {2, "ACBL Compliant", ""},
                                      {2, "Custom...", ""},
                                      {1, "", ""},
                                      {1, "Use alternate print method", ""},
                                      {1, "Force color printing", ""},
                                      {1, "Force black printing", ""},
                                      {1, "", ""},
                                      {1, "Show the Design Menu         Shift Ctrl  D", ""},
                                      {0, "&Design", ""},
                                      {1, "Show all Marks", "Ctrl+A"},
                                      {1, "", ""},
                                      {1, "Small", ""},
                                      {1, "Medium", ""},
                                      {1, "Large", ""},
                                      {1, "", ""},
                                      {1, "Black", ""},
                                      {1, "Red", ""},
                                      {1, "Blue", ""},
                                      {1, "", ""},
                                      {1, "Checkmark", ""},
                                      {1, "Circle", ""},
                                      {1, "Text", ""},
                                      {1, "", ""},
                                      {1, "Set Tab sequence", ""},
                                      {1, "Auto-adjust", ""},
                                      {1, "Save Design", ""},
                                      {0, "&Help", ""},
                                      {0, "Coordinates", ""}};

class MenuTable : public FormTest {
  protected:
    MenuTable() { writeLayout(fewFields()); }
};

TEST_F(MenuTable, CaptionsShortcutsAndOrderAreAsWritten) {
    std::vector<Written> rows;
    for (const auto& row : menuTable()) rows.push_back({row.level, row.caption, row.shortcut});
    EXPECT_EQ(rows.size(), menuBar.size());
    for (std::size_t i = 0; i < std::min(rows.size(), menuBar.size()); ++i) {
        EXPECT_EQ(rows[i], menuBar[i]) << i << ": " << rows[i].caption;
    }
}

TEST_F(MenuTable, EveryItemHasAProcedureAndEveryMenuHasItems) {
    const auto rows = menuTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& row = rows[i];
        if (row.isSeparator()) {
            EXPECT_EQ(row.procedure, nullptr) << "a separator that does something";
            continue;
        }
        if (row.item == &Zevlin::MCoord) continue; // a read-out, which can't be chosen
        const bool isMenu = i + 1 < rows.size() && rows[i + 1].level > row.level;
        EXPECT_NE(isMenu, row.procedure != nullptr) << row.caption;
        EXPECT_FALSE(row.caption.empty());
    }
}

TEST_F(MenuTable, NoItemStandsTwiceAndNoShortcutIsTakenTwice) {
    std::set<std::string> captions;
    std::set<std::string_view> shortcuts;
    std::string menu;
    for (const auto& row : menuTable()) {
        if (row.isSeparator()) continue;
        if (row.level < 2) menu = row.caption;
        // The two lists of image formats have the same rows.
        const std::string path = (row.level < 2 ? "" : menu) + std::string(row.caption);
        EXPECT_TRUE(captions.insert(path).second) << path;
        if (!row.shortcut.empty()) {
            EXPECT_TRUE(shortcuts.insert(row.shortcut).second) << row.shortcut;
        }
    }
}

TEST_F(MenuTable, NoMenuBeginsOrEndsWithASeparator) {
    const auto rows = menuTable();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!rows[i].isSeparator()) continue;
        ASSERT_GT(i, 0U);
        ASSERT_LT(i + 1, rows.size());
        EXPECT_FALSE(rows[i - 1].isSeparator());
        EXPECT_GE(rows[i - 1].level, rows[i].level);
        EXPECT_FALSE(rows[i + 1].isSeparator());
        EXPECT_EQ(rows[i + 1].level, rows[i].level);
    }
}

/// Each row's item runs the procedure of its own name.
TEST_F(MenuTable, ChosenItemsRunTheirOwnProcedures) {
    start();
    form.MShapes.Visible = true;
    form.MSetTabs.Enabled = form.MAutoAdjust.Enabled = form.MSaveShapes.Enabled = true;
    const std::vector<std::pair<std::string, std::string>> traces = {
        {"File>New", "MNew_Click"},
        {"File>Save", "MSave_Click"},
        {"Design>Small", "MSmall_Click"},
        {"Design>Medium", "MMedium_Click"},
        {"Design>Large", "MLarge_Click"},
        {"Design>Black", "MBlack_Click"},
        {"Design>Red", "MRed_Click"},
        {"Design>Blue", "MBlue_Click"},
        {"Design>Checkmark", "MCheck_Click"},
        {"Design>Circle", "MCircle_Click"},
        {"Design>Text", "MText_Click"},
        {"Design>Set Tab sequence", "MSetTabs_Click"},
        {"Design>Auto-adjust", "MAutoAdjust_Click"},
        {"Design>Save Design", "MSaveShapes_Click"},
        {"File>Open...", "MOpen_Click"},
        {"File>Save As...", "MSaveAs_Click"},
        {"Options>My Name", "MMyID_Click"},
        {"Options>Partner's Name", "MPartnerID_Click"},
        {"Options>Use alternate print method", "mPrintAlt_Click"},
        {"Options>Use alternate print method", "mPrintAlt_Click"},
        {"Options>Font size>Smaller", "False MSmallerTextFont_Click "},
        {"Options>Font size>Normal", "False mNormalTextFont_Click "},
        {"Options>Font size>Larger", "False mLargerTextFont_Click "},
        {"Options>Font size>Big", "False mBigTextFont_Click "},
        {"Options>Boldface", "False mBold_Click "},
        {"Options>Left-Justify all text", "False mLeftJustify_Click "},
        {"Options>Color Management>ACBL Compliant", "0 mColorScheme_Click "},
        {"Help", "MHelp_Click"}};
    for (int i = 0; i < 3; ++i) answerName("");
    for (int i = 0; i < 2; ++i) answerInput("");
    for (const auto& [path, line] : traces) {
        form.Trace.clear();
        EXPECT_TRUE(toolkit::test::chooseMenu(path)) << path;
        EXPECT_TRUE(traced(line)) << path;
    }
}

TEST_F(MenuTable, DesignModeHasAnItemOfItsOwnAndOneForItsMenu) {
    start();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Show the Design Menu         Shift Ctrl  D"));
    EXPECT_TRUE(traced("MShowDesignMenu_Click"));
    form.Trace.clear();
    EXPECT_TRUE(toolkit::test::chooseMenu("Design>Show all Marks"));
    EXPECT_EQ(traceLines().at(0), "MShowShapes_Click");
}

TEST_F(MenuTable, ViewItemsRunTheirOwnProcedures) {
    writeLayout(fewFields()); // so few that the trace still holds a whole rebuild
    start();
    const std::vector<std::pair<std::string, std::string>> traces = {
        {"View>Zoom In (Bigger)                   Ctrl +", "MZoomIn_Click"},
        {"View>Zoom Out (Smaller)               Ctrl  -", "MZoomOut_Click"},
        {"View>Fit to screen width                Ctrl  0", "MFitScreenWidth"},
        {"View>Fit to screen height", "MFitScreenHeight_Click"},
        {"View>Go to first field", "MFirstField_Click"}};
    for (const auto& [path, line] : traces) {
        form.Trace.clear();
        EXPECT_TRUE(toolkit::test::chooseMenu(path)) << path;
        EXPECT_EQ(traceLines().at(0), line);
    }
}

/// Each image item runs its own pipeline with its own flag; the two PNG items are each in the
/// other's menu.
TEST_F(MenuTable, ImageItemsRunTheirPipelines) {
    writeLayout(fewFields());
    start();
    struct Expected {
        std::string path;
        toolkit::MenuItem Zevlin::*flag;
        bool isPartners;
    };
    const std::string own = "File>Export Image to file as...>";
    const std::string partners = "File>Export Partner Image to file as..>";
    const std::vector<Expected> items = {{own + "GIF", &Zevlin::mPrintToDiskGIF, false},
                                         {own + "PNG", &Zevlin::mPrintToDiskPNG, true},
                                         {own + "BMP", &Zevlin::mPrintToDisk, false},
                                         {partners + "GIF", &Zevlin::mPrintToDiskGIF, true},
                                         {partners + "PNG", &Zevlin::mPrintToDiskPNG, false},
                                         {partners + "BMP", &Zevlin::mPrintToDisk, true}};
    // A job traces more than the ring holds.
    form.TraceOn = true;
    for (const auto& item : items) {
        bool wasChecked = false;
        whileAsking = [&] { wasChecked = (form.*item.flag).Checked; };
        answerInput("");
        std::filesystem::remove(dataFile("Trace.txt"));
        EXPECT_TRUE(toolkit::test::chooseMenu(item.path)) << item.path;
        EXPECT_TRUE(wasChecked) << item.path;
        EXPECT_FALSE((form.*item.flag).Checked) << item.path;
        EXPECT_EQ(traced("MPrintPartner_Click"), item.isPartners) << item.path;
    }
    EXPECT_FALSE(toolkit::test::chooseMenu(own + "JPG"));
    EXPECT_FALSE(toolkit::test::chooseMenu(partners + "JPG"));
}

TEST_F(MenuTable, ForcedColourAndBlackAreHidden) {
    start();
    EXPECT_FALSE(toolkit::test::chooseMenu("Options>Force color printing"));
    EXPECT_FALSE(toolkit::test::chooseMenu("Options>Force black printing"));
}

TEST_F(MenuTable, ExitEndsTheProgram) {
    start();
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
}

TEST_F(MenuTable, WhatDesigningNeedsIsGreyAtTheStart) {
    start();
    form.MShapes.Visible = true;
    EXPECT_FALSE(form.MSaveShapes.Enabled);
    EXPECT_FALSE(toolkit::test::chooseMenu("Design>Save Design"));
    EXPECT_FALSE(form.MSetTabs.Enabled);
    EXPECT_FALSE(toolkit::test::chooseMenu("Design>Set Tab sequence"));
    EXPECT_FALSE(form.MAutoAdjust.Enabled);
    EXPECT_FALSE(toolkit::test::chooseMenu("Design>Auto-adjust"));
}

TEST_F(MenuTable, ShortcutsReachTheirItems) {
    start();
    answerName("");
    toolkit::test::typeKey('S', toolkit::shift::ctrl);
    EXPECT_TRUE(traced("MSave_Click"));
    answerName("");
    toolkit::test::typeKey('O', toolkit::shift::ctrl);
    EXPECT_TRUE(traced("MOpen_Click"));
}

} // namespace
} // namespace zev::test
