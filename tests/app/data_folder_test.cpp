#include "app/data_folder.h"

#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class DataFolder : public FormTest {
  protected:
    DataFolder() {
        makeFirstRun();
        install("Sample.zev", "sample");
        install("ReadMe.htm", "read me");
    }
    void install(std::string_view name, std::string_view content) const {
        toolkit::writeFile(programFolder / name, content);
    }
    /// A file of the player's own, `age` older than the installed one of that name.
    void keep(std::string_view name, std::string_view content, std::chrono::seconds age) const {
        fs::create_directories(dataFolder);
        toolkit::writeFile(dataFile(name), content);
        fs::last_write_time(dataFile(name), fs::last_write_time(programFolder / name) - age);
    }
    [[nodiscard]] bool isInstalled(std::string_view name) const {
        return fs::exists(programFolder / name);
    }
    [[nodiscard]] std::string movedText() const {
        return "Your ZEV files have been moved to " + dataFolder.string() +
               " .  This option is no longer needed and will be hidden from now on.";
    }
    static constexpr std::string_view oldOptions =
        "Name=Joe Smith\r\nNumber=1234567\r\nZoom=6\r\nFit=0\r\nFontSize=2\r\nBold=1\r\n"
        "ColorScheme=65280\r\n";
    void expectOldOptions() const {
        for (const char* setting : {"Name=Joe Smith", "Number=1234567", "Zoom=6", "Fit=0",
                                    "FontSize=2", "Bold=1", "ColorScheme=65280"})
            EXPECT_NE(dataFileContent("ZEV.Ini").find(setting), std::string::npos) << setting;
    }
    void expectMovedBox() const {
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes[0].text, movedText());
        EXPECT_EQ(boxes[0].icon, toolkit::Icon::Information);
        EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
        EXPECT_EQ(boxes[0].title, "");
    }
};

TEST_F(DataFolder, AFirstRunMakesItMovesTheFilesAndShowsHelp) {
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "sample");
    EXPECT_FALSE(isInstalled("Sample.zev"));
    EXPECT_TRUE(isInstalled("Definitions.Ini.15"));
    expectMovedBox();
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_FALSE(form.P1.Enabled);
    EXPECT_EQ(form.ActiveControl, &form.THelp);
    EXPECT_FALSE(form.mDocsFolder.Visible);
    EXPECT_TRUE(form.mDocsFolder.Checked);
    EXPECT_EQ(form.DocumentsFolder, home / "Documents");
    EXPECT_EQ(form.DataFolder, dataFolder);
}

TEST_F(DataFolder, AFirstRunWritesItsOptionsAndFitsTheCard) {
    start();
    EXPECT_NE(dataFileContent("ZEV.Ini").find("Fit=1 "), std::string::npos);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
}

TEST_F(DataFolder, TheMoveIsTraced) {
    fs::create_directories(dataFolder);
    writeLayout(fewFields());
    answerName("");
    start();
    EXPECT_TRUE(
        traced("mDocsFolder_Click " + programFolder.string() + " -> " + dataFolder.string()));
    EXPECT_TRUE(traced("mDocFolder_Click success"));
}

TEST_F(DataFolder, FontsNotYetKnownInTheFirstOptionsLeaveTheUsualOnes) {
    wireOnly();
    form.DocumentsFolder = home / "Documents";
    form.mDocsFolder.Checked = true;
    mDocsFolder_Click(form);
    EXPECT_NE(dataFileContent("ZEV.Ini").find("Normalfont=  "), std::string::npos);
    start();
    EXPECT_EQ(form.TextFontName, "Arial");
    EXPECT_EQ(form.NarrowFontName, "Arial Narrow");
    EXPECT_EQ(form.SuitFontName, "Symbol");
    EXPECT_EQ(form.ZoomLevel, 4);
}

TEST_F(DataFolder, ASecondRunMovesNothing) {
    fs::create_directories(dataFolder);
    writeOptions("Zoom=5\r\n");
    writeLayout(fewFields());
    start();
    EXPECT_TRUE(isInstalled("Sample.zev"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(form.mDocsFolder.Visible);
    EXPECT_TRUE(form.mDocsFolder.Checked);
}

TEST_F(DataFolder, OptionsOfCommentsOnlyAreNoFirstRun) {
    fs::create_directories(dataFolder);
    writeOptions("' nothing\r\n\r\n");
    writeLayout(fewFields());
    start();
    EXPECT_TRUE(isInstalled("Sample.zev"));
    EXPECT_EQ(form.ZoomLevel, 4);
}

TEST_F(DataFolder, MissingOptionsAloneBringTheMoveAndHelpAndTheChooserButNoFit) {
    fs::create_directories(dataFolder);
    writeLayout(fewFields());
    answerName("");
    start();
    expectMovedBox();
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_EQ(choosers.size(), 1U);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), fewFields());
}

TEST_F(DataFolder, ATargetNewerThanTheSourceStaysAndSoDoesTheSource) {
    keep("Sample.zev", "mine", -10s);
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "mine");
    EXPECT_TRUE(isInstalled("Sample.zev"));
}

TEST_F(DataFolder, ATargetOfTheSameTimeAndLengthStaysAndTheSourceGoes) {
    keep("Sample.zev", "SAMPLE", 0s);
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "SAMPLE");
    EXPECT_FALSE(isInstalled("Sample.zev"));
}

TEST_F(DataFolder, ATargetOfTheSameTimeAndAnotherLengthKeepsBoth) {
    keep("Sample.zev", "longer than it", 0s);
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "longer than it");
    EXPECT_TRUE(isInstalled("Sample.zev"));
}

TEST_F(DataFolder, ATargetOlderThanTheSourceIsReplacedAndTheSourceGoes) {
    keep("Sample.zev", "old", 10s);
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "sample");
    EXPECT_FALSE(isInstalled("Sample.zev"));
}

#ifndef _WIN32
TEST_F(DataFolder, ItsOwnNameIsMatchedWithoutRegardToCase) {
    fs::create_directories(dataFolder);
    writeOptions("Zoom=6\r\n");
    writeLayout(fewFields());
    writeCard("Jones", "");
    const fs::path found = dataFolder.parent_path() / "zev";
    fs::rename(dataFolder, found);
    answerName("");
    start();
    EXPECT_EQ(form.DataFolder, found);
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(fs::exists(dataFolder));
}

TEST_F(DataFolder, AFirstRunFillsTheFolderThatIsThereInAnotherCase) {
    const fs::path found = dataFolder.parent_path() / "Zev";
    fs::create_directories(found);
    start();
    EXPECT_EQ(form.DataFolder, found);
    EXPECT_TRUE(fs::exists(found / "Sample.zev"));
    EXPECT_FALSE(fs::exists(dataFolder));
}

TEST_F(DataFolder, AFileOfThatNameInAnotherCaseIsNoFolder) {
    fs::create_directories(dataFolder.parent_path());
    toolkit::writeFile(dataFolder.parent_path() / "zev", "a note");
    start();
    EXPECT_EQ(form.DataFolder, dataFolder);
    EXPECT_TRUE(fs::exists(dataFile("Sample.zev")));
}

TEST_F(DataFolder, TheExactNameGoesFirst) {
    fs::create_directories(dataFolder.parent_path() / "Zev");
    fs::create_directories(dataFolder);
    writeOptions("Zoom=6\r\n");
    writeLayout(fewFields());
    start();
    EXPECT_EQ(form.DataFolder, dataFolder);
}
#endif

TEST_F(DataFolder, ATargetIsFoundWithoutRegardToCase) {
    keep("Sample.zev", "old", 10s);
    fs::rename(dataFile("Sample.zev"), dataFile("SAMPLE.ZEV"));
    start();
    EXPECT_EQ(dataFileContent("SAMPLE.ZEV"), "sample");
    EXPECT_FALSE(fs::exists(dataFile("Sample.zev")));
}

TEST_F(DataFolder, AReadmeIsCopiedAndNeverRemoved) {
    start();
    EXPECT_EQ(dataFileContent("ReadMe.htm"), "read me");
    EXPECT_TRUE(isInstalled("ReadMe.htm"));
}

TEST_F(DataFolder, ADevelopmentFolderLosesNothing) {
    install("zevlin.frm", "");
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "sample");
    EXPECT_TRUE(isInstalled("Sample.zev"));
    EXPECT_FALSE(fs::exists(dataFile("zevlin.frm")));
}

TEST_F(DataFolder, ADevelopmentFolderLosesNothingToCopiesThatAreThereAlready) {
    install("zevlin.frm", "");
    install("Equal.zev", "equal");
    install("Older.gif", "newer");
    install("Newer.bmp", "older");
    keep("Sample.zev", "SAMPLE", 0s);
    keep("Equal.zev", "equal", 0s);
    keep("Older.gif", "older", 10s);
    keep("Newer.bmp", "newer", -10s);
    writeLayout(fewFields());
    answerName("");
    start();
    for (const char* name : {"Sample.zev", "Equal.zev", "Older.gif", "Newer.bmp", "ReadMe.htm"})
        EXPECT_TRUE(isInstalled(name)) << name;
}

TEST_F(DataFolder, WhereTheProgramFolderIsSharedNothingOfThePlayersIsReplaced) {
    install("zevlin.frm", "");
    install("Card.gif", "theirs");
    install("Definitions.Ini", "theirs");
    install("New.zev", "new");
    keep("Sample.zev", "mine", 10s);
    keep("Card.gif", "mine", 10s);
    keep("Definitions.Ini", fewFields(), 10s);
    answerName("");
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "mine");
    EXPECT_EQ(dataFileContent("Card.gif"), "mine");
    EXPECT_EQ(dataFileContent("Definitions.Ini"), fewFields());
    EXPECT_EQ(dataFileContent("New.zev"), "new");
    EXPECT_FALSE(fs::exists(dataFile("Sample (2).zev")));
}

TEST_F(DataFolder, ACardOfThePlayersIsKeptBesideTheOneThatReplacesIt) {
    keep("Sample.zev", "mine", 10s);
    const auto time = fs::last_write_time(dataFile("Sample.zev"));
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "sample");
    EXPECT_EQ(dataFileContent("Sample (2).zev"), "mine");
    EXPECT_EQ(fs::last_write_time(dataFile("Sample (2).zev")), time);
    EXPECT_FALSE(isInstalled("Sample.zev"));
}

TEST_F(DataFolder, ACardIsKeptUnderTheNextFreeNumberInAnyCase) {
    keep("Sample.zev", "mine", 10s);
    toolkit::writeFile(dataFile("SAMPLE (2).ZEV"), "second");
    fs::create_directories(dataFile("Sample (3).zev"));
    start();
    EXPECT_EQ(dataFileContent("SAMPLE (2).ZEV"), "second");
    EXPECT_EQ(dataFileContent("Sample (4).zev"), "mine");
}

TEST_F(DataFolder, ACardOfTheSameContentNeedsNoOtherName) {
    keep("Sample.zev", "sample", 10s);
    start();
    EXPECT_FALSE(fs::exists(dataFile("Sample (2).zev")));
}

TEST_F(DataFolder, ACardThatIsKeptAlreadyIsNotKeptTwice) {
    keep("Sample.zev", "mine", 10s);
    toolkit::writeFile(dataFile("Sample (2).zev"), "mine");
    start();
    EXPECT_EQ(dataFileContent("Sample.zev"), "sample");
    EXPECT_FALSE(fs::exists(dataFile("Sample (3).zev")));
}

TEST_F(DataFolder, OldOptionsThatAreCarriedOverKeepTheirSettings) {
    install("ZEV.Ini", oldOptions);
    fs::create_directories(dataFolder);
    writeLayout(fewFields());
    answerName("");
    start();
    expectOldOptions();
    EXPECT_FALSE(isInstalled("ZEV.Ini"));
    EXPECT_EQ(form.MyName, "Joe Smith");
    EXPECT_EQ(form.ZoomLevel, 6);
}

/// Without a layout the first run goes on to build the form, fits the card and writes the options.
TEST_F(DataFolder, OldOptionsOutliveTheRestOfAFirstRun) {
    install("ZEV.Ini", oldOptions);
    start();
    EXPECT_TRUE(form.THelp.Visible);
    expectOldOptions();
    EXPECT_EQ(form.MyNumber, "1234567");
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_FALSE(form.MFitScreenWidth.Checked);
    EXPECT_TRUE(form.mLargerTextFont.Checked);
}

TEST_F(DataFolder, OtherFilesStayWhereTheyWereInstalled) {
    install("other.dat", "");
    install("Card.bmp", "b");
    start();
    EXPECT_FALSE(fs::exists(dataFile("other.dat")));
    EXPECT_FALSE(fs::exists(dataFile("Definitions.Ini.15")));
    EXPECT_TRUE(fs::exists(dataFile("Card.bmp")));
}

TEST_F(DataFolder, AReadOnlySourceBecomesAWritableCard) {
    fs::permissions(programFolder / "Sample.zev", fs::perms::owner_read);
    start();
    EXPECT_EQ(fs::status(dataFile("Sample.zev")).permissions() & fs::perms::owner_write,
              fs::perms::owner_write);
    // Some systems keep a read-only source, and would refuse to remove it with its folder, too.
    std::error_code ignored;
    fs::permissions(programFolder / "Sample.zev", fs::perms::owner_all, ignored);
}

TEST_F(DataFolder, ThatIsTheProgramFolderLosesNothing) {
    fs::create_directories(dataFolder.parent_path());
    fs::create_directory_symlink(programFolder, dataFolder);
    start();
    EXPECT_TRUE(isInstalled("Sample.zev"));
    EXPECT_TRUE(isInstalled("Definitions.Ini.15"));
    expectMovedBox();
}

} // namespace
} // namespace zev::test
