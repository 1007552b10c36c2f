
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

/// A name of 26 characters just has room for its line, one of 27 doesn't.
TEST_F(Options, ALongPrinterNameIsLostInTheNextRunWhileTheBinIsKept) {
    for (const std::size_t length : {26U, 27U}) {
        toolkit::Printer other = toolkit::defaultPrinter();
        toolkit::Printer chosen = other;
        other.DeviceName = "Other";
        chosen.DeviceName = std::string(length, 'p');
        toolkit::overridePrinters({other, chosen});
        startWith("Zoom=5\r\nPrintAlt=1\r\nPrinter=" + chosen.DeviceName + "\r\nPaperBin=3\r\n");
        ASSERT_EQ(form.CurrentPrinter.DeviceName, chosen.DeviceName);
        ASSERT_EQ(form.CurrentPrinter.PaperBin, 3);
        IniWrite(form);
        const SecondRun next(window);
        EXPECT_TRUE(next.form.mPrintAlt.Checked);
        EXPECT_EQ(next.form.CurrentPrinter.DeviceName,
                  length == 26 ? chosen.DeviceName : other.DeviceName);
        EXPECT_EQ(next.form.Myprinter.PaperBin, 3);
    }
}

TEST_F(Options, TheFontSizeChecksOneItemOfItsMenu) {
    startWith("Zoom=5\r\nFontSize=2\r\n");
    EXPECT_TRUE(form.mLargerTextFont.Checked);
    EXPECT_FALSE(form.mNormalTextFont.Checked);
    IniWrite(form);
    EXPECT_EQ(written("FontSize"), "2");
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
