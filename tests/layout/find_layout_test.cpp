#include "app/layouts.h"
#include "app/second_run.h"
#include "form/settings.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* fontsQuestion =
    "The Windows screen fonts have changed since the last time you used ZEV, so checkmarks, "
    "circles, and text will not line up properly on the card.\r\n\r\nZEV can update itself to use "
    "the current fonts, but if you are using a custom layout, it will be lost.\r\n\r\n(Most people "
    "use the standard layout, so unless you used ZEV's 'DESIGN MENU' to change the layout, "
    "\r\nthis "
    "doesn't apply to you.  If it does apply, click 'No' and then use the 'DESIGN MENU' again "
    "\r\nto update the layout yourself.)\r\n\r\nDo you want ZEV to update itself to use your "
    "system's current fonts (click 'Yes' and then restart ZEV)?";

class FindLayout : public FormTest {
  protected:
    static void useTwips(int twips) {
        toolkit::overrideScreen({.twipsPerPixel = twips, .width = 24000, .height = 24000});
    }
    void removeLayout() { fs::remove(dataFile("Definitions.Ini")); }
    /// The installed layouts, each with a single mark whose left place is its number.
    void installMarkedLayouts() {
        for (const char* number : {"12", "13", "15"}) {
            const auto layout = replaced(smallLayout({{.left = 1, .top = 50}}, {{}}), "1,1,50,",
                                         std::string("1,") + number + ",50,");
            toolkit::writeFile(programFolder / (std::string("Definitions.Ini.") + number),
                               writtenAt(layout, std::string(number) + ",19200"));
        }
    }
    /// Starts without a layout in the data folder; returns the left place of the mark.
    float startFreshAt(int twips) {
        useTwips(twips);
        installMarkedLayouts();
        removeLayout();
        start();
        return form.AMark[1].Left;
    }
};

TEST_F(FindLayout, AMissingOneIsCopiedFromTheInstalledOnesAndTheTraceSaysSo) {
    removeLayout();
    writeOptions("Zoom=5\r\nTrace=1\r\n");
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"),
              toolkit::readFile(programFolder / "Definitions.Ini.15"));
    EXPECT_TRUE(
        traced("Initialize step 1280: Definitions.Ini not found in " + dataFolder.string()));
    EXPECT_TRUE(traced("Initialize step 1350: creating " + dataFile("Definitions.Ini").string()));
    EXPECT_FALSE(fs::exists(dataFile("Definitions.Ini.15")));
}

TEST_F(FindLayout, AnExistingOneIsKeptAndTheTraceSaysSo) {
    writeLayout(fewFields());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), fewFields());
    EXPECT_TRUE(
        traced("Initialize step 1370: Definitions.Ini was found in " + dataFolder.string()));
}

TEST_F(FindLayout, ItsNameIsFoundWithoutRegardToCase) {
    removeLayout();
    toolkit::writeFile(dataFile("DEFINITIONS.INI"), fewFields());
    start();
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_FALSE(fs::exists(dataFile("Definitions.Ini")));
}

TEST_F(FindLayout, ACopyLeadsToFitToWidthANewOptionsFileAndTheHelpPage) {
    removeLayout();
    start();
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_NE(dataFileContent("ZEV.Ini").find("Fit=1 "), std::string::npos);
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_FALSE(form.P1.Enabled);
}

TEST_F(FindLayout, AScreenOfFifteenTwipsTakesTheLayoutNumberedFifteen) {
    const float left = startFreshAt(15);
    EXPECT_EQ(left, 15 * form.CardScale * 15);
}

TEST_F(FindLayout, AScreenOfThirteenTwipsTakesTheLayoutNumberedThirteen) {
    const float left = startFreshAt(13);
    EXPECT_EQ(left, 13 * form.CardScale * 13);
    EXPECT_EQ(form.TwipsPerPixel, 13);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(FindLayout, AScreenOfTwelveTwipsTakesTheLayoutNumberedTwelve) {
    const float left = startFreshAt(12);
    EXPECT_EQ(left, 12 * form.CardScale * 12);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(FindLayout, AFinerScreenTakesTheLayoutNumberedTwelveUnaskedAndConvertsIt) {
    startFreshAt(10);
    EXPECT_TRUE(boxes.empty());
    EXPECT_NE(dataFileContent("Definitions.Ini").find("10,24000"), std::string::npos);
}

TEST_F(FindLayout, ACoarserScreenTakesTheLayoutNumberedFifteen) {
    startFreshAt(20);
    EXPECT_TRUE(boxes.empty());
    EXPECT_NE(dataFileContent("Definitions.Ini").find("20,24000"), std::string::npos);
}

TEST_F(FindLayout, AMissingInstalledLayoutEndsTheProgramWithAMessage) {
    removeLayout();
    fs::remove(programFolder / "Definitions.Ini.15");
    EXPECT_TRUE(failsProgram([&] { start(); }));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[0].title, "");
    EXPECT_EQ(
        boxes[0].text,
        "An original installation file named 'Definitions.Ini.15' is missing.\nIt should be in "
        "this folder: " +
            programFolder.string() +
            "\n\nPlease reinstall ZEV and try again.  If you installed ZEV by downloading a "
            "ZIP file, you can extract the missing file from that ZIP.  Or, you can reinstall "
            "by browsing to:\n" +
            std::string(webAddress) +
            "\nand clicking the 'Install' button on that web page.\n\nIf this error persists, "
            "please report it to: " +
            std::string(supportAddress));
}

TEST_F(FindLayout, ChangedScreenFontsAreAskedAbout) {
    useTwips(12);
    answer(toolkit::Answer::No);
    start();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, fontsQuestion);
    EXPECT_EQ(boxes[0].title, "ZEV Configuration error");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNo);
}

TEST_F(FindLayout, YesSetsTheLayoutAsideAndTheNextStartTakesTheInstalledOne) {
    useTwips(12);
    writeLayout(fewFields());
    toolkit::writeFile(dataFile("Definitions.old"), "older");
    answer(toolkit::Answer::Yes);
    EXPECT_TRUE(endsProgram([&] { start(); }));
    EXPECT_EQ(dataFileContent("Definitions.old"), fewFields());
    EXPECT_FALSE(fs::exists(dataFile("Definitions.Ini")));
    const SecondRun next(window);
    EXPECT_EQ(dataFileContent("Definitions.Ini").substr(0, 40),
              toolkit::readFile(programFolder / "Definitions.Ini.12").substr(0, 40));
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(FindLayout, YesEndsTheProgramAlsoWhereTheLayoutCannotBeSetAside) {
    useTwips(12);
    writeLayout(fewFields());
    fs::create_directories(dataFile("Definitions.old") / "inside");
    answer(toolkit::Answer::Yes);
    EXPECT_TRUE(endsProgram([&] { start(); }));
    EXPECT_EQ(dataFileContent("Definitions.Ini"), fewFields());
}

TEST_F(FindLayout, TheScreenFontsAreAskedAboutOnceInARun) {
    useTwips(12);
    answer(toolkit::Answer::No);
    start();
    writeLayout(fewFields());
    RebuildScreenImage(form);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(FindLayout, TwipsBelowFiveAreAskedAboutEvenWhereBothAgree) {
    announceError("Error in Initialize, step 1500");
    announceError("Error in Initialize step 1250"); // text towers on so coarse a card
    useTwips(4);
    writeLayout(writtenAt(fewFields(), "4,19200"));
    answer(toolkit::Answer::No);
    start();
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.OriginalTwips, 15);
}

} // namespace
} // namespace zev::test
