// Saving the layout from design mode, and what becomes of unsaved design when the card is built
// anew.
#include "app/second_run.h"
#include "design/design_test.h"
#include "layout/save_layout.h"
#include "toolkit/testing/test_window.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class SaveDesign : public DesignTest {
  protected:
    /// Whether the layout has a line for the mark with this number at this place, of whatever size.
    [[nodiscard]] bool holdsMarkAt(int number, int left, int top) const {
        const std::string line = "\r\n" + std::to_string(number) + "," + std::to_string(left) +
                                 "," + std::to_string(top) + ",";
        return dataFileContent("Definitions.Ini").find(line) != std::string::npos;
    }
    [[nodiscard]] bool hasLayoutSetAside() const {
        return std::filesystem::exists(dataFile("$$TempDef.Ini"));
    }
};

TEST_F(SaveDesign, TheModeStaysOnWithAllMarksShown) {
    design();
    dragLabel(form.AMark[2], 7, 3);
    form.Trace.clear();
    choose("Design>Save Design");
    EXPECT_TRUE(traced("MSaveShapes_Click"));
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(visibleMarks(), 4);
    EXPECT_EQ(form.AText[4].Caption.substr(0, 6), "[ 4 ] ");
    EXPECT_TRUE(form.MSaveShapes.Enabled);
    EXPECT_FALSE(form.DesignDirty);
    EXPECT_FALSE(form.CardModified);
    EXPECT_TRUE(holdsMarkAt(2, 207, 103));
    EXPECT_TRUE(holdsMarkAt(1, 100, 100));
}

/// The mode is left and entered again, but the blank card in between must not be seen.
TEST_F(SaveDesign, NothingFlashes) {
    design();
    settle();
    float area = 0;
    for (int i = 1; i <= form.AText.UBound(); ++i)
        area += form.AText[i].Width * form.AText[i].Height / pixel / pixel;
    const auto before = cardPaints().pixels;
    choose("Design>Save Design");
    settle();
    EXPECT_LT(static_cast<float>(cardPaints().pixels - before), area);
}

TEST_F(SaveDesign, WhatWasSavedIsThereAfterLeavingAndAtTheNextStart) {
    design();
    dragLabel(form.AMark[2], 7, 3);
    const float left = form.AMark[2].Left;
    choose("Design>Save Design");
    pressDesignKey();
    RebuildScreenImage(form);
    EXPECT_EQ(form.AMark[2].Left, left);
    EXPECT_FALSE(form.AMark[2].Visible);
}

TEST_F(SaveDesign, TheCardStaysWhereItLies) {
    design();
    form.P1.Move(-30 * pixel, -20 * pixel);
    choose("Design>Save Design");
    EXPECT_EQ(form.P1.Left, -30 * pixel);
    EXPECT_EQ(form.P1.Top, -20 * pixel);
}

TEST_F(SaveDesign, ALabelDraggedOffTheCardIsStillCounted) {
    design();
    dragLabel(form.AMark[4], -450, 0);
    EXPECT_LT(form.AMark[4].Left + form.AMark[4].Width, 0);
    choose("Design>Save Design");
    EXPECT_EQ(fieldsInFile(), "4 marks, 4 texts");
    EXPECT_TRUE(holdsMarkAt(4, -50, 100));
}

TEST_F(SaveDesign, MarksAndTextsDraggedOffTheCardAreCountedApart) {
    design();
    addField();
    dragLabel(form.AMark[5], -900, 0);
    dragLabel(form.AText[3], 0, -600);
    ASSERT_LT(form.AMark[5].Left + form.AMark[5].Width, 0);
    ASSERT_LT(form.AText[3].Top + form.AText[3].Height, 0);
    choose("Design>Save Design");
    EXPECT_EQ(fieldsInFile(), "5 marks, 4 texts");
    EXPECT_TRUE(holdsMarkAt(5, -100, 600));
    const SecondRun next(window);
    EXPECT_EQ(next.form.AMark.UBound(), 5);
    EXPECT_EQ(next.form.AText.UBound(), 4);
    EXPECT_LT(next.form.AMark[5].Left, 0);
    EXPECT_LT(next.form.AText[3].Top, 0);
}

TEST_F(SaveDesign, UnderACustomColourTheFieldsKeepTheirOwn) {
    start();
    form.ColorScheme = static_cast<std::int32_t>(toolkit::rgb(1, 2, 3));
    form.mcolorscheme[0].Checked = false;
    form.mcolorscheme[1].Checked = true;
    pressDesignKey();
    choose("Design>Save Design");
    const std::string layout = dataFileContent("Definitions.Ini");
    EXPECT_NE(layout.find(",2,2,252,0\r\n3,300"), std::string::npos);
    EXPECT_NE(layout.find(",3,2,252,0\r\n4,400"), std::string::npos);
}

TEST_F(SaveDesign, AZoomComesBackInDesignModeWithoutUnsavedChanges) {
    design();
    dragLabel(form.AMark[2], 40, 0);
    form.Trace.clear();
    choose("View>Zoom In (Bigger)                   Ctrl +");
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(visibleMarks(), 4);
    EXPECT_EQ(form.AText[1].Caption.substr(0, 6), "[ 1 ] ");
    EXPECT_FLOAT_EQ(form.AMark[2].Left, 200 * pixel * form.MarkScale);
    EXPECT_FALSE(form.CardModified);
    undo();
    EXPECT_EQ(beeps, 1);
}

TEST_F(SaveDesign, PrintingShowsTheDesignAndLeavesItAsItWas) {
    design();
    const std::string saved = dataFileContent("Definitions.Ini");
    dragLabel(form.AMark[2], 40, 0);
    const float left = form.AMark[2].Left;
    answerInput("design");
    choose("File>Export Image to file as...>BMP");
    EXPECT_TRUE(std::filesystem::exists(dataFile("design.bmp")));
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(visibleMarks(), 4);
    EXPECT_EQ(form.AMark[2].Left, left);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), saved);
    EXPECT_FALSE(hasLayoutSetAside());
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
}

TEST_F(SaveDesign, AFailedSaveEndsTheProgram) {
    design();
    std::filesystem::remove(dataFile("Definitions.Ini"));
    std::filesystem::create_directory(dataFile("Definitions.Ini"));
    announceError("Error in MSaveShapes 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("Design>Save Design"); }));
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
