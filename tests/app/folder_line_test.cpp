// The chooser's line that tells the data folder.
#include "app/folder_line.h"

#include "card/chooser.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {
namespace {

class FolderLine : public FormTest {
  protected:
    void pressFolder(int button) {
        const auto point = toolkit::test::pointOn(form.P3, form.LPath);
        toolkit::test::click(point.x, point.y, button);
    }
    void inChooser(std::function<void()> acts) {
        answerChooser([acts = std::move(acts)] {
            acts();
            toolkit::test::typeKey(toolkit::key::escape);
        });
        EXPECT_EQ(GetFileNames(form), "");
    }
};

TEST_F(FolderLine, TheLeftButtonShowsTheFolderWithTheOptionsFileSelected) {
    start();
    inChooser([&] { pressFolder(toolkit::button::left); });
    ASSERT_EQ(launched.size(), 1U);
    EXPECT_TRUE(launched[0].ends_with(dataFile("ZEV.Ini").generic_string())) << launched[0];
}

TEST_F(FolderLine, TheRightButtonDoesNothingWhereTheFolderIsFixed) {
    start();
    ASSERT_TRUE(form.mDocsFolder.Checked);
    inChooser([&] { pressFolder(toolkit::button::right); });
    EXPECT_EQ(popups, 0);
    EXPECT_TRUE(launched.empty());
}

TEST_F(FolderLine, TheRightButtonOffersToMoveTheCardsWhereTheyCanBe) {
    start();
    form.mDocsFolder.Checked = false;
    std::string caption;
    answerPopup([&](std::span<const toolkit::PopupRow> rows) { caption = rows[0].item->Caption; });
    inChooser([&] { pressFolder(toolkit::button::right); });
    EXPECT_EQ(caption, "Store cards in " + dataFolder.string());
}

TEST_F(FolderLine, MovingTheCardsLeavesNothingToClickFor) {
    start();
    form.mDocsFolder.Checked = false;
    answerPopup([](std::span<const toolkit::PopupRow> rows) { rows[0].Click(); });
    inChooser([&] {
        pressFolder(toolkit::button::right);
        EXPECT_TRUE(traced("mDocFolder_Click success"));
        EXPECT_EQ(form.LPath.Caption, dataFolder.string());
        EXPECT_EQ(form.LPath.ForeColor, toolkit::black);
        EXPECT_EQ(form.LPath.ToolTip, "");
    });
}

TEST_F(FolderLine, EachStepIsTraced) {
    start();
    form.mDocsFolder.Checked = false;
    answerPopup([](std::span<const toolkit::PopupRow> rows) { rows[0].Click(); });
    form.Trace.clear();
    inChooser([&] {
        pressFolder(toolkit::button::left);
        pressFolder(toolkit::button::right);
    });
    for (const char* line :
         {"LPath_MouseDown 1", "LPath_MouseDown 2", "mpopFolderMenu_Click", "mpopMoveCards_Click"})
        EXPECT_TRUE(traced(line)) << line;
}

TEST_F(FolderLine, AFailureIsTracedAndGoesNoFurther) {
    start();
    form.mDocsFolder.Checked = false;
    announceError("Error in LPath_MouseDown: #");
    answerPopup([](std::span<const toolkit::PopupRow>) {
        throw toolkit::RunTimeError(toolkit::Failure::OutOfMemory);
    });
    inChooser([&] { pressFolder(toolkit::button::right); });
    EXPECT_TRUE(traced("Error in LPath_MouseDown: #7, Out of memory"));
}

TEST_F(FolderLine, LeavingTheCardsDoesNothing) {
    start();
    form.mDocsFolder.Checked = false;
    answerPopup([](std::span<const toolkit::PopupRow> rows) { rows[1].Click(); });
    inChooser([&] { pressFolder(toolkit::button::right); });
    EXPECT_FALSE(traced("mDocFolder_Click success"));
}

} // namespace
} // namespace zev::test
