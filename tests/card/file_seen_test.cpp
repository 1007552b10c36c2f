#include "card/file_seen.h"

#include "card/write_card.h"
#include "card_form_test.h"
#include "toolkit/base/write_file.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class FileSeen : public CardFormTest {
  protected:
    FileSeen() {
        // The other program writes it while the card is open.
        theirs_ = cardFile({.marks = {"3,1,0"}});
    }
    void openAndChange() {
        start();
        openCard("Jones", {.marks = {"1,1,0"}});
        clickMark(2);
    }
    void changeBehindTheProgramsBack() const { toolkit::writeFile(dataFile("Jones.zev"), theirs_); }
    [[nodiscard]] const std::string& theirs() const { return theirs_; }
    void expectQuestion() const {
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].text, "Jones was changed by another program since you opened it. Save "
                                 "yours over it?");
        EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNoSaveAs);
    }
    /// Saving asks, and No leaves the other program's file.
    void expectNoKeepsTheirs() {
        answer(toolkit::Answer::No);
        choose("File>Save");
        expectQuestion();
        EXPECT_EQ(dataFileContent("Jones.zev"), theirs());
    }

  private:
    std::string theirs_;
};

TEST_F(FileSeen, ASaveWithoutSuchAChangeIsNeverAsked) {
    openAndChange();
    choose("File>Save");
    clickMark(2);
    choose("File>Save");
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(form.CardModified);
}

TEST_F(FileSeen, YesSavesOverIt) {
    openAndChange();
    changeBehindTheProgramsBack();
    answer(toolkit::Answer::Yes);
    choose("File>Save");
    expectQuestion();
    EXPECT_NE(dataFileContent("Jones.zev").find("2,1,0"), std::string::npos);
    EXPECT_FALSE(form.CardModified);
    clickMark(3);
    choose("File>Save");
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(FileSeen, NoLeavesBothAsTheyAre) {
    openAndChange();
    changeBehindTheProgramsBack();
    expectNoKeepsTheirs();
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(FileSeen, SaveAsSavesUnderAnotherName) {
    openAndChange();
    changeBehindTheProgramsBack();
    answer(toolkit::Answer::SaveAs);
    answerName("Mine");
    choose("File>Save");
    expectQuestion();
    EXPECT_EQ(dataFileContent("Jones.zev"), theirs());
    EXPECT_NE(dataFileContent("Mine.zev").find("2,1,0"), std::string::npos);
    EXPECT_EQ(form.CardName, "Mine");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(FileSeen, ARemovedFileIsAChange) {
    openAndChange();
    fs::remove(dataFile("Jones.zev"));
    answer(toolkit::Answer::No);
    choose("File>Save");
    expectQuestion();
    EXPECT_FALSE(fs::exists(dataFile("Jones.zev")));
}

TEST_F(FileSeen, AFileThatCameMeanwhileIsAChange) {
    start();
    openNamed("Jones");
    clickMark(1);
    changeBehindTheProgramsBack();
    expectNoKeepsTheirs();
}

TEST_F(FileSeen, LeavingWithNoToTheQuestionStays) {
    openAndChange();
    changeBehindTheProgramsBack();
    answer(toolkit::Answer::Yes);
    answer(toolkit::Answer::No);
    EXPECT_EQ(exitCodeOf([&] { choose("File>Exit"); }), std::nullopt);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(dataFileContent("Jones.zev"), theirs());
}

TEST_F(FileSeen, SurvivesAZoom) {
    openAndChange();
    changeBehindTheProgramsBack();
    choose("View>Zoom In (Bigger)                   Ctrl +");
    answer(toolkit::Answer::No);
    choose("File>Save");
    expectQuestion();
}

TEST_F(FileSeen, OverwritingByNameIsAskedOnce) {
    openAndChange();
    changeBehindTheProgramsBack();
    answerName("Jones");
    answer(toolkit::Answer::Yes);
    choose("File>Save As...");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "Overwrite existing file?");
}

/// The file is "Jones.zev.zev". The card is then named "Jones", whose file is another one.
TEST_F(FileSeen, AnotherCardsFileIsNotOverwrittenByOneWhoseNameLostItsExtension) {
    start();
    writeCard("Jones", cardFile({.marks = {"3,1,0"}}));
    openCard("Jones.zev", {.marks = {"1,1,0"}});
    ASSERT_EQ(form.CardName, "Jones");
    ASSERT_TRUE(form.AMark[1].Visible);
    clickMark(2);
    expectNoKeepsTheirs();
    EXPECT_TRUE(form.CardModified);
}

TEST_F(FileSeen, AnotherCardsFileIsNotOverwrittenByOneWhoseNameIsTrimmed) {
    writeCard("Jones", theirs());
    writeCard(" Jones", cardFile({.marks = {"1,1,0"}}));
    start(" Jones");
    ASSERT_TRUE(form.AMark[1].Visible);
    clickMark(2);
    expectNoKeepsTheirs();
}

/// The program has seen nothing of it: the blank card in its place must not replace it without a
/// question.
TEST_F(FileSeen, AFileThatCouldntBeReadIsNotOverwrittenUnasked) {
    start();
    fs::create_symlink("/proc/self/mem", dataFile("Jones.zev"));
    announceError("Error in GetCardFile 57, Device I/O error");
    openNamed("Jones");
    fs::remove(dataFile("Jones.zev"));
    changeBehindTheProgramsBack();
    clickMark(1);
    expectNoKeepsTheirs();
}

TEST_F(FileSeen, ABadCardIsOverwrittenWithoutAQuestion) {
    start();
    announceError("Error in GetCardFile");
    writeCard("Jones", "\"a\",\"b\"\r\nbad\r\n");
    openNamed("Jones");
    clickMark(1);
    choose("File>Save");
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
