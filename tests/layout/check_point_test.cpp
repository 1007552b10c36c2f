#include "layout/check_point.h"

#include "form/unsaved.h"
#include "layout/layout_text.h"
#include "layout/save_layout.h"
#include "layout/write_layout.h"
#include "support/form_test.h"
#include "toolkit/base/file_lock.h"
#include "toolkit/base/write_file.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* setAside = "$$TempDef.Ini";

class CheckPoint : public FormTest {
  protected:
    /// Makes a check-point of a moved field and then fails to put the layout back, because a folder
    /// has taken its name.
    void failToRestore() {
        const float left = form.AMark[1].Left;
        form.AMark[1].Left += 150;
        CheckPointShapes(form);
        form.AMark[1].Left = left;
        fs::rename(dataFile(layoutFileName), dataFile("checked"));
        fs::create_directory(dataFile(layoutFileName));
        announceError("Error in RestoreShapes: #75, Path/File access error");
        RestoreShapes(form);
    }
    /// A copy that died in a job has left the player's layout aside, and this start couldn't put it
    /// back because of one that has ended since.
    void startBesideALivingCopyAfterAnotherDied() {
        toolkit::writeFile(dataFile(setAside), "saved design");
        fs::create_directories(home / "state");
        toolkit::FileLock lock;
        ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
        start();
        ASSERT_EQ(dataFileContent(setAside), "saved design");
    }
    void unblock() const {
        fs::remove(dataFile(layoutFileName));
        fs::rename(dataFile("checked"), dataFile(layoutFileName));
    }
};

TEST_F(CheckPoint, SetsTheLayoutAsideAndWritesThePresentOne) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_NE(dataFileContent(layoutFileName), before);
    EXPECT_TRUE(dataFileContent(layoutFileName).starts_with("' ****"));
    EXPECT_TRUE(traced("CheckPointShapes"));
}

TEST_F(CheckPoint, ReplacesAnEarlierOne) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    toolkit::writeFile(dataFile(setAside), "earlier");
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
}

TEST_F(CheckPoint, IsUndoneByRestoring) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

TEST_F(CheckPoint, TakenTwiceIsUndoneToWhatWasBeforeTheFirst) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    for (int i = 0; i < 2; ++i) {
        form.AMark[1].Left += 150;
        CheckPointShapes(form);
    }
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_EQ(form.LayoutInMemory, before);
}

TEST_F(CheckPoint, RestoringWithoutOneDoesNothing) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_EQ(traceLines().back(), "RestoreShapes");
}

TEST_F(CheckPoint, RestoringBringsALayoutThatIsGone) {
    start();
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::remove(dataFile(layoutFileName));
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), "aside");
}

TEST_F(CheckPoint, LeftBehindIsRestoredAtTheNextStart) {
    fs::copy_file(dataFile(layoutFileName), dataFile(setAside));
    writeLayout(smallLayout({{.left = 1, .top = 1, .width = 9, .height = 9}},
                            {{.left = 1, .top = 50, .width = 90, .height = 9}}));
    start();
    EXPECT_GT(form.AMark.UBound(), 200);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

TEST_F(CheckPoint, OfACopyThatIsAtWorkIsLeftAloneByAStart) {
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::create_directories(home / "state");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    const std::string before = dataFileContent(layoutFileName);
    start();
    EXPECT_FALSE(traced("RestoreShapes"));
    EXPECT_EQ(dataFileContent(setAside), "aside");
    EXPECT_EQ(dataFileContent(layoutFileName), before);
}

TEST_F(CheckPoint, OfACopyThatIsAtWorkIsLeftAloneByAJobOfThisOne) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::create_directories(home / "state");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), "aside");
    EXPECT_NE(form.LayoutInMemory, before);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(setAside), "aside");
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_EQ(form.LayoutInMemory, before);
}

TEST_F(CheckPoint, OfADeadCopyIsRestoredAtTheNextStart) {
    fs::copy_file(dataFile(layoutFileName), dataFile(setAside));
    writeLayout("broken");
    fs::create_directories(home / "state");
    toolkit::writeFile(home / "state" / "changes-1.lock", "");
    start();
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
    EXPECT_GT(form.AMark.UBound(), 200);
}

TEST_F(CheckPoint, OfADeadCopyIsKeptUnderANameOfItsOwn) {
    startBesideALivingCopyAfterAnotherDied();
    const std::string before = dataFileContent(layoutFileName);
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_EQ(dataFileContent("Definitions.kept"), "saved design");
    EXPECT_TRUE(traced("$$TempDef.Ini of a copy that has ended is Definitions.kept now"));
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_EQ(dataFileContent("Definitions.kept"), "saved design");
}

TEST_F(CheckPoint, OfADeadCopyGoesOverNoneThatWasKeptBefore) {
    startBesideALivingCopyAfterAnotherDied();
    toolkit::writeFile(dataFile("Definitions.kept"), "older design");
    fs::create_directory(dataFile("Definitions 2.kept"));
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent("Definitions.kept"), "older design");
    EXPECT_EQ(dataFileContent("Definitions 3.kept"), "saved design");
}

TEST_F(CheckPoint, OfADeadCopyIsKeptOnceOnly) {
    startBesideALivingCopyAfterAnotherDied();
    toolkit::writeFile(dataFile("Definitions.kept"), "saved design");
    CheckPointShapes(form);
    EXPECT_FALSE(fs::exists(dataFile("Definitions 2.kept")));
    RestoreShapes(form);
    fs::remove(dataFile("Definitions.kept"));
    fs::copy_file(dataFile(layoutFileName), dataFile(setAside));
    CheckPointShapes(form);
    EXPECT_FALSE(fs::exists(dataFile("Definitions.kept"))) << "one that is in force anyway";
}

TEST_F(CheckPoint, OfADeadCopyIsNotPutBackOverADesignThatWasSavedSince) {
    startBesideALivingCopyAfterAnotherDied();
    form.AMark[1].Left += 300;
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent(layoutFileName);
    EXPECT_EQ(dataFileContent("Definitions.kept"), "saved design");
    // As the next start does.
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), saved);
}

TEST_F(CheckPoint, OfACopyThatIsAtWorkIsLeftAloneByASavedDesign) {
    start();
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::create_directories(home / "state");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    MSaveShapes_Click(form);
    EXPECT_EQ(dataFileContent(setAside), "aside");
    EXPECT_FALSE(fs::exists(dataFile("Definitions.kept")));
}

TEST_F(CheckPoint, IsKnownToOtherCopiesAsOneOfALivingCopy) {
    start();
    const Zevlin other;
    EXPECT_FALSE(isAnotherCopyAtWork(other));
    CheckPointShapes(form);
    EXPECT_TRUE(isAnotherCopyAtWork(other));
    EXPECT_FALSE(isAnotherCopyAtWork(form));
    RestoreShapes(form);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
    form.Journal.lock.release();
    EXPECT_FALSE(isAnotherCopyAtWork(other));
}

TEST_F(CheckPoint, WithoutALayoutIsTracedAndWritesNothing) {
    start();
    fs::remove(dataFile(layoutFileName));
    announceError("Error in CheckPointShapes 53, File not found");
    CheckPointShapes(form);
    EXPECT_TRUE(traced("Error in CheckPointShapes 53, File not found"));
    EXPECT_FALSE(fs::exists(dataFile(layoutFileName)));
}

TEST_F(CheckPoint, WithAFolderInItsPlaceIsTracedAndKeepsTheLayout) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    fs::create_directory(dataFile(setAside));
    announceError("Error in CheckPointShapes 75, Path/File access error");
    CheckPointShapes(form);
    EXPECT_TRUE(traced("Error in CheckPointShapes 75, Path/File access error"));
    EXPECT_EQ(dataFileContent(layoutFileName), before);
}

TEST_F(CheckPoint, RestoringOverAFolderIsTraced) {
    start();
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::remove(dataFile(layoutFileName));
    fs::create_directory(dataFile(layoutFileName));
    announceError("Error in RestoreShapes: #75, Path/File access error");
    RestoreShapes(form);
    EXPECT_TRUE(traced("Error in RestoreShapes: #75, Path/File access error"));
    EXPECT_EQ(dataFileContent(setAside), "aside");
}

TEST_F(CheckPoint, ThatCouldntBeUndoneIsUndoneBeforeTheNextOne) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    failToRestore();
    ASSERT_EQ(dataFileContent(setAside), before);
    unblock();
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_NE(dataFileContent(layoutFileName), before);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

TEST_F(CheckPoint, ThatStillCantBeUndoneKeepsTheLayoutThatIsSetAside) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    failToRestore();
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_EQ(form.LayoutSetAside, before);
}

TEST_F(CheckPoint, ThatCouldntBeUndoneIsUndoneByARebuildWhichReadsThePlayersLayout) {
    start();
    const std::string before = dataFileContent(layoutFileName);
    const float left = form.AMark[1].Left;
    failToRestore();
    unblock();
    RebuildScreenImage(form);
    EXPECT_EQ(dataFileContent(layoutFileName), before);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
    EXPECT_EQ(form.AMark[1].Left, left);
}

TEST_F(CheckPoint, ThatStillCantBeUndoneLeavesTheFieldsOfARebuildToMemory) {
    start();
    const float left = form.AMark[1].Left;
    const std::string before = dataFileContent(layoutFileName);
    failToRestore();
    RebuildScreenImage(form);
    EXPECT_EQ(form.AMark[1].Left, left);
    EXPECT_EQ(form.LayoutInMemory, before);
    EXPECT_EQ(dataFileContent(setAside), before);
}

TEST_F(CheckPoint, ThatCouldntBeUndoneIsForgottenWhenThePlayerSavesADesign) {
    start();
    failToRestore();
    unblock();
    form.AMark[1].Left += 300;
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent(layoutFileName);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
    RebuildScreenImage(form);
    EXPECT_EQ(dataFileContent(layoutFileName), saved);
}

TEST_F(CheckPoint, BeforeTheFieldsExistTouchesNothing) {
    wireOnly();
    form.DataFolder = dataFolder;
    writeLayout("untouched");
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(layoutFileName), "untouched");
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

} // namespace
} // namespace zev::test
