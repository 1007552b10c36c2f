#include "app/unload.h"

#include "app/layouts.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class Unload : public FormTest {
  protected:
    void startChanged() {
        writeLayout(fewFields());
        start();
        clickMark(1);
        ASSERT_TRUE(form.CardModified);
    }
};

TEST_F(Unload, ClosingAnUnchangedCardAsksNothing) {
    start();
    toolkit::test::closeWindow();
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(traced("Form_Unload 0"));
}

TEST_F(Unload, RefusingToLoseChangesKeepsAllState) {
    startChanged();
    const auto printer = form.Myprinter.hdc;
    answer(toolkit::Answer::Cancel);
    EXPECT_TRUE(Form_Unload(form, unloadByPlayer));
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.Myprinter.hdc, printer);
    EXPECT_TRUE(form.Visible);
}

TEST_F(Unload, ClosingTheWindowAsksAboutChanges) {
    startChanged();
    answer(toolkit::Answer::Cancel);
    toolkit::test::closeWindow();
    EXPECT_EQ(boxes.size(), 1U);
    clickMark(2);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(Unload, ExitTracesTheModifiedFlagAndStaysWhenRefused) {
    startChanged();
    answer(toolkit::Answer::Cancel);
    EXPECT_FALSE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_TRUE(traced("MExit_Click True"));
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(Unload, ExitWithoutSavingAsksOnceAndWritesNothing) {
    startChanged();
    answer(toolkit::Answer::No);
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_EQ(boxes.size(), 1U);
    for (const auto& entry : fs::directory_iterator(dataFolder)) {
        EXPECT_NE(entry.path().extension(), ".zev");
    }
}

TEST_F(Unload, ExitCanSaveTheCardFirst) {
    startChanged();
    answer(toolkit::Answer::Yes);
    answerName("Saved");
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_TRUE(fs::exists(dataFile("Saved.zev")));
}

TEST_F(Unload, ExitOfAnUnchangedCardUnloadsTheFormAndEnds) {
    start();
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_TRUE(traced("MExit_Click False"));
    EXPECT_TRUE(traced("Form_Unload 1"));
}

} // namespace
} // namespace zev::test
