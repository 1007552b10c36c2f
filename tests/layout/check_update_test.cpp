#include "layout/check_update.h"

#include "layout/write_layout.h"
#include "support/form_test.h"
#include "toolkit/base/files.h"
#include "toolkit/base/twips.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class CheckUpdate : public FormTest {
  protected:
    static std::string layoutOf(const std::string& version) {
        return "' Program version: " + version + "\r\n15,19200\r\n";
    }
    void offer(const std::string& content, const std::string& number = "15") {
        toolkit::writeFile(dataFile("Definitions.Ini." + number), content);
    }
    /// The check alone, without the rest of the start-up.
    void check() {
        wireOnly();
        form.DataFolder = dataFolder;
        CheckIniUpdate(form);
    }
    [[nodiscard]] bool hasLayout() const { return fs::exists(dataFile("Definitions.Ini")); }
    void expectNoOffer() {
        check();
        EXPECT_TRUE(boxes.empty());
        EXPECT_TRUE(hasLayout());
    }
};

TEST_F(CheckUpdate, DeletesTheOldLayoutOnOk) {
    writeLayout(layoutOf("1.0.181"));
    offer(layoutOf("1.1.0"));
    answer(toolkit::Answer::Ok);
    check();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "The new version of ZEV needs to update the 'Definitions.Ini' file.  This will not "
              "affect your existing cards.  Please click 'OK' to continue");
    EXPECT_EQ(boxes[0].title, "ZEV Update");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::OkCancel);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Information);
    EXPECT_FALSE(hasLayout());
    EXPECT_TRUE(traced("CheckIniUpdate"));
}

TEST_F(CheckUpdate, KeepsTheOldLayoutOnCancelAndWarns) {
    writeLayout(layoutOf("1.0.181"));
    offer(layoutOf("1.1.0"));
    answer(toolkit::Answer::Cancel);
    answer(toolkit::Answer::Ok);
    check();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].text, "No changes made, but ZEV may not work properly until you complete "
                             "this update.");
    EXPECT_EQ(boxes[1].title, "");
    EXPECT_EQ(boxes[1].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[1].icon, toolkit::Icon::Information);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layoutOf("1.0.181"));
}

TEST_F(CheckUpdate, AtTheStartTakesTheInstalledLayout) {
    writeLayout(layoutOf("1.0.181"));
    offer(layoutOf("3.0.0"));
    answer(toolkit::Answer::Ok);
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"),
              toolkit::readFile(programFolder / "Definitions.Ini.15"));
    EXPECT_GT(form.AMark.UBound(), 200);
}

TEST_F(CheckUpdate, ComparesOnlyTheFirstTwoNumbers) {
    writeLayout(layoutOf("1.0.181"));
    offer(layoutOf("1.0.200"));
    expectNoOffer();
}

TEST_F(CheckUpdate, OffersNoOlderLayout) {
    writeLayout(layoutOf("2.0.0"));
    offer(layoutOf("1.9.0"));
    expectNoOffer();
}

TEST_F(CheckUpdate, ComparesVersionsAsTexts) {
    writeLayout(layoutOf("9.0.0"));
    offer(layoutOf("10.0.0"));
    expectNoOffer();
}

TEST_F(CheckUpdate, OffersAnythingToALayoutWithoutAVersion) {
    writeLayout("15,19200\r\n");
    offer(layoutOf("1.0.181"));
    answer(toolkit::Answer::Ok);
    check();
    EXPECT_FALSE(hasLayout());
}

TEST_F(CheckUpdate, LooksOnlyInTheDataFolder) {
    writeLayout(layoutOf("1.0.181"));
    ASSERT_TRUE(fs::exists(programFolder / "Definitions.Ini.15"));
    expectNoOffer();
}

TEST_F(CheckUpdate, NeedsALayoutToReplace) {
    fs::remove(dataFile("Definitions.Ini"));
    offer(layoutOf("3.0.0"));
    check();
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(hasLayout());
}

TEST_F(CheckUpdate, NeedsACarriageReturnBehindEitherVersion) {
    writeLayout("' Program version: 1.0.181\n15,19200\n");
    offer(layoutOf("3.0.0"));
    expectNoOffer();
    writeLayout(layoutOf("1.0.181"));
    offer("' Program version: 3.0.0\n15,19200\n");
    expectNoOffer();
}

TEST_F(CheckUpdate, GoesByTheResolutionOfTheScreen) {
    toolkit::overrideScreen({.twipsPerPixel = 12, .width = 24000, .height = 24000});
    writeLayout(layoutOf("1.0.181"));
    offer(layoutOf("3.0.0"), "15");
    expectNoOffer();
    offer(layoutOf("3.0.0"), "12");
    answer(toolkit::Answer::Ok);
    check();
    EXPECT_FALSE(hasLayout());
}

TEST_F(CheckUpdate, AFolderInThePlaceOfTheNumberedLayoutEndsTheProgram) {
    writeLayout(layoutOf("1.0.181"));
    fs::create_directory(dataFile("Definitions.Ini.15"));
    announceError("Error in CheckIniUpdate 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { check(); }));
    EXPECT_TRUE(traced("Error in CheckIniUpdate 75, Path/File access error"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(CheckUpdate, AFolderInThePlaceOfTheLayoutEndsTheProgram) {
    fs::remove(dataFile("Definitions.Ini"));
    fs::create_directory(dataFile("Definitions.Ini"));
    announceError("Error in CheckIniUpdate 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { start(); }));
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
