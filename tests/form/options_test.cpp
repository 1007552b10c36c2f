
#include "app/layouts.h"
#include "app/read_options.h"
#include "app/second_run.h"
#include "form/options.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/application.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class Options : public FormTest {
  protected:
    Options() { writeLayout(fewFields()); }
    void startWith(std::string_view options) {
        writeOptions(options);
        start();
    }
    /// The value of a key in the options file as it stands.
    [[nodiscard]] std::string written(std::string_view key) const {
        const std::string file = dataFileContent("ZEV.Ini");
        const std::string begin = "\r\n" + std::string(key) + "=";
        const auto at = file.find(begin);
        if (at == std::string::npos) return "(none)";
        const auto start = at + begin.size();
        const std::string rest = file.substr(start, file.find("\r\n", start) - start);
        const auto value = rest.substr(0, rest.find("  '"));
        return value.substr(0, value.find_last_not_of(' ') + 1);
    }
};

TEST_F(Options, AFileOfCommentsLeavesAllDefaultsAndIsNoFirstRun) {
    startWith("' comment only\r\n'another\r\n\r\n");
    EXPECT_EQ(form.ZoomLevel, 4);
    EXPECT_EQ(form.MyName, "");
    EXPECT_TRUE(form.mNormalTextFont.Checked);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(boxes.empty());
}

/// It turned up after the program had looked for it.
TEST_F(Options, AFileThatWasNotReadIsNotWrittenOver) {
    wireOnly();
    form.DataFolder = dataFolder;
    writeOptions("Name=Kim\r\n");
    IniWrite(form);
    EXPECT_EQ(dataFileContent("ZEV.Ini"), "Name=Kim\r\n");
    readOptions(form, dataFileContent("ZEV.Ini"));
    IniWrite(form);
    EXPECT_EQ(written("Name"), "Kim");
}

TEST_F(Options, AZoomOutOfRangeLeavesTheDefault) {
    startWith("Zoom=12\r\n");
    EXPECT_EQ(form.ZoomLevel, 4);
    for (const char* zoom : {"0", "-1", "99999999999", "x"}) {
        readOptions(form, std::string("Zoom=") + zoom);
        EXPECT_EQ(form.ZoomLevel, 4) << zoom;
    }
    readOptions(form, "Zoom=11");
    EXPECT_EQ(form.ZoomLevel, 11);
}

TEST_F(Options, ANameThatBeginsWithAQuoteIsEmpty) {
    startWith("Name='quoted\r\n");
    EXPECT_EQ(form.MyName, "");
}

TEST_F(Options, ANameWithTwoBlanksAndAQuoteIsCutThere) {
    startWith("Zoom=5\r\n");
    form.MyName = "Ann  'the' Bold";
    IniWrite(form);
    readOptions(form, dataFileContent("ZEV.Ini"));
    EXPECT_EQ(form.MyName, "Ann");
}

TEST_F(Options, ALongNameMovesTheCommentsOfAllLaterLines) {
    startWith("Zoom=5\r\n");
    form.MyName = std::string(60, 'x');
    IniWrite(form);
    const std::string file = dataFileContent("ZEV.Ini");
    const auto line = file.find("\r\nZoom=") + 2;
    EXPECT_EQ(file.find("  '", line + 7) - line, 65U);
}

TEST_F(Options, ALongPrinterNameLosesItsLineWhileTheBinIsKept) {
    toolkit::Printer printer = toolkit::defaultPrinter();
    printer.DeviceName = std::string(27, 'p');
    printer.PaperBin = 3;
    toolkit::overridePrinters({printer});
    startWith("Zoom=5\r\n");
    IniWrite(form);
    EXPECT_EQ(written("Printer"), "(none)");
    EXPECT_EQ(written("PaperBin"), "3");
    form.CurrentPrinter.DeviceName = std::string(26, 'p');
    IniWrite(form);
    EXPECT_EQ(written("Printer"), std::string(26, 'p'));
}

TEST_F(Options, TheMarkFontIsNeverRead) {
    startWith("Zoom=5\r\nSymfont=Arial\r\n");
    EXPECT_EQ(form.MarkFontName, "Wingdings");
}

TEST_F(Options, ANegativeSchemeIsTheCardsOwnColours) {
    startWith("Zoom=5\r\nColorScheme=-1\r\n");
    EXPECT_EQ(form.ColorScheme, 0);
    EXPECT_TRUE(form.mcolorscheme[0].Checked);
    readOptions(form, "ColorScheme=16777216");
    EXPECT_EQ(form.ColorScheme, 0);
    readOptions(form, "ColorScheme=16777215");
    EXPECT_EQ(form.ColorScheme, 16777215);
    EXPECT_TRUE(form.mcolorscheme[1].Checked);
}

TEST_F(Options, TextsAreTrimmedAndKeysMatchInAnyCase) {
    startWith("  nAmE =  Ann Lee  \r\nNUMBER=99999999999   'comment\r\n");
    EXPECT_EQ(form.MyName, "Ann Lee");
    EXPECT_EQ(form.MyNumber, "99999999999");
}

TEST_F(Options, LinesWithoutAnEqualsSignAndUnknownKeysArePassedOver) {
    startWith("nothing here\r\nUnknown=1\r\nZoom=7\r\n");
    EXPECT_EQ(form.ZoomLevel, 7);
}

TEST_F(Options, AValueIsTheNumberThatItsTextBeginsWith) {
    startWith("Zoom=4.5\r\nBold=1 'x\r\n");
    EXPECT_EQ(form.ZoomLevel, 4);
    EXPECT_TRUE(form.mBold.Checked);
}

TEST_F(Options, CheckedItemsAreCheckedByOneOnly) {
    startWith("Zoom=5\r\nMono=1\r\nColor=2\r\nBold=0\r\nFillincheckmarks=1\r\n");
    EXPECT_TRUE(form.MMono.Checked);
    EXPECT_FALSE(form.MColor.Checked);
    EXPECT_FALSE(form.mBold.Checked);
    EXPECT_TRUE(form.mFillIn.Checked);
}

TEST_F(Options, TheFontSizeChecksOneItemOfItsMenu) {
    startWith("Zoom=5\r\nFontSize=2\r\n");
    EXPECT_TRUE(form.mLargerTextFont.Checked);
    EXPECT_FALSE(form.mNormalTextFont.Checked);
    IniWrite(form);
    EXPECT_EQ(written("FontSize"), "2");
}

TEST_F(Options, TheKeyOfOlderVersionsMakesTextSmaller) {
    startWith("Zoom=5\r\nsmaller=1\r\n");
    EXPECT_TRUE(form.mSmallerTextFont.Checked);
}

TEST_F(Options, FitToWidthAndToHeightAreAppliedAsTheyAreRead) {
    startWith("Fit=2\r\n");
    EXPECT_TRUE(form.MFitScreenHeight.Checked);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_NE(form.ZoomTable[0], 0);
    EXPECT_EQ(form.LastImageScale, form.ZoomTable[0]);
    IniWrite(form);
    EXPECT_EQ(written("Fit"), "2");
}

TEST_F(Options, ThePrintingPathFollowsItsOption) {
    startWith("Zoom=5\r\nPrintAlt=1\r\n");
    EXPECT_EQ(form.PrintMethod, 2);
    readOptions(form, "PrintAlt=0");
    EXPECT_EQ(form.PrintMethod, 3);
    EXPECT_FALSE(form.mPrintAlt.Checked);
}

TEST_F(Options, PrinterAndBinAreTakenOnlyBehindTheAlternateMethod) {
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

TEST_F(Options, FontsAreTakenOnlyIfTheyExist) {
    startWith("Zoom=5\r\nNormalfont=DejaVu Sans\r\nNarrowfont=No Such Font\r\nSuitfont=\r\n");
    EXPECT_EQ(form.TextFontName, "DejaVu Sans");
    EXPECT_EQ(form.NarrowFontName, "Arial Narrow");
    EXPECT_EQ(form.SuitFontName, "Symbol");
}

TEST_F(Options, TracingIsTurnedOnByOneAndKept) {
    startWith("Zoom=5\r\nTrace=1\r\n");
    EXPECT_TRUE(form.TraceOn);
    IniWrite(form);
    EXPECT_EQ(written("Trace"), "1");
    readOptions(form, "Trace=0");
    EXPECT_TRUE(form.TraceOn);
    EXPECT_TRUE(form.TraceSetting);
}

TEST_F(Options, WhatIsWrittenIsReadBackInTheNextRun) {
    startWith("Name=Ann\r\nNumber=123\r\nZoom=6\r\nFontSize=1\r\nBold=1\r\nColorScheme=255\r\n");
    IniWrite(form);
    const std::string file = dataFileContent("ZEV.Ini");
    const SecondRun next(window);
    EXPECT_EQ(next.form.MyName, "Ann");
    EXPECT_EQ(next.form.MyNumber, "123");
    EXPECT_EQ(next.form.ZoomLevel, 6);
    EXPECT_TRUE(next.form.mSmallerTextFont.Checked);
    EXPECT_TRUE(next.form.mBold.Checked);
    EXPECT_EQ(next.form.ColorScheme, 255);
    EXPECT_NE(file.find("'Program version: " + form.ProgramVersion + "\r\n"), std::string::npos);
}

TEST_F(Options, TheMachineIsDescribedForSupport) {
    startWith("Zoom=5\r\n");
    IniWrite(form);
    const std::string file = dataFileContent("ZEV.Ini");
    for (const char* line : {"'    Screen resolution:  24000  24000  15  /  1600  *  1600 ",
                             "'    Actual twips:       15  *  15 "}) {
        EXPECT_NE(file.find(std::string(line) + "\r\n"), std::string::npos) << line;
    }
    EXPECT_NE(file.find("'    Application path:   " + programFolder.string()), std::string::npos);
    EXPECT_NE(file.find("'    Documents path:     " + dataFolder.string()), std::string::npos);
    EXPECT_NE(file.find("'    Current path:       " + dataFolder.string()), std::string::npos);
    EXPECT_NE(file.find("'     DeviceName:        Print to PDF\r\n"), std::string::npos);
}

TEST_F(Options, AFileThatCannotBeWrittenIsTracedAndTheProgramGoesOn) {
    startWith("Zoom=5\r\n");
    announceError("Error in IniWrite ");
    fs::remove(dataFile("ZEV.Ini"));
    fs::create_directory(dataFile("ZEV.Ini"));
    IniWrite(form);
    EXPECT_TRUE(traced("Error in IniWrite 75, Path/File access error"));
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
