#include "app/initialize.h"

#include <algorithm>

#include "app/layouts.h"
#include "card/lifecycle.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"

namespace zev::test {
namespace {

class Initialization : public FormTest {
  protected:
    Initialization() { writeLayout(fewFields()); }
    static toolkit::Printer printer(const char* name, int colorMode) {
        toolkit::Printer made = toolkit::defaultPrinter();
        made.DeviceName = name;
        made.ColorMode = colorMode;
        return made;
    }
    /// The line's index in the trace so far; beyond the last one if it isn't there.
    [[nodiscard]] std::ptrdiff_t placeOf(std::string_view line) const {
        const auto lines = traceLines();
        return std::ranges::find(lines, line) - lines.begin();
    }
};

TEST_F(Initialization, ItsStepsAreTracedInTheirOrder) {
    start();
    const auto folder = dataFolder.string();
    const std::vector<std::string> expected = {
        "Initialize",
        "Initialize: Changed path to: " + folder + "  ... actual current path is: " + folder,
        "Initialize step 310: ZEV.Ini opened successfully in " + folder,
        "False RestoreBackgroundPicture ",
        "SetImageSize 0.5, False, False",
        "GetTaskBarSize",
        "Initialize step 1370: Definitions.Ini was found in " + folder,
        "Initialize step 1480: about to open Definitions.Ini in " + folder,
        "MakeTimeStamp",
        "SetGlobalColors",
        "MNew_Click",
        "CreateBG"};
    for (std::size_t i = 1; i < expected.size(); ++i) {
        EXPECT_LT(placeOf(expected[i - 1]), placeOf(expected[i])) << expected[i];
    }
    EXPECT_TRUE(traced(expected.back()));
}

TEST_F(Initialization, OptionsAreSaidToBeOpenBeforeTheyActOnTheCard) {
    writeOptions("Fit=1\r\n");
    start();
    const auto opened =
        placeOf("Initialize step 310: ZEV.Ini opened successfully in " + dataFolder.string());
    EXPECT_LT(opened, placeOf("MFitScreenWidth"));
}

TEST_F(Initialization, VersionsOfOptionsAndLayoutAreKept) {
    writeOptions("'Program version: 1.9\r\nZoom=5\r\n");
    start();
    EXPECT_EQ(form.OptionsVersion, "1.9");
    EXPECT_EQ(form.LayoutVersion, "2.0.0");
}

TEST_F(Initialization, OptionsWithoutAVersionHaveNone) {
    start();
    EXPECT_EQ(form.OptionsVersion, "");
}

TEST_F(Initialization, TheWidthOfTheScreenIsKnownInPixels) {
    start();
    EXPECT_EQ(form.TwipsPerPixel, 15);
    EXPECT_EQ(form.ScreenWidthPixels, 1600);
}

TEST_F(Initialization, ScalesComeFromTheCardAsShown) {
    writeOptions("Zoom=4\r\n");
    start();
    EXPECT_EQ(form.CardScale, 1018.0F / 1198);
    EXPECT_EQ(form.MarkScale, form.CardScale);
    EXPECT_EQ(form.TextScale, form.CardScale);
}

TEST_F(Initialization, ColoursOfTheLayoutAreSet) {
    start();
    EXPECT_EQ(form.ColorBlack, toolkit::black);
    EXPECT_EQ(form.ColorRed, toolkit::rgb(195, 17, 25));
    EXPECT_EQ(form.ColorBlue, toolkit::rgb(62, 153, 206));
}

TEST_F(Initialization, ThePrinterOfTheAlternateMethodComesBackByItsName) {
    toolkit::overridePrinters({printer("First", 2), printer("Second", 2)});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Second\r\nPaperBin=4\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Second");
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 4);
    EXPECT_EQ(form.Myprinter.BitsPerPixel, 24);
}

TEST_F(Initialization, ThePrinterOfTheAlternateMethodBringsItsOwnFacts) {
    toolkit::Printer second = printer("Second", 2);
    second.hdc = 9;
    second.PixelsPerInchX = 1200;
    second.PixelsPerInchY = 300;
    toolkit::layOutPage(second, 9, toolkit::Orientation::Landscape);
    toolkit::overridePrinters({printer("First", 2), second});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Second\r\n");
    start();
    EXPECT_EQ(form.Myprinter.hdc, 9);
    EXPECT_EQ(form.Myprinter.PixPerInchx, 1200);
    EXPECT_EQ(form.Myprinter.PixPerInchY, 300);
    EXPECT_NEAR(form.Myprinter.PageWidthInches, 11.69F, 0.01F);
    EXPECT_NEAR(form.Myprinter.PageHeightInches, 8.27F, 0.01F);
    EXPECT_EQ(form.Myprinter.Devicename, "Second");
}

TEST_F(Initialization, APrinterWithoutColourHasEightBitsAPixel) {
    toolkit::overridePrinters({printer("First", 2), printer("Grey", 1)});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Grey\r\nPaperBin=4\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 4);
    EXPECT_EQ(form.Myprinter.BitsPerPixel, 8);
}

TEST_F(Initialization, WithAChosenTrayColourIsAskedOfAPrinterThatHasIt) {
    toolkit::Printer second = printer("Second", 1);
    second.CanColor = true;
    toolkit::overridePrinters({printer("First", 2), second});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Second\r\nPaperBin=4\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.ColorMode, 2);
    EXPECT_TRUE(form.CurrentPrinter.AsksForColor);
    EXPECT_EQ(form.Myprinter.BitsPerPixel, 24);
}

TEST_F(Initialization, WithoutAChosenTrayThePrinterKeepsItsColourMode) {
    toolkit::Printer second = printer("Second", 1);
    second.CanColor = true;
    toolkit::overridePrinters({printer("First", 2), second});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Second\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.ColorMode, 1);
    EXPECT_FALSE(form.CurrentPrinter.AsksForColor);
    EXPECT_EQ(form.Myprinter.BitsPerPixel, 8);
}

TEST_F(Initialization, ThePrimaryMethodKeepsTheDefaultPrinter) {
    toolkit::overridePrinters({printer("First", 2), printer("Second", 2)});
    writeOptions("Zoom=5\r\nPrintAlt=0\r\nPrinter=Second\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "First");
}

TEST_F(Initialization, APrinterThatIsGoneLeavesTheDefaultPrinter) {
    toolkit::overridePrinters({printer("First", 2)});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Gone\r\nPaperBin=4\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "First");
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 0);
}

TEST_F(Initialization, APrinterThatDoesntAnswerLeavesTheDefaultPrinter) {
    toolkit::Printer mute = printer("Mute", 2);
    mute.hdc = 0;
    toolkit::overridePrinters({printer("First", 2), mute});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Mute\r\n");
    start();
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "First");
    EXPECT_NE(form.Myprinter.hdc, 0);
}

TEST_F(Initialization, TheStampAndTheCreditStandOnTheCard) {
    start();
    EXPECT_TRUE(form.Timestamp.Visible);
    EXPECT_TRUE(form.CreditLabel.Visible);
}

TEST_F(Initialization, TheFormShows) {
    start();
    EXPECT_TRUE(form.Visible);
}

TEST_F(Initialization, MissingOptionsAreTracedAndMadeWithTheFit) {
    wireOnly();
    start();
    std::filesystem::remove(dataFile("ZEV.Ini"));
    Initialize(form);
    EXPECT_TRUE(traced("Initialize step 490: ZEV.Ini not found in " + dataFolder.string()));
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_NE(dataFileContent("ZEV.Ini").find("Fit=1 "), std::string::npos);
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(Initialization, TheFieldsOwnColoursAreKeptUnderAScheme) {
    writeOptions("Zoom=5\r\nColorScheme=255\r\n");
    start();
    EXPECT_EQ(form.AMark[3].ForeColor, toolkit::rgb(255, 0, 0));
    EXPECT_EQ(form.MarkColors[3], form.ColorBlue);
}

TEST_F(Initialization, AVersionReadBeforeDoesNotCountForTheOptions) {
    start();
    ASSERT_EQ(form.VersionSeen, "2.0.0");
    Initialize(form);
    EXPECT_EQ(form.OptionsVersion, "");
}

TEST_F(Initialization, OptionsAreReadAnewEachTimeAndChangeNothingByThat) {
    writeOptions("Name=Ann\r\nZoom=6\r\nFit=1\r\nFontSize=2\r\nBold=1\r\nColorScheme=255\r\n");
    start();
    // The window's real frame is known once it was shown.
    Initialize(form);
    const auto scale = form.LastImageScale;
    Initialize(form);
    EXPECT_EQ(form.LastImageScale, scale);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_TRUE(form.mLargerTextFont.Checked);
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_EQ(form.ColorScheme, 255);
    EXPECT_FALSE(form.Zooming);
    EXPECT_FALSE(form.Initializing);
}

TEST_F(Initialization, OptionsThatVanishedAreWrittenAlsoWhereTheFitStaysAsItWas) {
    writeOptions("Fit=1\r\n");
    start();
    Initialize(form);
    std::filesystem::remove(dataFile("ZEV.Ini"));
    form.Trace.clear();
    Initialize(form);
    EXPECT_FALSE(traced("RebuildScreenImage"));
    EXPECT_NE(dataFileContent("ZEV.Ini").find("Fit=1 "), std::string::npos);
}

} // namespace
} // namespace zev::test
