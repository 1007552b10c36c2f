#include "app/initialize.h"
#include "form/write_options.h"
#include "layout/save_layout.h"
#include "layout/write_layout.h"
#include "support/form_test.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

/// The lines of a layout with this version line, marks and whatever follows them.
std::string layoutOf(const std::string& version, const std::vector<std::string>& marks,
                     const std::string& behindMarks = "1\r\n1,100,300,300,20,1,1,0\r\n") {
    std::string layout = version +
                         "15,19200\r\n\"Arial\",\"11,00\",\"14\",\"18\"\r\n"
                         "\"Wingdings\",\"18\",\"22\",\"30\"\r\n"
                         "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n" +
                         std::to_string(marks.size()) + "\r\n";
    for (const std::string& mark : marks) layout += mark + "\r\n";
    return layout + behindMarks;
}

class ReadLayout : public FormTest {
  protected:
    [[nodiscard]] std::string symbolOf(int mark) const { return form.AMark[mark].Caption; }

    /// Start-up ends with the box that offers to delete the layout, refused.
    void expectBadLayout(const std::string& failure) {
        announceError("Error in Initialize " + failure);
        answer(toolkit::Answer::Cancel);
        EXPECT_TRUE(failsProgram([&] { start(); }));
        EXPECT_TRUE(traced("Error in Initialize " + failure));
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_TRUE(boxes[0].text.starts_with("The 'Definitions.Ini' file in '"));
    }
};

TEST_F(ReadLayout, OfEightValuesIsRewrittenWithNine) {
    writeLayout(layoutOf("' Program version: 1.0.180\r\n",
                         {"1,100,100,20,20,1,1,252", "2,200,100,20,20,2,1,161"}));
    start();
    EXPECT_EQ(form.LayoutVersion, "1.0.180");
    EXPECT_EQ(form.AMark[2].Left, 3000);
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent("Definitions.Ini");
    EXPECT_NE(saved.find("' Program version: 2.1.0\r\n"), std::string::npos);
    EXPECT_NE(saved.find(",1,1,252,0\r\n2,"), std::string::npos);
    EXPECT_NE(saved.find(",2,1,161,0\r\n"), std::string::npos);
}

TEST_F(ReadLayout, ComparesItsVersionAsAText) {
    writeLayout(layoutOf("' Program version: 1.0.99\r\n",
                         {"1,100,100,20,20,1,1,252,0", "2,200,100,20,20,2,1,161,0"}));
    start();
    EXPECT_EQ(form.AMark[2].Left, 3000);
    EXPECT_EQ(form.AText[1].Left, 1500);
}

TEST_F(ReadLayout, WithoutAVersionHasEightValuesWhateverWasReadBefore) {
    writeOptions("' Program version: 2.0.0\r\nZoom=5\r\n");
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252", "2,200,100,20,20,2,1,161"}));
    start();
    EXPECT_EQ(form.AMark[2].Left, 3000);
    EXPECT_EQ(form.LayoutVersion, "");
}

TEST_F(ReadLayout, KeepsOldSymbolsWorking) {
    writeLayout(layoutOf("", {"1,0,0,9,9,1,1,80", "2,0,0,9,9,1,1,252", "3,0,0,9,9,1,1,110",
                              "4,0,0,9,9,1,1,153", "5,0,0,9,9,1,1,161"}));
    start();
    for (const int mark : {1, 2, 3}) EXPECT_EQ(symbolOf(mark), "\xFC") << mark;
    EXPECT_EQ(symbolOf(4), "\xA1");
    EXPECT_EQ(symbolOf(5), "\xA1");
}

TEST_F(ReadLayout, ShowsChecksAsSquaresWhereMarksAreFilledIn) {
    writeOptions("Zoom=5\r\nFillInCheckMarks=1\r\n");
    writeLayout(layoutOf(
        "", {"1,0,0,9,9,1,1,80", "2,0,0,9,9,1,1,252", "3,0,0,9,9,1,1,110", "4,0,0,9,9,1,1,161"}));
    start();
    ASSERT_TRUE(form.mFillIn.Checked);
    for (const int mark : {1, 2, 3}) EXPECT_EQ(symbolOf(mark), "n") << mark;
    EXPECT_EQ(symbolOf(4), "\xA1");
}

TEST_F(ReadLayout, LeavesARecordOutOfSequenceBlank) {
    writeLayout(layoutOf(
        "", {"1,100,100,20,20,1,1,252", "1,200,100,20,20,2,2,161", "3,300,100,20,20,3,1,252"},
        "2\r\n1,100,300,300,20,1,1,0\r\n9,100,400,300,20,1,1,0\r\n"));
    announceError("Error in Initialize 9, Subscript out of range, after step 2200");
    answer(toolkit::Answer::Cancel);
    EXPECT_TRUE(failsProgram([&] { start(); }));
    EXPECT_EQ(symbolOf(1), "\xFC");
    EXPECT_EQ(form.AMark[1].Left, 1500);
    EXPECT_EQ(symbolOf(2), "");
    EXPECT_EQ(form.AMark[2].Left, 0);
    EXPECT_EQ(form.AMark[3].Left, 4500);
    EXPECT_EQ(form.MarkSizes[1], 2);
}

TEST_F(ReadLayout, LeavesATextOutOfSequenceBlankAndUnseen) {
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252"},
                         "2\r\n1,100,300,300,20,1,1,0\r\n1,100,400,300,20,1,3,0\r\n"));
    start();
    EXPECT_TRUE(form.AText[1].Visible);
    EXPECT_EQ(form.AText[1].Top, 4500);
    EXPECT_FALSE(form.AText[2].Visible);
    EXPECT_EQ(form.AText[2].Top, 0);
    EXPECT_EQ(form.NamesField, 0);
}

TEST_F(ReadLayout, OfANumberAboveThePlaceIsBad) {
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252", "3,200,100,20,20,2,2,161"}));
    expectBadLayout("9, Subscript out of range, after step 2000");
}

TEST_F(ReadLayout, ThatEndsTooEarlyIsBad) {
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252"}, "2\r\n1,100,300,300,20,1,1,0\r\n"));
    expectBadLayout("62, Input past end of file, after step 2200");
}

TEST_F(ReadLayout, WithoutATabPartIsComplete) {
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252"}));
    start();
    EXPECT_EQ(form.TabTable.UBound(), 0);
    EXPECT_EQ(form.AText.UBound(), 1);
    EXPECT_TRUE(form.P1.Visible);
}

TEST_F(ReadLayout, TakesItsTabPartWithBlankLinesBehindIt) {
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252"},
                         "1\r\n1,100,300,300,20,1,1,0\r\n1001\r\n' pairs\r\n1,1001\r\n1001,1\r\n"
                         "\r\n\r\n"));
    start();
    EXPECT_EQ(form.TabTable.UBound(), 1001);
    EXPECT_EQ(form.TabTable[1], 1001);
    EXPECT_EQ(form.TabTable[1001], 1);
}

TEST_F(ReadLayout, OfATabPairOutsideTheTableIsBad) {
    writeLayout(
        layoutOf("", {"1,100,100,20,20,1,1,252"}, "1\r\n1,100,300,300,20,1,1,0\r\n5\r\n0,1\r\n"));
    expectBadLayout("9, Subscript out of range, after step 2300");
}

TEST_F(ReadLayout, ReplacesUnsavedTabLinks) {
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252"},
                         "1\r\n1,100,300,300,20,1,1,0\r\n1001\r\n1,1001\r\n"));
    start();
    form.TabTable.set(1, 0);
    form.TabTable.set(1001, 1);
    RebuildScreenImage(form);
    EXPECT_EQ(form.TabTable[1], 1001);
    EXPECT_EQ(form.TabTable[1001], 0);
}

TEST_F(ReadLayout, OfAVeryWideScreenIsTaken) {
    std::string layout = layoutOf("", {"1,100,100,20,20,1,1,252"});
    layout.replace(layout.find("19200"), 5, "57600");
    writeLayout(layout);
    start();
    EXPECT_EQ(form.AMark.UBound(), 1);
}

TEST_F(ReadLayout, WithLineFeedsAndAByteOrderMarkIsTaken) {
    std::string layout = layoutOf("", {"1,100,100,20,20,1,1,252"});
    std::erase(layout, '\r');
    writeLayout("\xEF\xBB\xBF" + layout);
    start();
    EXPECT_EQ(form.AMark[1].Left, 1500);
}

TEST_F(ReadLayout, UnloadsFieldsThatItDoesNotHave) {
    start();
    writeLayout(layoutOf("", {"1,100,100,20,20,1,1,252"}));
    RebuildScreenImage(form);
    EXPECT_EQ(form.AMark.UBound(), 1);
    EXPECT_EQ(form.AText.UBound(), 1);
    EXPECT_EQ(form.Highlight.UBound(), 1);
}

} // namespace
} // namespace zev::test
