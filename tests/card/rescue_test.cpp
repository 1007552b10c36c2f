#include "card/rescue.h"

#include "app/second_run.h"
#include "card/write_card.h"
#include "card_form_test.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog_answers.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class RescueTest : public CardFormTest {
  protected:
    [[nodiscard]] fs::path journal(int number = 1) const {
        return home / "state" / ("changes-" + std::to_string(number) + ".zev");
    }
    /// The program is killed once its journal is written; its lock goes with it.
    void kill() {
        toolkit::test::elapseAlarms();
        form.Journal.lock.release();
    }
    /// Makes what a dead copy of the program leaves.
    void leave(int number, const std::string& name, const std::string& text) {
        fs::create_directories(home / "state");
        RescuedCard card{.name = name, .file = {}, .document = {}};
        card.document.programVersion = "2.0.0";
        card.document.marks = {true, false, false};
        card.document.texts = {{text, 0}, {"", 0}, {"", 0}};
        toolkit::writeFile(journal(number), writeRescue(card));
        fs::last_write_time(journal(number),
                            fs::file_time_type::clock::now() - std::chrono::hours(10 - number));
    }
    /// Starts and cancels both the question and the chooser.
    void expectQuestionAtNextStart() {
        answer(toolkit::Answer::Cancel);
        answerChooser([] { toolkit::test::typeKey(toolkit::key::escape); });
        const SecondRun run(window);
        EXPECT_EQ(boxes.size(), 1U);
    }
    static constexpr const char* temporaryCard =
        "' This contains the settings for the card called: $$Tempcard\r\n"
        "' Program version: 2.0.0\r\n\"Pat\",\"\"\r\n1\r\n1,1,0\r\n1\r\n1,\"old\",0\r\n";
};

TEST_F(RescueTest, BringsTheCardBackWithNameContentAndStar) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"8\"", .texts = {"1,\"5^h\",14"}});
    clickMark(2);
    typeInOpenField(2, "half");
    kill();
    answer(toolkit::Answer::Yes);
    SecondRun run(window);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Zevlin ended before your changes to 'Jones' were saved. Do you want them back?");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNoCancel);
    EXPECT_EQ(boxes[0].preset, toolkit::Answer::Yes);
    EXPECT_EQ(run.form.CardName, "Jones");
    EXPECT_TRUE(run.form.CardModified);
    EXPECT_EQ(run.form.Caption, "Zevlin  ( Jones ) *");
    EXPECT_TRUE(run.form.AMark[2].Visible);
    EXPECT_EQ(run.form.AText[1].Tag, "5^h");
    EXPECT_TRUE(run.form.AText[1].Font.Italic);
    EXPECT_EQ(run.form.SText.UBound(), 1);
    EXPECT_EQ(run.form.AText[2].Tag, "half");
    EXPECT_EQ(run.form.PartnerName, "Jane");
    EXPECT_EQ(choosers.size(), 1U);
    EXPECT_TRUE(fs::exists(journal()));
}

TEST_F(RescueTest, KnowsWhatAnotherProgramHasMadeOfTheFileMeanwhile) {
    start();
    openCard("Jones", {});
    clickMark(2);
    kill();
    answer(toolkit::Answer::Yes);
    SecondRun run(window);
    const std::string theirs = cardFile({.marks = {"3,1,0"}});
    writeCard("Jones", theirs);
    answer(toolkit::Answer::No);
    choose("File>Save");
    EXPECT_EQ(boxes.size(), 2U);
    EXPECT_EQ(dataFileContent("Jones.zev"), theirs);
    writeCard("Jones", cardFile({}));
    choose("File>Save");
    EXPECT_EQ(boxes.size(), 2U);
    EXPECT_NE(dataFileContent("Jones.zev").find("2,1,0"), std::string::npos);
}

TEST_F(RescueTest, IsAskedBeforeThePlayerSeesAnythingElse) {
    leave(1, "Jones", "text");
    bool wasShown = true;
    toolkit::answerDialogsWith({.message = [&](const toolkit::MessageBox&) {
        wasShown = form.Visible;
        return toolkit::Answer::No;
    }});
    start();
    EXPECT_FALSE(wasShown);
}

TEST_F(RescueTest, SavedItIsGone) {
    leave(1, "Jones", "text");
    answer(toolkit::Answer::Yes);
    start();
    choose("File>Save");
    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_NE(dataFileContent("Jones.zev").find("1,\"text\",0"), std::string::npos);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(RescueTest, OfWhatTheCardsFileHoldsByNowGoesWithoutAQuestion) {
    start();
    openCard("Jones", {});
    clickMark(2);
    typeInto(1, "5^h");
    toolkit::test::elapseAlarms();
    const std::string stale = toolkit::readFile(journal());
    choose("File>Save");
    form.Journal.lock.release();
    // As if the journal couldn't be removed at the save.
    toolkit::writeFile(journal(), stale);
    answerChooser([] { toolkit::test::typeKey(toolkit::key::escape); });
    const SecondRun run(window);
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(fs::exists(journal()));
}

TEST_F(RescueTest, OfMoreThanTheCardsFileHoldsIsAsked) {
    start();
    openCard("Jones", {});
    clickMark(2);
    choose("File>Save");
    clickMark(1);
    kill();
    expectQuestionAtNextStart();
    EXPECT_TRUE(fs::exists(journal()));
}

TEST_F(RescueTest, OfACardThatAnotherProgramHasChangedSinceIsAsked) {
    start();
    openCard("Jones", {});
    typeInto(1, "mine");
    kill();
    writeCard("Jones", cardFile({.texts = {"1,\"theirs\",0"}}));
    expectQuestionAtNextStart();
    ASSERT_TRUE(fs::exists(journal()));
    EXPECT_EQ(readRescue(toolkit::readFile(journal())).document.texts[0].text, "mine");
}

/// The content is that of the file, but nobody has saved it since: the question comes.
TEST_F(RescueTest, OfAChangeThatWasTakenBackByHandIsAsked) {
    start();
    openCard("Jones", {});
    clickMark(2);
    choose("File>Save");
    clickMark(1);
    clickMark(1);
    kill();
    expectQuestionAtNextStart();
    EXPECT_TRUE(fs::exists(journal()));
}

TEST_F(RescueTest, OfAnEmptyJournalIsNone) {
    fs::create_directories(home / "state");
    toolkit::writeFile(journal(), "");
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_FALSE(fs::exists(home / "state" / "changes-1.damaged"));
}

TEST_F(RescueTest, IsStillThereWhenTheSecondRunIsKilledToo) {
    leave(1, "Jones", "text");
    answer(toolkit::Answer::Yes);
    start();
    kill();
    answer(toolkit::Answer::Yes);
    const SecondRun run(window);
    EXPECT_EQ(run.form.AText[1].Tag, "text");
}

TEST_F(RescueTest, NoGivesItUp) {
    leave(1, "Jones", "text");
    answer(toolkit::Answer::No);
    start();
    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_EQ(form.CardName, "");
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.AText[1].Tag, "");
}

TEST_F(RescueTest, CancelKeepsItAndTheNextStartAsksAgain) {
    leave(1, "Jones", "text");
    answer(toolkit::Answer::Cancel);
    start();
    EXPECT_EQ(form.AText[1].Tag, "");
    clickMark(2);
    toolkit::test::elapseAlarms();
    EXPECT_TRUE(fs::exists(journal(2)));
    EXPECT_TRUE(fs::exists(journal(1)));
    kill();
    answer(toolkit::Answer::Yes);
    const SecondRun run(window);
    EXPECT_EQ(run.form.CardName, "Jones");
    EXPECT_EQ(run.form.AText[1].Tag, "text");
}

TEST_F(RescueTest, OfAnUnnamedCardIsUnnamed) {
    leave(1, "", "text");
    answer(toolkit::Answer::Yes);
    start();
    EXPECT_EQ(boxes[0].text,
              "Zevlin ended before your changes to '(unnamed)' were saved. Do you want them back?");
    EXPECT_EQ(form.CardName, "");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(RescueTest, OfSeveralTheOldestIsAskedFirstAndTheOthersUntilOneIsWanted) {
    for (int i = 1; i <= 3; ++i) leave(i, "Card " + std::to_string(i), "text");
    answer(toolkit::Answer::No);
    answer(toolkit::Answer::Yes);
    start();
    EXPECT_EQ(boxes.size(), 2U);
    EXPECT_EQ(form.CardName, "Card 2");
    EXPECT_FALSE(fs::exists(journal(1)));
    EXPECT_TRUE(fs::exists(journal(2)));
    EXPECT_TRUE(fs::exists(journal(3)));
}

TEST_F(RescueTest, LeavesALivingCopyItsFile) {
    leave(1, "Jones", "text");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(fs::exists(journal()));
}

TEST_F(RescueTest, ComesBeforeTheCardOfTheCommandLine) {
    writeCard("Smith", cardFile({}));
    leave(1, "Jones", "text");
    answer(toolkit::Answer::Yes);
    start("Smith");
    EXPECT_EQ(form.CardName, "Jones");
}

TEST_F(RescueTest, GivenUpLetsTheCardOfTheCommandLineOpen) {
    writeCard("Smith", cardFile({}));
    leave(1, "Jones", "text");
    answer(toolkit::Answer::No);
    start("Smith");
    EXPECT_EQ(form.CardName, "Smith");
}

TEST_F(RescueTest, OfASmallerLayoutKeepsItsFile) {
    RescuedCard card{.name = "Jones", .file = {}, .document = {}};
    card.document.programVersion = "2.0.0";
    card.document.marks.assign(9, true);
    card.document.texts.resize(3);
    fs::create_directories(home / "state");
    toolkit::writeFile(journal(), writeRescue(card));
    answer(toolkit::Answer::Yes);
    start();
    toolkit::test::elapseAlarms();
    EXPECT_EQ(readRescue(toolkit::readFile(journal(1))).document.marks.size(), 9U);
    EXPECT_TRUE(fs::exists(journal(2)));
}

TEST_F(RescueTest, ThatCantBeReadIsPutAside) {
    fs::create_directories(home / "state");
    toolkit::writeFile(journal(), "garbage");
    announceError("Error in a journal: #");
    start();
    EXPECT_FALSE(fs::exists(journal()));
    EXPECT_EQ(toolkit::readFile(home / "state" / "changes-1.damaged"), "garbage");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(RescueTest, ATemporaryCardWithoutAJournalIsOffered) {
    writeCard("$$Tempcard", temporaryCard);
    answer(toolkit::Answer::Yes);
    start();
    EXPECT_EQ(boxes[0].text,
              "Zevlin ended before your changes to '(unnamed)' were saved. Do you want them back?");
    EXPECT_EQ(form.AText[1].Tag, "old");
    EXPECT_EQ(form.PartnerName, "Pat");
    EXPECT_EQ(form.CardName, "");
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
}

TEST_F(RescueTest, ATemporaryCardIsKeptByCancelThroughAZoom) {
    writeCard("$$Tempcard", temporaryCard);
    answer(toolkit::Answer::Cancel);
    start();
    choose("View>Zoom In (Bigger)                   Ctrl +");
    answer(toolkit::Answer::Yes);
    const SecondRun run(window);
    EXPECT_EQ(run.form.AText[1].Tag, "old");
}

TEST_F(RescueTest, ATemporaryCardIsGivenUpByNo) {
    writeCard("$$Tempcard", temporaryCard);
    answer(toolkit::Answer::No);
    start();
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
    EXPECT_TRUE(fs::is_empty(home / "state"));
}

TEST_F(RescueTest, ATemporaryCardBesideAJournalGoes) {
    writeCard("$$Tempcard", temporaryCard);
    leave(1, "Jones", "text");
    answer(toolkit::Answer::Yes);
    start();
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
    EXPECT_FALSE(fs::exists(journal(2)));
}

TEST_F(RescueTest, ATemporaryCardOfALivingCopyIsLeftAlone) {
    writeCard("$$Tempcard", temporaryCard);
    fs::create_directories(home / "state");
    toolkit::FileLock lock;
    ASSERT_TRUE(lock.take(home / "state" / "changes-1.lock"));
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(fs::exists(dataFile("$$Tempcard.zev")));
}

TEST_F(RescueTest, AnEmptyOrBlankTemporaryCardGoesWithoutAQuestion) {
    for (const std::string& content :
         {std::string(), cardFile({}),
          std::string("\"\",\"\"\r\n1\r\n1,0,0\r\n1\r\n1,\"\",0\r\n")}) {
        writeCard("$$Tempcard", content);
        const SecondRun run(window);
        EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
    }
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
