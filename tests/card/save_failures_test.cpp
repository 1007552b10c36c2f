#include <algorithm>

#include "card/save.h"
#include "card_form_test.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class SaveFailure : public CardFormTest {};

TEST_F(SaveFailure, AFolderInThePlaceOfTheFileEndsTheProgramWithoutABox) {
    start();
    clickMark(1);
    form.CardName = "Jones";
    fs::create_directory(dataFile("Jones.zev"));
    announceError("Error in MSave_Click 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("File>Save"); }));
    EXPECT_TRUE(traced("Error in MSave_Click 75, Path/File access error"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(form.CardModified);
}

TEST_F(SaveFailure, AFullDiskEndsTheProgram) {
    start();
    form.CardName = "Jones";
    fs::create_symlink("/dev/full", dataFile("Jones.zev"));
    announceError("Error in MSave_Click 61, Disk full");
    EXPECT_TRUE(failsProgram([&] { choose("File>Save"); }));
    EXPECT_TRUE(traced("Error in MSave_Click 61, Disk full"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(SaveFailure, AMissingDataFolderEndsTheProgram) {
    start();
    form.CardName = "Jones";
    form.DataFolder /= "gone";
    EXPECT_TRUE(failsProgram([&] { choose("File>Save"); }));
    EXPECT_TRUE(boxes.empty());
    announceError("Error in Traceit");
    announceError("Error in MSave_Click 76, Path not found");
    const auto ring = traceLines();
    EXPECT_NE(std::ranges::find(ring, "Error in MSave_Click 76, Path not found"), ring.end());
}

TEST_F(SaveFailure, UnderANewNameEndsTheProgramToo) {
    start();
    fs::create_directory(dataFile("Jones.zev"));
    answerName("Jones");
    answer(toolkit::Answer::Yes);
    announceError("Error in MSave_Click 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("File>Save As..."); }));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "Overwrite existing file?");
}

TEST_F(SaveFailure, WhileLeavingEndsTheProgramWithTheChangesUnsaved) {
    start();
    clickMark(1);
    form.CardName = "Jones";
    fs::create_directory(dataFile("Jones.zev"));
    answer(toolkit::Answer::Yes);
    announceError("Error in MSave_Click 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("File>Exit"); }));
    EXPECT_TRUE(fs::is_empty(dataFile("Jones.zev")));
}

} // namespace
} // namespace zev::test
