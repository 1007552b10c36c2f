// What a player does, with every operation on files failing once.
#include <algorithm>

#include "app/second_run.h"
#include "card/write_card.h"
#include "faults/fault_test.h"
#include "faults/faults.h"
#include "output/export_card.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_drop.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

using test_faults::Kind;

class FormFaults : public FaultTest {
  protected:
    /// Leaves what a program killed with unsaved changes leaves.
    void leaveChangedCard() {
        startWithChangedCard();
        toolkit::test::elapseAlarms();
        form.Journal.lock.release();
        leavesCard = true;
    }
    void startAgainAndSave() {
        const SecondRun run(window);
        choose("File>Save");
    }
    /// A program folder with cards of its own, and no data folder yet.
    void installCards() {
        makeFirstRun();
        judgesFiles = false;
        countsLooks = false;
        contentsToKeep = {cardFile({.texts = {"1,\"sample\",0"}})};
        toolkit::writeFile(programFolder / "Sample.zev", contentsToKeep.front());
    }
    void designAField() {
        start();
        toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
        ASSERT_TRUE(form.MShowShapes.Checked);
        form.AMark[2].Left += 10 * pixel;
    }
};

// Where an operation is only one of many of its sort: whatever the disk's trouble is called, it is
// met in the same place.
const std::vector<Kind> fewKinds = {Kind::DiskStaysFull, Kind::Refused, Kind::FolderGone,
                                    Kind::FolderComesBack};

TEST_F(FormFaults, StartingUp) {
    runWithEveryFault([&] { start(); }, {Kind::DiskStaysFull, Kind::Refused, Kind::Fails,
                                         Kind::FolderGone, Kind::FolderComesBack});
}

TEST_F(FormFaults, TheFirstRun) {
    installCards();
    runWithEveryFault([&] { start(); }, {Kind::DiskStaysFull, Kind::FolderComesBack});
}

TEST_F(FormFaults, Saving) {
    startWithChangedCard();
    runWithEveryFault([&] { choose("File>Save"); });
}

TEST_F(FormFaults, SavingUnderAnotherName) {
    startWithChangedCard();
    countsLooks = false;
    savedName = "Smith";
    runWithEveryFault(
        [&] {
            nameAnswer = "Smith";
            choose("File>Save As...");
        },
        fewKinds);
}

/// A card without a name is written twice, and the second time may fail alone.
TEST_F(FormFaults, SavingACardThatHasNoNameYet) {
    start();
    clickMark(1);
    typeInto(1, "typed");
    typeInto(2, "kept");
    ASSERT_EQ(form.CardName, "");
    hasCard = true;
    countsLooks = false;
    savedName = "Smith";
    runWithEveryFault(
        [&] {
            nameAnswer = "Smith";
            choose("File>Save");
        },
        fewKinds);
}

TEST_F(FormFaults, SavingOverAnotherCard) {
    writeCard("Smith.zev", cardFile({.texts = {"1,\"other\",0"}}));
    answerName("");
    startWithChangedCard();
    countsLooks = false;
    savedName = "Smith";
    agreedQuestion = "File already exists.";
    runWithEveryFault(
        [&] {
            nameAnswer = "Smith";
            choose("File>Save As...");
        },
        fewKinds);
}

TEST_F(FormFaults, ANewCardAfterSavingThisOne) {
    startWithChangedCard();
    leavesCard = true;
    countsLooks = false;
    agreedQuestion = "Do you want to save the current card first?";
    runWithEveryFault([&] { choose("File>New"); });
}

TEST_F(FormFaults, TakingACardFromElsewhere) {
    contentsToKeep = {cardFile({.texts = {"1,\"foreign\",0"}})};
    toolkit::writeFile(home / "Smith.zev", contentsToKeep.front());
    start();
    countsLooks = false;
    agreedQuestion = "Copy 'Smith'";
    runWithEveryFault([&] { toolkit::test::drop({.files = {home / "Smith.zev"}}); }, fewKinds);
}

TEST_F(FormFaults, Zooming) {
    startWithChangedCard();
    runWithEveryFault([&] { toolkit::test::typeKey(toolkit::key::minus, toolkit::shift::ctrl); },
                      fewKinds);
}

// The longest of the scenarios. They differ only in how the job ends, so each gets other kinds of
// faults.

TEST_F(FormFaults, PrintingToAFile) {
    startWithChangedCard();
    countsLooks = false;
    form.mPrintAlt.Checked = true; // half the size: enough here
    fileAnswer = home / "page.pdf";
    runWithEveryFault([&] { choose("File>Print card"); }, {Kind::DiskStaysFull, Kind::Fails});
}

TEST_F(FormFaults, ExportingAPicture) {
    startWithChangedCard();
    countsLooks = false;
    form.mPrintAlt.Checked = true;
    inputAnswer = "picture.bmp";
    runWithEveryFault([&] { mPrintToDisk_Click(form); }, {Kind::DiskStaysFull});
}

TEST_F(FormFaults, CopyingThePicture) {
    startWithChangedCard();
    countsLooks = false;
    form.mPrintAlt.Checked = true;
    runWithEveryFault([&] { mPrintToClipboard_Click(form); }, {Kind::Refused, Kind::FolderGone});
}

TEST_F(FormFaults, ChangingAnOption) {
    startWithChangedCard();
    countsLooks = false;
    runWithEveryFault([&] { choose("Options>Fill-in Checkmarks"); }, fewKinds);
}

TEST_F(FormFaults, SavingTheDesign) {
    designAField();
    runWithEveryFault([&] { choose("Design>Save Design"); });
}

TEST_F(FormFaults, GettingTheCardBackAndSavingIt) {
    leaveChangedCard();
    countsLooks = false;
    runWithEveryFault([&] { startAgainAndSave(); }, fewKinds);
}

/// Whatever is done to the player's files may fail half way: the journal must have the card before.
class JournalFirst : public FormFaults {
  protected:
    void expectJournalFirst(const Act& act) {
        startWithChangedCard();
        const test_faults::Watch watch(home);
        act();
        const auto changes = [](const test_faults::Operation& done) {
            return done.call == test_faults::Call::OpenToWrite ||
                   done.call == test_faults::Call::Rename || done.call == test_faults::Call::Remove;
        };
        const auto isOfFolder = [&](const test_faults::Operation& done) {
            return changes(done) && done.path.starts_with(dataFolder.string() + "/");
        };
        const auto isJournal = [&](const test_faults::Operation& done) {
            return done.target == (home / "state" / "changes-1.zev").string();
        };
        const auto journal = std::ranges::find_if(watch.done(), isJournal);
        const auto other = std::ranges::find_if(watch.done(), isOfFolder);
        ASSERT_NE(other, watch.done().end());
        EXPECT_LT(journal - watch.done().begin(), other - watch.done().begin()) << other->path;
    }
};

TEST_F(JournalFirst, BeforeASave) {
    expectJournalFirst([&] { choose("File>Save"); });
}

TEST_F(JournalFirst, BeforeAZoom) {
    expectJournalFirst([&] { toolkit::test::typeKey(toolkit::key::minus, toolkit::shift::ctrl); });
}

TEST_F(JournalFirst, BeforeAPrint) {
    form.mPrintAlt.Checked = true;
    answerFile(home / "page.pdf");
    expectJournalFirst([&] { choose("File>Print card"); });
}

class FormPowerCut : public FormFaults {};

TEST_F(FormPowerCut, WritingTheJournal) {
    startWithChangedCard();
    toolkit::test::elapseAlarms();
    typeInto(2, "more");
    secondTexts.emplace_back("more");
    runWithEveryCut([&] { toolkit::test::elapseAlarms(); });
}

TEST_F(FormPowerCut, Saving) {
    startWithChangedCard();
    toolkit::test::elapseAlarms();
    runWithEveryCut([&] { choose("File>Save"); });
}

TEST_F(FormPowerCut, Zooming) {
    startWithChangedCard();
    toolkit::test::elapseAlarms();
    runWithEveryCut([&] { toolkit::test::typeKey(toolkit::key::minus, toolkit::shift::ctrl); });
}

TEST_F(FormPowerCut, PrintingToAFile) {
    startWithChangedCard();
    toolkit::test::elapseAlarms();
    form.mPrintAlt.Checked = true;
    // The page isn't judged: one that a cut spoils is printed again.
    answerFile(home / "Documents" / "page.pdf");
    runWithEveryCut([&] { choose("File>Print card"); });
}

TEST_F(FormPowerCut, TheFirstRun) {
    installCards();
    runWithEveryCut([&] { start(); });
}

TEST_F(FormPowerCut, SavingTheDesign) {
    designAField();
    runWithEveryCut([&] { choose("Design>Save Design"); });
}

TEST_F(FormPowerCut, GettingTheCardBackAndSavingIt) {
    leaveChangedCard();
    answer(toolkit::Answer::Yes);
    runWithEveryCut([&] { startAgainAndSave(); });
}

} // namespace
} // namespace zev::test
