#include "app/data_folder.h"
#include "app/layouts.h"
#include "form/settings.h"
#include "layout/write_layout.h"
#include "toolkit/base/files.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class DataFolderFailures : public FormTest {
  protected:
    DataFolderFailures() : before(fs::current_path()) { makeFirstRun(); }
    ~DataFolderFailures() override { fs::current_path(before); }
    DataFolderFailures(const DataFolderFailures&) = delete;
    DataFolderFailures& operator=(const DataFolderFailures&) = delete;

    [[nodiscard]] std::string failureText(const std::string& failure) const {
        return "Creating data folder ('" + dataFolder.string() +
               "') failed.  Please report this error information to " +
               std::string(supportAddress) + ":\nError # " + failure +
               "\nFrom: " + programFolder.string() + "   To: " + dataFolder.string();
    }
    /// A machine without a Documents folder; the program runs in an empty folder.
    void useNoDocuments() {
        toolkit::overrideProgram({.programFolder = programFolder,
                                  .noDocuments = true,
                                  .throwAtEnd = true,
                                  .shortWaits = true});
        fs::create_directories(home / "current");
        fs::current_path(home / "current");
    }
    fs::path before;
};

TEST_F(DataFolderFailures, AFileInItsPlaceIsToldAndTheLayoutThenCannotBeMade) {
    announceError("Error");
    fs::create_directories(home / "Documents");
    toolkit::writeFile(dataFolder, "a file");
    answer(toolkit::Answer::Ok);     // creating failed
    answer(toolkit::Answer::Cancel); // the layout
    EXPECT_TRUE(failsProgram([&] { start(); }));
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].text, failureText("76 -- Path not found"));
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_TRUE(traced("Error 76 Path not found in mDocsFolder"));
    EXPECT_TRUE(boxes[1].text.starts_with("The original distribution file that describes how "));
    EXPECT_EQ(toolkit::readFile(dataFolder), "a file");
}

TEST_F(DataFolderFailures, AFolderInThePlaceOfACardIsTold) {
    announceError("Error 75 ");
    toolkit::writeFile(programFolder / "Sample.zev", "sample");
    fs::create_directories(dataFile("Sample.zev"));
    start();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, failureText("75 -- Path/File access error"));
    EXPECT_TRUE(traced("Error 75 Path/File access error in mDocsFolder"));
    EXPECT_EQ(toolkit::readFile(programFolder / "Sample.zev"), "sample");
}

TEST_F(DataFolderFailures, AMissingProgramFolderIsTold) {
    announceError("Error 76 ");
    fs::create_directories(dataFolder);
    writeLayout(fewFields());
    fs::remove_all(programFolder);
    start();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, failureText("76 -- Path not found"));
}

TEST_F(DataFolderFailures, AFolderThatCannotBeWrittenKeepsTheSources) {
    announceError("Error");
    toolkit::writeFile(programFolder / "Sample.zev", "sample");
    fs::create_directories(home / "Documents");
    // No user can make a file in this folder, not even the superuser.
    fs::create_directory_symlink("/proc/self/fdinfo", dataFolder);
    answer(toolkit::Answer::Ok);
    answer(toolkit::Answer::Cancel);
    EXPECT_TRUE(failsProgram([&] { start(); }));
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_TRUE(boxes[0].text.starts_with("Creating data folder ('"));
    EXPECT_EQ(toolkit::readFile(programFolder / "Sample.zev"), "sample");
}

TEST_F(DataFolderFailures, WithoutADocumentsFolderThereIsNoDataFolderAndNothingMoves) {
    useNoDocuments();
    toolkit::writeFile(programFolder / "Sample.zev", "sample");
    start();
    EXPECT_TRUE(form.DocumentsFolder.empty());
    EXPECT_TRUE(form.DataFolder.empty());
    EXPECT_FALSE(form.mDocsFolder.Checked);
    EXPECT_TRUE(fs::exists(programFolder / "Sample.zev"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DataFolderFailures, WithoutADocumentsFolderTheCurrentFolderHoldsTheFiles) {
    useNoDocuments();
    start();
    EXPECT_TRUE(fs::exists(home / "current" / "Definitions.Ini"));
    const std::string options = toolkit::readFile(home / "current" / "ZEV.Ini");
    EXPECT_NE(options.find("'    Documents path:     \r\n"), std::string::npos);
    EXPECT_NE(options.find("'    Current path:       " + (home / "current").string() + "\r\n"),
              std::string::npos);
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(DataFolderFailures, WithoutADocumentsFolderABadLayoutOfTheProgramIsOfferedForDeletion) {
    announceError("Error");
    useNoDocuments();
    fs::current_path(programFolder);
    toolkit::writeFile(programFolder / "Definitions.Ini", "'Program version: 9.0.0\r\nbad\r\n");
    answer(toolkit::Answer::Ok);
    EXPECT_TRUE(failsProgram([&] { start(); }));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].text.starts_with("The 'Definitions.Ini' file in '" +
                                          programFolder.string() + "' contains errors."));
    EXPECT_FALSE(fs::exists(programFolder / "Definitions.Ini"));
}

TEST_F(DataFolderFailures, AFileInThePlaceOfTheDocumentsFolderMeansThatThereIsNone) {
    wireOnly();
    EXPECT_EQ(GetSpecialFolder(form, 5), home / "Documents");
    fs::remove_all(home / "Documents");
    toolkit::writeFile(home / "Documents", "a file");
    EXPECT_EQ(GetSpecialFolder(form, 5), fs::path());
}

TEST_F(DataFolderFailures, OtherShellFoldersAreUnknown) {
    wireOnly();
    EXPECT_EQ(GetSpecialFolder(form, 7), fs::path());
}

} // namespace
} // namespace zev::test
