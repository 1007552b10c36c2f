#include "layout/renew_layout.h"

#include "layout/save_layout.h"
#include "support/form_test.h"
#include "toolkit/base/file_lock.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class RenewLayout : public FormTest {
  protected:
    static std::string former(const std::string& twips = "15") {
        return toolkit::readFile(fs::path(FORMER_LAYOUTS) / ("Definitions.Ini." + twips));
    }
    /// With one check a pixel further to the right.
    static std::string changed() {
        std::string layout = former();
        const std::size_t place = layout.find("\r\n1,900,");
        EXPECT_NE(place, std::string::npos);
        return layout.replace(place, 8, "\r\n1,901,");
    }
    [[nodiscard]] std::string installed(const std::string& twips = "15") const {
        return toolkit::readFile(programFolder / ("Definitions.Ini." + twips));
    }
    void lastRunBy(const std::string& version) {
        writeOptions("'Program version: " + version + "\r\nZoom=5\r\n");
    }
    void expectOffered() {
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes[0].title, "ZEV Update");
        EXPECT_EQ(boxes[0].text,
                  "The new version of ZEV needs to update the 'Definitions.Ini' file.  This will "
                  "not affect your existing cards.  Please click 'OK' to continue");
    }
};

TEST_F(RenewLayout, AnUntouchedOneIsReplacedAndKept) {
    lastRunBy("2.0.0");
    writeLayout(former());
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(dataFileContent("Definitions.Ini"), installed());
    EXPECT_EQ(dataFileContent("Definitions.old"), former());
    EXPECT_EQ(form.LayoutVersion, form.ProgramVersion);
    // It is no first run: neither help nor another size of the card.
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
}

TEST_F(RenewLayout, IsReplacedBesideACopyThatIsAtWork) {
    std::filesystem::create_directories(home / "state");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    lastRunBy("2.0.0");
    writeLayout(former());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), installed());
}

TEST_F(RenewLayout, StaysWhileAnotherCopyHasSetALayoutAside) {
    std::filesystem::create_directories(home / "state");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    toolkit::writeFile(dataFile("$$TempDef.Ini"), "aside");
    lastRunBy("2.0.0");
    writeLayout(former());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), former());
}

TEST_F(RenewLayout, OneOfAnotherResolutionMakesPlaceForThisScreens) {
    toolkit::overrideScreen({.twipsPerPixel = 12, .width = 24000, .height = 24000});
    writeLayout(former("15"));
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(dataFileContent("Definitions.Ini"), installed("12"));
    EXPECT_EQ(dataFileContent("Definitions.old"), former("15"));
}

TEST_F(RenewLayout, OneThatTheProgramWroteAgainIsUntouched) {
    const std::string present = installed();
    fs::remove(programFolder / "Definitions.Ini.15");
    writeLayout(former());
    start();
    MSaveShapes_Click(form);
    ASSERT_NE(dataFileContent("Definitions.Ini"), former());
    toolkit::writeFile(programFolder / "Definitions.Ini.15", present);
    EXPECT_FALSE(renewLayout(form));
    EXPECT_EQ(dataFileContent("Definitions.Ini"), present);
}

TEST_F(RenewLayout, TheOldOneThatWasKeptBeforeGoes) {
    toolkit::writeFile(dataFile("Definitions.old"), "older");
    writeLayout(former());
    start();
    EXPECT_EQ(dataFileContent("Definitions.old"), former());
}

TEST_F(RenewLayout, OneSetAsideByAPrintThatWasCutOffIsReplacedToo) {
    writeLayout(changed());
    toolkit::writeFile(dataFile("$$TempDef.Ini"), former());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), installed());
    EXPECT_EQ(dataFileContent("Definitions.old"), former());
}

TEST_F(RenewLayout, AChangedOneStaysWhereTheOfferIsRefusedAndIsOfferedOnce) {
    lastRunBy("2.0.0");
    writeLayout(changed());
    answer(toolkit::Answer::Cancel);
    answer(toolkit::Answer::Ok);
    start();
    expectOffered();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].text, "No changes made, but ZEV may not work properly until you complete "
                             "this update.");
    EXPECT_EQ(dataFileContent("Definitions.Ini"), changed());
    EXPECT_FALSE(fs::exists(dataFile("Definitions.old")));
    EXPECT_FALSE(renewLayout(form));
    EXPECT_EQ(boxes.size(), 2U);
}

TEST_F(RenewLayout, AChangedOneIsReplacedAndKeptOnOk) {
    lastRunBy("2.0.0");
    writeLayout(changed());
    answer(toolkit::Answer::Ok);
    start();
    expectOffered();
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), installed());
    EXPECT_EQ(dataFileContent("Definitions.old"), changed());
}

TEST_F(RenewLayout, AChangedOneOfThisVersionIsNotOffered) {
    lastRunBy("2.0.0");
    std::string layout = installed();
    layout.replace(layout.find("\r\n1,900,"), 8, "\r\n1,901,");
    writeLayout(layout);
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
}

TEST_F(RenewLayout, AChangedOneIsNotOfferedWhereThisVersionHasRunBefore) {
    lastRunBy("2.1.0");
    writeLayout(changed());
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(dataFileContent("Definitions.Ini"), changed());
}

TEST_F(RenewLayout, StaysWhereItIsTheInstalledOne) {
    toolkit::writeFile(programFolder / "Definitions.Ini.15", former());
    writeLayout(former());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), former());
    EXPECT_FALSE(fs::exists(dataFile("Definitions.old")));
}

TEST_F(RenewLayout, StaysWhereTheInstalledOneIsMissing) {
    fs::remove(programFolder / "Definitions.Ini.15");
    writeLayout(former());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), former());
    EXPECT_FALSE(fs::exists(dataFile("Definitions.old")));
}

TEST_F(RenewLayout, StaysWhereItCantBeKept) {
    fs::create_directories(dataFile("Definitions.old") / "inside");
    writeLayout(former());
    announceError("Error in renewLayout 75");
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), former());
    EXPECT_GT(form.AMark.UBound(), 200);
}

TEST_F(RenewLayout, CardsNeedNothing) {
    const std::string card =
        "' Program version: "
        "2.0.0\r\n\"Pat\",\"77\"\r\n2\r\n1,1,0\r\n2,0,0\r\n1\r\n1,\"ours\",0\r\n";
    writeCard("Jones", card);
    writeLayout(former());
    start("Jones");
    EXPECT_EQ(form.AText[1].Tag, "ours");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_EQ(dataFileContent("Jones.zev"), card);
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
