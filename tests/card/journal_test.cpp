#include "card/journal.h"

#include <cstdlib>

#include "card/chooser_menu.h"
#include "card/journal_fixture.h"
#include "card/save.h"
#include "form/unsaved.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class Journal : public JournalTest {
  protected:
    [[nodiscard]] std::string text(std::size_t field) const {
        return content().document.texts.at(field - 1).text;
    }
    /// Nothing can be written where the journal would be.
    void blockStateFolder() const { toolkit::writeFile(home / "state", "no folder"); }
    /// Expects the journal to hold the second mark, set while it couldn't be written.
    void expectWrittenOnceTheFolderIsBack() const {
        ASSERT_FALSE(isThere());
        fs::remove(home / "state");
        toolkit::test::elapseAlarms();
        ASSERT_TRUE(isThere());
        EXPECT_TRUE(content().document.marks[1]);
    }
};

TEST_F(Journal, HoldsAChangeOnceItsAlarmHasRung) {
    start();
    clickMark(2);
    EXPECT_FALSE(isThere());
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    EXPECT_EQ(content().name, "");
    EXPECT_EQ(content().document.marks, (std::vector<bool>{false, true, false}));
}

TEST_F(Journal, IsThePlayersAlone) {
    start();
    clickMark(2);
    toolkit::test::elapseAlarms();
#ifndef _WIN32
    EXPECT_EQ(fs::status(home / "state").permissions(), fs::perms::owner_all);
#endif
}

TEST_F(Journal, HoldsTheCardsNamePartnerTextsAndStyles) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"8\"", .texts = {"1,\"5^h & up\",14"}});
    clickMark(1);
    toolkit::test::elapseAlarms();
    EXPECT_EQ(content().name, "Jones");
    EXPECT_EQ(content().document.partner, (CardPartner{"Jane", "8"}));
    EXPECT_EQ(text(1), "5^h && up");
    EXPECT_EQ(content().document.texts[0].switches, 14);
    EXPECT_TRUE(content().file.exists);
    EXPECT_EQ(content().file.size, fs::file_size(dataFile("Jones.zev")));
}

/// The styles alone don't make the card changed, but they are part of what would be saved.
TEST_F(Journal, OfAChangedCardHoldsTheStylesThatAllFieldsGot) {
    start();
    clickMark(1);
    toolkit::test::elapseAlarms();
    choose("Options>Left-Justify all text");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(content().document.texts[0].switches, text_switch::left);
    choose("Options>Boldface");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(content().document.texts[0].switches, text_switch::left | text_switch::bold);
}

TEST_F(Journal, HoldsWhatIsTypedIntoAnOpenField) {
    start();
    typeInOpenField(1, "half a wor");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(text(1), "half a wor");
    EXPECT_TRUE(form.CText.Visible);
    toolkit::test::typeText("d");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(text(1), "half a word");
}

/// A paste by middle click and an input method send text without a key.
TEST_F(Journal, HoldsWhatCameIntoAnOpenFieldWithoutAKey) {
    start();
    clickText(1);
    toolkit::test::compose("", "composed");
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    EXPECT_EQ(text(1), "composed");
}

TEST_F(Journal, HoldsWhatUndoBroughtBack) {
    start();
    typeInto(1, "five hearts");
    typeInOpenField(1, "x");
    toolkit::test::elapseAlarms();
    ASSERT_EQ(text(1), "x");
    toolkit::test::typeKey('Z', toolkit::shift::ctrl);
    ASSERT_EQ(form.CText.Text, "five hearts");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(text(1), "five hearts");
}

TEST_F(Journal, KnowsThatTheCardsFileWasDeletedInTheChooser) {
    start();
    openCard("Jones", {});
    clickMark(1);
    toolkit::test::elapseAlarms();
    ASSERT_EQ(content().name, "Jones");
    answerChooser([&] {
        form.FileList.ListIndex = 0;
        mpopDelete_Click(form);
        toolkit::test::typeKey(toolkit::key::escape);
    });
    choose("File>Save As...");
    ASSERT_EQ(form.CardName, "");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(content().name, "");
}

TEST_F(Journal, IsNotMadeForACardWithoutChanges) {
    start();
    openCard("Jones", {});
    clickText(1);
    toolkit::test::elapseAlarms();
    flushJournal(form);
    EXPECT_FALSE(isThere());
    EXPECT_FALSE(fs::exists(home / "state"));
}

TEST_F(Journal, IsWrittenBeforeARebuildAndStaysThroughIt) {
    start();
    clickMark(2);
    choose("View>Zoom In (Bigger)                   Ctrl +");
    ASSERT_TRUE(isThere());
    EXPECT_EQ(content().name, "");
    EXPECT_TRUE(content().document.marks[1]);
}

TEST_F(Journal, HoldsTheOwnNamesLineWhileThePartnersIsPrinted) {
    start();
    form.MyName = "Kim";
    openCard("Jones", {.partner = "\"Pat\",\"\"", .texts = {"3,\"Kim & Pat\",1"}});
    clickMark(2);
    whileAsking = [&] {
        toolkit::test::elapseAlarms();
        ASSERT_TRUE(isThere());
        EXPECT_EQ(text(3), "Kim && Pat");
        EXPECT_EQ(content().name, "Jones");
    };
    answerFile(home / "page.pdf");
    choose("File>Print Partner's card");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(text(3), "Kim && Pat");
}

TEST_F(Journal, IsWrittenAtOnceWhereTheProgramEnds) {
    start();
    clickMark(2);
    EXPECT_TRUE(endsProgram([] { toolkit::endProgram(EXIT_SUCCESS); }));
    EXPECT_TRUE(isThere());
}

TEST_F(Journal, OfAFailedSaveLetsTheProgramEnd) {
    start();
    openCard("Jones", {});
    clickMark(2);
    fs::remove(dataFile("Jones.zev"));
    fs::create_directory(dataFile("Jones.zev"));
    // Another program has replaced the file.
    answer(toolkit::Answer::Yes);
    announceError("Error in MSave_Click 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("File>Save"); }));
    ASSERT_TRUE(isThere());
    EXPECT_EQ(content().name, "Jones");
    EXPECT_TRUE(content().document.marks[1]);
}

TEST_F(Journal, OfAFailedSaveHoldsAlsoACardWithoutChanges) {
    start();
    openCard("Jones", {.marks = {"1,1,0"}});
    fs::remove(dataFile("Jones.zev"));
    fs::create_directory(dataFile("Jones.zev"));
    answer(toolkit::Answer::Yes);
    announceError("Error in MSave_Click 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("File>Save"); }));
    ASSERT_TRUE(isThere());
    EXPECT_TRUE(content().document.marks[0]);
}

TEST_F(Journal, ThatCantBeWrittenKeepsAFailedSaveFromEndingTheProgram) {
    start();
    blockStateFolder();
    openCard("Jones", {});
    clickMark(2);
    fs::remove(dataFile("Jones.zev"));
    fs::create_directory(dataFile("Jones.zev"));
    answer(toolkit::Answer::Yes);
    announceError("Error in MSave_Click 75, Path/File access error");
    announceError("Error in the journal: #");
    EXPECT_EQ(exitCodeOf([&] { choose("File>Save"); }), std::nullopt);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_TRUE(boxes[1].text.starts_with("'Jones' could not be saved")) << boxes[1].text;
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_EQ(form.CardName, "Jones");
}

TEST_F(Journal, ThatCouldntBeWrittenIsTriedAgainWithoutAnotherChange) {
    start();
    blockStateFolder();
    announceError("Error in the journal: #");
    clickMark(2);
    toolkit::test::elapseAlarms();
    expectWrittenOnceTheFolderIsBack();
}

TEST_F(Journal, ThatCouldntBeWrittenIsTriedAgainAfterAJobThatAsked) {
    start();
    openCard("Jones", {.partner = "\"Pat\",\"\""});
    blockStateFolder();
    announceError("Error in the journal: #");
    clickMark(2);
    whileAsking = [] { toolkit::test::elapseAlarms(); };
    answerFile(home / "page.pdf");
    choose("File>Print Partner's card");
    expectWrittenOnceTheFolderIsBack();
}

TEST_F(Journal, ThatCantBeWrittenIsTracedOnce) {
    start();
    blockStateFolder();
    announceError("Error in the journal: #");
    for (const int mark : {1, 2, 3}) {
        clickMark(mark);
        toolkit::test::elapseAlarms();
    }
    const std::string trace = traceFile();
    const auto first = trace.find("Error in the journal: #");
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(trace.find("Error in the journal: #", first + 1), std::string::npos);
    EXPECT_TRUE(form.AMark[3].Visible);
}

TEST_F(Journal, IsMadeAnewWhereItsFolderWasCleaned) {
    start();
    clickMark(1);
    toolkit::test::elapseAlarms();
    fs::remove_all(home / "state");
    clickMark(2);
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    EXPECT_TRUE(fs::exists(home / "state" / "changes-1.lock"));
}

TEST_F(Journal, ThatWasCleanedAwayIsMadeAnewBeforeAFailedSaveEndsTheProgram) {
    start();
    openCard("Jones", {});
    clickMark(2);
    toolkit::test::elapseAlarms();
    ASSERT_TRUE(isThere());
    fs::remove_all(home / "state");
    fs::remove(dataFile("Jones.zev"));
    fs::create_directory(dataFile("Jones.zev"));
    answer(toolkit::Answer::Yes);
    announceError("Error in MSave_Click 75, Path/File access error");
    EXPECT_TRUE(failsProgram([&] { choose("File>Save"); }));
    ASSERT_TRUE(isThere());
    EXPECT_TRUE(content().document.marks[1]);
}

TEST_F(Journal, OfAnotherCopyIsLeftAlone) {
    start();
    clickMark(1);
    toolkit::test::elapseAlarms();
    Zevlin other;
    openJournal(other);
    EXPECT_EQ(other.Journal.file, home / "state" / "changes-2.zev");
}

} // namespace
} // namespace zev::test
