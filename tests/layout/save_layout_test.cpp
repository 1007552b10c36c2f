
#include "form/write_options.h"
#include "layout/save_layout.h"
#include "layout/write_layout.h"
#include "support/form_test.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class SaveLayout : public FormTest {};

TEST_F(SaveLayout, WrittenAndReadAgainLeavesEveryPlace) {
    start();
    const auto marks = form.AMark;
    const auto texts = form.AText;
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent("Definitions.Ini");
    RebuildScreenImage(form);
    ASSERT_EQ(form.AMark.UBound(), marks.UBound());
    ASSERT_EQ(form.AText.UBound(), texts.UBound());
    for (int i = 1; i <= marks.UBound(); ++i) {
        EXPECT_NEAR(form.AMark[i].Left, marks[i].Left, 15) << i;
        EXPECT_NEAR(form.AMark[i].Top, marks[i].Top, 15) << i;
        EXPECT_EQ(form.AMark[i].Width, marks[i].Width) << i;
        EXPECT_EQ(form.AMark[i].Caption, marks[i].Caption) << i;
        EXPECT_EQ(form.AMark[i].ForeColor, marks[i].ForeColor) << i;
    }
    for (int i = 1; i <= texts.UBound(); ++i) {
        EXPECT_NEAR(form.AText[i].Left, texts[i].Left, 15) << i;
        EXPECT_NEAR(form.AText[i].Top, texts[i].Top, 15) << i;
        EXPECT_NEAR(form.AText[i].Width, texts[i].Width, 15) << i;
    }
    MSaveShapes_Click(form);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), saved);
}

TEST_F(SaveLayout, LeavesCardAndDesignUnchanged) {
    start();
    clickMark(1);
    form.DesignDirty = true;
    form.OrigIndex = 4;
    MSaveShapes_Click(form);
    EXPECT_FALSE(form.CardModified);
    EXPECT_FALSE(form.DesignDirty);
    EXPECT_EQ(form.OrigIndex, 0);
}

TEST_F(SaveLayout, DropsTheTextChangeAlsoWhilePrinting) {
    start();
    form.OrigIndex = 4;
    form.Printing = true;
    MSaveShapes_Click(form);
    EXPECT_EQ(form.OrigIndex, 0);
}

TEST_F(SaveLayout, WritesNothingBeforeTheFieldsExist) {
    wireOnly();
    form.DataFolder = dataFolder;
    writeLayout("untouched");
    MSaveShapes_Click(form);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), "untouched");
    EXPECT_TRUE(traced("MSaveShapes_Click"));
}

TEST_F(SaveLayout, AFolderInItsPlaceEndsTheProgramWithoutABox) {
    start();
    fs::remove(dataFile("Definitions.Ini"));
    fs::create_directory(dataFile("Definitions.Ini"));
    announceError("Error in MSaveShapes 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { MSaveShapes_Click(form); }));
    EXPECT_TRUE(traced("Error in MSaveShapes 75, Path/File access error"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(SaveLayout, AFullDiskEndsTheProgram) {
    start();
    fs::remove(dataFile("Definitions.Ini"));
    fs::create_symlink("/dev/full", dataFile("Definitions.Ini"));
    announceError("Error in MSaveShapes 61, Disk full");
    EXPECT_TRUE(failsProgram([&] { MSaveShapes_Click(form); }));
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
