#include "layout/check_point.h"
#include "layout/write_layout.h"

#include "layout/save_layout.h"
#include "support/form_test.h"
#include "toolkit/base/write_file.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* setAside = "$$TempDef.Ini";
constexpr const char* layoutName = "Definitions.Ini";

class CheckPoint : public FormTest {
  protected:
    /// A check-point of a moved field; putting back what it sets aside fails, as a folder has taken
    /// the layout's name.
    void failToRestore() {
        const float left = form.AMark[1].Left;
        form.AMark[1].Left += 150;
        CheckPointShapes(form);
        form.AMark[1].Left = left;
        fs::rename(dataFile(layoutName), dataFile("checked"));
        fs::create_directory(dataFile(layoutName));
        announceError("Error in RestoreShapes: #75, Path/File access error");
        RestoreShapes(form);
    }
    void unblock() const {
        fs::remove(dataFile(layoutName));
        fs::rename(dataFile("checked"), dataFile(layoutName));
    }
};

TEST_F(CheckPoint, SetsTheLayoutAsideAndWritesThePresentOne) {
    start();
    const std::string before = dataFileContent(layoutName);
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_NE(dataFileContent(layoutName), before);
    EXPECT_TRUE(dataFileContent(layoutName).starts_with("' ****"));
    EXPECT_TRUE(traced("CheckPointShapes"));
}

TEST_F(CheckPoint, ReplacesAnEarlierOne) {
    start();
    const std::string before = dataFileContent(layoutName);
    toolkit::writeFile(dataFile(setAside), "earlier");
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
}

TEST_F(CheckPoint, IsUndoneByRestoring) {
    start();
    const std::string before = dataFileContent(layoutName);
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutName), before);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

TEST_F(CheckPoint, TakenTwiceIsUndoneToWhatWasBeforeTheFirst) {
    start();
    const std::string before = dataFileContent(layoutName);
    for (int i = 0; i < 2; ++i) {
        form.AMark[1].Left += 150;
        CheckPointShapes(form);
    }
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutName), before);
    EXPECT_EQ(form.LayoutInMemory, before);
}

TEST_F(CheckPoint, RestoringWithoutOneDoesNothing) {
    start();
    const std::string before = dataFileContent(layoutName);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutName), before);
    EXPECT_EQ(traceLines().back(), "RestoreShapes");
}

TEST_F(CheckPoint, RestoringBringsALayoutThatIsGone) {
    start();
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::remove(dataFile(layoutName));
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutName), "aside");
}

TEST_F(CheckPoint, LeftBehindIsRestoredAtTheNextStart) {
    fs::copy_file(dataFile(layoutName), dataFile(setAside));
    writeLayout(smallLayout({{.left = 1, .top = 1, .width = 9, .height = 9}},
                            {{.left = 1, .top = 50, .width = 90, .height = 9}}));
    start();
    EXPECT_GT(form.AMark.UBound(), 200);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

TEST_F(CheckPoint, WithoutALayoutIsTracedAndWritesNothing) {
    start();
    fs::remove(dataFile(layoutName));
    announceError("Error in CheckPointShapes 53, File not found");
    CheckPointShapes(form);
    EXPECT_TRUE(traced("Error in CheckPointShapes 53, File not found"));
    EXPECT_FALSE(fs::exists(dataFile(layoutName)));
}

TEST_F(CheckPoint, WithAFolderInItsPlaceIsTracedAndKeepsTheLayout) {
    start();
    const std::string before = dataFileContent(layoutName);
    fs::create_directory(dataFile(setAside));
    announceError("Error in CheckPointShapes 75, Path/File access error");
    CheckPointShapes(form);
    EXPECT_TRUE(traced("Error in CheckPointShapes 75, Path/File access error"));
    EXPECT_EQ(dataFileContent(layoutName), before);
}

TEST_F(CheckPoint, RestoringOverAFolderIsTraced) {
    start();
    toolkit::writeFile(dataFile(setAside), "aside");
    fs::remove(dataFile(layoutName));
    fs::create_directory(dataFile(layoutName));
    announceError("Error in RestoreShapes: #75, Path/File access error");
    RestoreShapes(form);
    EXPECT_TRUE(traced("Error in RestoreShapes: #75, Path/File access error"));
    EXPECT_EQ(dataFileContent(setAside), "aside");
}

TEST_F(CheckPoint, ThatCouldntBeUndoneIsUndoneBeforeTheNextOne) {
    start();
    const std::string before = dataFileContent(layoutName);
    failToRestore();
    ASSERT_EQ(dataFileContent(setAside), before);
    unblock();
    form.AMark[1].Left += 150;
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_NE(dataFileContent(layoutName), before);
    RestoreShapes(form);
    EXPECT_EQ(dataFileContent(layoutName), before);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

TEST_F(CheckPoint, ThatStillCantBeUndoneKeepsTheLayoutThatIsSetAside) {
    start();
    const std::string before = dataFileContent(layoutName);
    failToRestore();
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(setAside), before);
    EXPECT_EQ(form.LayoutSetAside, before);
}

TEST_F(CheckPoint, ThatCouldntBeUndoneIsUndoneByARebuildWhichReadsThePlayersLayout) {
    start();
    const std::string before = dataFileContent(layoutName);
    const float left = form.AMark[1].Left;
    failToRestore();
    unblock();
    RebuildScreenImage(form);
    EXPECT_EQ(dataFileContent(layoutName), before);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
    EXPECT_EQ(form.AMark[1].Left, left);
}

TEST_F(CheckPoint, ThatStillCantBeUndoneLeavesTheFieldsOfARebuildToMemory) {
    start();
    const float left = form.AMark[1].Left;
    const std::string before = dataFileContent(layoutName);
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
    const std::string saved = dataFileContent(layoutName);
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
    RebuildScreenImage(form);
    EXPECT_EQ(dataFileContent(layoutName), saved);
}

TEST_F(CheckPoint, BeforeTheFieldsExistTouchesNothing) {
    wireOnly();
    form.DataFolder = dataFolder;
    writeLayout("untouched");
    CheckPointShapes(form);
    EXPECT_EQ(dataFileContent(layoutName), "untouched");
    EXPECT_FALSE(fs::exists(dataFile(setAside)));
}

} // namespace
} // namespace zev::test
