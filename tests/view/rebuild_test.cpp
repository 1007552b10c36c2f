#include "card/write_card.h"
#include "layout/write_layout.h"
#include "view/rebuild.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <algorithm>
#include <fstream>
#include <thread>

#include "app/layouts.h"
#include "card/lifecycle.h"
#include "card/save.h"
#include "form/background.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class Rebuild : public FormTest {
  protected:
    Rebuild() { writeLayout(fewFields()); }
    /// A card with a mark and a text, changed and unsaved.
    void startWithContent() {
        start();
        clickMark(1);
        clickText(1);
        toolkit::test::typeText("a \"quote\" & more");
    }
    [[nodiscard]] bool hasTemporaryCard() const { return fs::exists(dataFile("$$Tempcard.zev")); }
};

TEST_F(Rebuild, AnUnsavedCardKeepsItsContentItsFlagAndItsLackOfAName) {
    startWithContent();
    form.ZoomLevel = 7;
    RebuildScreenImage(form);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a \"quote\" && more");
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.CardName, "");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
    EXPECT_FALSE(hasTemporaryCard());
    EXPECT_EQ(form.LastImageScale, 2.0F / 3);
}

TEST_F(Rebuild, AnUnchangedNamedCardStaysUnchangedAndNamed) {
    writeCard("Jones",
              "'Program version: 2.0.0\r\n\"Pat\",\"77\"\r\n1\r\n1,1,0\r\n1\r\n1,\"\",0\r\n");
    start("Jones.zev");
    const std::string file = dataFileContent("Jones.zev");
    RebuildScreenImage(form);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.PartnerName, "Pat");
    EXPECT_EQ(dataFileContent("Jones.zev"), file);
}

TEST_F(Rebuild, ATemporaryCardOfACrashDisturbsNothing) {
    startWithContent();
    writeCard("$$Tempcard", "garbage of a crash");
    RebuildScreenImage(form);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(hasTemporaryCard());
}

TEST_F(Rebuild, TheOptionsHoldTheNewZoom) {
    start();
    form.ZoomLevel = 6;
    RebuildScreenImage(form);
    EXPECT_NE(dataFileContent("ZEV.Ini").find("Zoom=6 "), std::string::npos);
}

TEST_F(Rebuild, WhileTheProgramInitializesOnlyTheOptionsAreWritten) {
    startWithContent();
    form.Initializing = true;
    form.Trace.clear();
    RebuildScreenImage(form);
    EXPECT_EQ(traceLines(), (std::vector<std::string>{"RebuildScreenImage", "IniWrite", "WinVer"}));
    form.Initializing = false;
}

TEST_F(Rebuild, ItsStepsComeInTheirOrder) {
    start();
    form.Trace.clear();
    RebuildScreenImage(form);
    const auto lines = traceLines();
    auto place = lines.begin();
    for (const char* step : {"RebuildScreenImage", "IniWrite", "MSave_Click", "MNew_Click",
                             "Initialize", "GetCardFile", "SetCaption", "CreateBG"}) {
        place = std::find(place, lines.end(), step);
        EXPECT_NE(place, lines.end()) << step;
    }
}

TEST_F(Rebuild, TheCardShowsAgainAndTheWalkIsOver) {
    start();
    form.TabActive = true;
    RebuildScreenImage(form);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_FALSE(form.TabActive);
    EXPECT_EQ(form.Background.text, form.ProgramVersion);
}

TEST_F(Rebuild, UndoIsOfferedAfterItAsBefore) {
    startWithContent();
    toolkit::test::typeKey(toolkit::key::escape);
    for (const bool offered : {false, true}) {
        form.mpopUndo.Enabled = offered;
        RebuildScreenImage(form);
        EXPECT_TRUE(form.CardModified);
        EXPECT_EQ(form.mpopUndo.Enabled, offered);
    }
}

TEST_F(Rebuild, TheFieldsAreMadeForTheNewSize) {
    start();
    const float left = form.AMark[3].Left;
    form.ZoomLevel = 11;
    RebuildScreenImage(form);
    EXPECT_FLOAT_EQ(form.AMark[3].Left, left * 2);
    EXPECT_EQ(form.CardScale, 2);
}

TEST_F(Rebuild, ASetMarkCanBeClearedByTheMouseAtTheNewSize) {
    startWithContent();
    form.ZoomLevel = 8;
    RebuildScreenImage(form);
    window->update();
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(Rebuild, TheStampNeverTellsTheTemporaryName) {
    writeCard("Jones", "'Program version: 2.0.0\r\n\"\",\"\"\r\n1\r\n1,0,0\r\n1\r\n1,\"\",0\r\n");
    start("Jones.zev");
    RebuildScreenImage(form);
    EXPECT_TRUE(form.Timestamp.Caption.starts_with("[ Jones ]  "));
}

#ifndef _WIN32 // no file is a pipe there
TEST_F(Rebuild, WithoutALayoutTakesTheInstalledOneAndKeepsTheCard) {
    startWithContent();
    ASSERT_LT(form.AMark.UBound(), 200);
    fs::remove(dataFile("Definitions.Ini"));
    form.TraceOn = true;
    RebuildScreenImage(form);
    EXPECT_TRUE(
        traced("Initialize step 1280: Definitions.Ini not found in " + dataFolder.string()));
    EXPECT_TRUE(traced("Initialize step 1350: creating " + dataFile("Definitions.Ini").string()));
    EXPECT_EQ(dataFileContent("Definitions.Ini"),
              toolkit::readFile(programFolder / "Definitions.Ini.15"));
    EXPECT_GT(form.AMark.UBound(), 200);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a \"quote\" && more");
    EXPECT_TRUE(form.CardModified);
    // It is no first run.
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_TRUE(form.P1.Visible);
}

TEST_F(Rebuild, WithoutAnyLayoutIsTracedAndKeepsCardAndFields) {
    startWithContent();
    const int marks = form.AMark.UBound();
    fs::remove(dataFile("Definitions.Ini"));
    fs::remove(programFolder / "Definitions.Ini.15");
    announceError("Error in Initialize 53, File not found, after step 1300");
    RebuildScreenImage(form);
    EXPECT_TRUE(traced("Error in Initialize 53, File not found, after step 1300"));
    EXPECT_EQ(form.AMark.UBound(), marks);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a \"quote\" && more");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.P1.Visible);
}

TEST_F(Rebuild, ATemporaryCardThatVanishesInBetweenTakesNothingAlong) {
    startWithContent();
    // The rebuild waits for its layout from a pipe; meanwhile the card's file is removed.
    fs::remove(dataFile("Definitions.Ini"));
    ASSERT_EQ(mkfifo(dataFile("Definitions.Ini").c_str(), 0600), 0);
    bool vanished = false;
    std::thread cleaner([&] {
        std::ofstream pipe(dataFile("Definitions.Ini"), std::ios::binary);
        vanished = fs::remove(dataFile("$$Tempcard.zev"));
        pipe << fewFields();
    });
    form.ZoomLevel = 7;
    RebuildScreenImage(form);
    cleaner.join();
    EXPECT_TRUE(vanished);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a \"quote\" && more");
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(hasTemporaryCard());
}
#endif

} // namespace
} // namespace zev::test
