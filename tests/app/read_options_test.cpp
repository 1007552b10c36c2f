#include "app/read_options.h"

#include "app/layouts.h"
#include "support/form_test.h"

namespace zev::test {
namespace {

class ReadOptions : public FormTest {
  protected:
    ReadOptions() { writeLayout(fewFields()); }
    void startWith(std::string_view options) {
        writeOptions(options);
        start();
    }
};

TEST_F(ReadOptions, AFileOfCommentsLeavesAllDefaultsAndIsNoFirstRun) {
    startWith("' comment only\r\n'another\r\n\r\n");
    EXPECT_EQ(form.ZoomLevel, 4);
    EXPECT_EQ(form.MyName, "");
    EXPECT_TRUE(form.mNormalTextFont.Checked);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ReadOptions, AZoomOutOfRangeLeavesTheDefault) {
    startWith("Zoom=12\r\n");
    EXPECT_EQ(form.ZoomLevel, 4);
    for (const char* zoom : {"0", "-1", "99999999999", "x"}) {
        readOptions(form, std::string("Zoom=") + zoom);
        EXPECT_EQ(form.ZoomLevel, 4) << zoom;
    }
    readOptions(form, "Zoom=11");
    EXPECT_EQ(form.ZoomLevel, 11);
}

TEST_F(ReadOptions, ANameThatBeginsWithAQuoteIsEmpty) {
    startWith("Name='quoted\r\n");
    EXPECT_EQ(form.MyName, "");
}

TEST_F(ReadOptions, TheMarkFontIsNeverRead) {
    startWith("Zoom=5\r\nSymfont=Arial\r\n");
    EXPECT_EQ(form.MarkFontName, "Wingdings");
}

TEST_F(ReadOptions, ANegativeSchemeIsTheCardsOwnColours) {
    startWith("Zoom=5\r\nColorScheme=-1\r\n");
    EXPECT_EQ(form.ColorScheme, 0);
    EXPECT_TRUE(form.mcolorscheme[0].Checked);
    readOptions(form, "ColorScheme=16777216");
    EXPECT_EQ(form.ColorScheme, 0);
    readOptions(form, "ColorScheme=16777215");
    EXPECT_EQ(form.ColorScheme, 16777215);
    EXPECT_TRUE(form.mcolorscheme[1].Checked);
}

TEST_F(ReadOptions, TextsAreTrimmedAndKeysMatchInAnyCase) {
    startWith("  nAmE =  Ann Lee  \r\nNUMBER=99999999999   'comment\r\n");
    EXPECT_EQ(form.MyName, "Ann Lee");
    EXPECT_EQ(form.MyNumber, "99999999999");
}

TEST_F(ReadOptions, LinesWithoutAnEqualsSignAndUnknownKeysArePassedOver) {
    startWith("nothing here\r\nUnknown=1\r\nZoom=7\r\n");
    EXPECT_EQ(form.ZoomLevel, 7);
}

TEST_F(ReadOptions, AValueIsTheNumberThatItsTextBeginsWith) {
    startWith("Zoom=4.5\r\nBold=1 'x\r\n");
    EXPECT_EQ(form.ZoomLevel, 4);
    EXPECT_TRUE(form.mBold.Checked);
}

TEST_F(ReadOptions, CheckedItemsAreCheckedByOneOnly) {
    startWith("Zoom=5\r\nMono=1\r\nColor=2\r\nBold=0\r\nFillincheckmarks=1\r\n");
    EXPECT_TRUE(form.MMono.Checked);
    EXPECT_FALSE(form.MColor.Checked);
    EXPECT_FALSE(form.mBold.Checked);
    EXPECT_TRUE(form.mFillIn.Checked);
}

TEST_F(ReadOptions, TheKeyOfOlderVersionsMakesTextSmaller) {
    startWith("Zoom=5\r\nsmaller=1\r\n");
    EXPECT_TRUE(form.mSmallerTextFont.Checked);
}

TEST_F(ReadOptions, ThePrintingPathFollowsItsOption) {
    startWith("Zoom=5\r\nPrintAlt=1\r\n");
    EXPECT_EQ(form.PrintMethod, 2);
    readOptions(form, "PrintAlt=0");
    EXPECT_EQ(form.PrintMethod, 3);
    EXPECT_FALSE(form.mPrintAlt.Checked);
}

TEST_F(ReadOptions, PrinterAndBinAreTakenOnlyBehindTheAlternateMethod) {
    startWith("Zoom=5\r\nPrinter=X\r\nPaperBin=2\r\nPrintAlt=1\r\n");
    EXPECT_EQ(form.Myprinter.Devicename, "Print to PDF");
    EXPECT_EQ(form.Myprinter.PaperBin, 0);
    readOptions(form, "PrintAlt=1\r\nPrinter=X\r\nPaperBin=2\r\n");
    EXPECT_EQ(form.Myprinter.Devicename, "X");
    EXPECT_EQ(form.Myprinter.PaperBin, 2);
    readOptions(form, "PrintAlt=1\r\nPrinter=\r\nPaperBin=0\r\n");
    EXPECT_EQ(form.Myprinter.Devicename, "X");
    EXPECT_EQ(form.Myprinter.PaperBin, 2);
}

TEST_F(ReadOptions, FontsAreTakenOnlyIfTheyExist) {
    startWith("Zoom=5\r\nNormalfont=DejaVu Sans\r\nNarrowfont=No Such Font\r\nSuitfont=\r\n");
    EXPECT_EQ(form.TextFontName, "DejaVu Sans");
    EXPECT_EQ(form.NarrowFontName, "Arial Narrow");
    EXPECT_EQ(form.SuitFontName, "Symbol");
}

} // namespace
} // namespace zev::test
