// Open, Delete and Rename of a card in the chooser's list.
#include "card/chooser_menu.h"

#include <algorithm>
#include <filesystem>

#include "card/save.h"
#include "card/write_card.h"
#include "chooser_form_test.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class ChooserMenu : public ChooserTest {
  protected:
    void SetUp() override {
        start();
        for (const char* name : {"Adams", "Brown", "Clark"}) writeCard(name, cardFile({}));
    }
    /// Chooses a row of the pop-up menu of a card.
    void chooseOf(int listRow, std::size_t menuRow) {
        answerPopup([menuRow](std::span<const toolkit::PopupRow> rows) { rows[menuRow].Click(); });
        clickRow(listRow, toolkit::button::right);
    }
    void open(int row) { chooseOf(row, 0); }
    void remove(int row) { chooseOf(row, 1); }
    void rename(int row, const std::string& name) {
        answerInput(name);
        chooseOf(row, 2);
    }
    [[nodiscard]] bool exists(const std::string& name) const {
        return fs::exists(dataFile(name + ".zev"));
    }
};

TEST_F(ChooserMenu, OpenTakesTheCard) {
    inChooser([&] { open(1); });
    EXPECT_EQ(chosen, "Brown");
}

TEST_F(ChooserMenu, DeleteRemovesFileEntryAndNameWithoutAQuestion) {
    inChooser([&] {
        remove(1);
        EXPECT_FALSE(exists("Brown"));
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"Adams", "Clark"}));
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "");
        EXPECT_TRUE(toolkit::test::isGreyed(form.BOK));
        leave();
    });
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(exists("Adams"));
}

TEST_F(ChooserMenu, DeletingTheLastCardLeavesTheChooserOfAnEmptyFolder) {
    inChooser([&] {
        const float height = form.P3.Height;
        for (int left = 3; left > 0; --left) {
            EXPECT_TRUE(toolkit::test::isShown(form.FileList));
            remove(0);
        }
        EXPECT_FALSE(toolkit::test::isShown(form.FileList));
        EXPECT_EQ(form.LSaveAs.Caption, "Enter a name for a new card");
        EXPECT_LT(form.P3.Height, height);
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.TSaveAs));
        toolkit::test::typeText("Jones");
        toolkit::test::typeKey(toolkit::key::enter);
    });
    EXPECT_EQ(chosen, "Jones");
}

TEST_F(ChooserMenu, DeletingTheCurrentCardMakesItUnnamedAndDoesNotClearIt) {
    openNamed("Brown");
    clickMark(1);
    answerChooser([&] {
        remove(1);
        EXPECT_EQ(form.CardName, "");
        EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
        leave();
    });
    choose("File>Save As...");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(ChooserMenu, DeletingAnotherCardLeavesTheNameAlone) {
    openNamed("Brown");
    answerChooser([&] {
        remove(0);
        leave();
    });
    choose("File>Save As...");
    EXPECT_EQ(form.CardName, "Brown");
    EXPECT_EQ(form.Caption, "Zevlin  ( Brown )");
}

TEST_F(ChooserMenu, DeleteOfAVanishedFileDropsItsEntry) {
    inChooser([&] {
        fs::remove(dataFile("Brown.zev"));
        remove(1);
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"Adams", "Clark"}));
        leave();
    });
}

TEST_F(ChooserMenu, DeleteThatFailsIsTracedAndKeepsTheEntry) {
    announceError("Error in mpopDelete_Click: #");
    inChooser([&] {
        fs::remove(dataFile("Brown.zev"));
        fs::create_directory(dataFile("Brown.zev"));
        remove(1);
        EXPECT_TRUE(traced("Error in mpopDelete_Click: #75, Path/File access error"));
        EXPECT_EQ(form.FileList.List.size(), 3U);
        leave();
    });
}

TEST_F(ChooserMenu, RenameAsksWithTheOldNameAndListsTheNewOne) {
    inChooser([&] {
        rename(1, "Baker");
        EXPECT_EQ(inputs.at(0).title, "Rename card");
        EXPECT_EQ(inputs.at(0).prompt, "Enter new name for this card");
        EXPECT_EQ(inputs.at(0).preset, "Brown");
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"Adams", "Baker", "Clark"}));
        EXPECT_EQ(form.TSaveAs.Text, "Baker");
        leave();
    });
    EXPECT_FALSE(exists("Brown"));
    EXPECT_EQ(dataFileContent("Baker.zev"), cardFile({}));
}

TEST_F(ChooserMenu, RenameWithAnEmptyAnswerEndsThere) {
    inChooser([&] {
        rename(1, "");
        leave();
    });
    EXPECT_TRUE(exists("Brown"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ChooserMenu, RenameOntoAnotherCardIsRefusedInAnyCaseAndNothingIsLost) {
    writeCard("Clark", "precious");
    announceError("Error in mpopRename_Click: #58");
    for (const char* name : {"Clark", "CLARK", "  Clark "}) {
        inChooser([&] {
            rename(1, name);
            leave();
        });
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.back().text, "Another file already has that name");
        EXPECT_EQ(boxes.back().icon, toolkit::Icon::Exclamation);
    }
    EXPECT_EQ(boxes.size(), 3U);
    EXPECT_EQ(dataFileContent("Clark.zev"), "precious");
    EXPECT_TRUE(exists("Brown"));
}

TEST_F(ChooserMenu, RenameToTheNameThatTheCardHasDoesNothing) {
    const auto before = fs::last_write_time(dataFile("Brown.zev"));
    for (const char* name : {"Brown", "  Brown "}) {
        inChooser([&] {
            rename(1, name);
            EXPECT_EQ(form.FileList.ListIndex, 1);
            leave();
        });
    }
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(fs::last_write_time(dataFile("Brown.zev")), before);
}

#ifndef _WIN32
TEST_F(ChooserMenu, RenameMayChangeTheCaseOfTheName) {
    inChooser([&] {
        rename(1, "BROWN");
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"Adams", "BROWN", "Clark"}));
        leave();
    });
    EXPECT_TRUE(exists("BROWN"));
    EXPECT_FALSE(exists("Brown"));
}
#endif

TEST_F(ChooserMenu, RenameRefusesANameThatNoCardCanHave) {
    inChooser([&] {
        rename(1, "../Brown");
        EXPECT_TRUE(boxes.at(0).text.starts_with("'../Brown' is an invalid file name."));
        rename(1, std::string(300, 'x'));
        EXPECT_EQ(boxes.size(), 2U);
        leave();
    });
    EXPECT_TRUE(exists("Brown"));
}

TEST_F(ChooserMenu, RenameOfAVanishedFileTellsTheErrorTwice) {
    announceError("Error in mpopRename_Click: #53");
    inChooser([&] {
        fs::remove(dataFile("Brown.zev"));
        rename(1, "Baker");
        leave();
    });
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].text, "Error 53, File not found in mpopRename");
    EXPECT_EQ(boxes[1].text, "Program error 53.  File has not been changed");
}

TEST_F(ChooserMenu, RenamingTheCurrentCardGivesTheCardOnScreenTheNewName) {
    openNamed("Brown");
    clickMark(1);
    answerChooser([&] {
        rename(1, "Baker");
        EXPECT_EQ(form.CardName, "Baker");
        leave();
    });
    choose("File>Save As...");
    EXPECT_EQ(form.Caption, "Zevlin  ( Baker ) *");
    EXPECT_TRUE(form.AMark[1].Visible);
    choose("File>Save");
    EXPECT_FALSE(form.CardModified);
    EXPECT_TRUE(exists("Baker"));
    EXPECT_FALSE(exists("Brown"));
}

#ifndef _WIN32
TEST_F(ChooserMenu, TheCardOnScreenFollowsAlsoTheCaseOfItsName) {
    openNamed("Brown");
    clickMark(1);
    answerChooser([&] {
        rename(1, "BROWN");
        leave();
    });
    choose("File>Save As...");
    EXPECT_EQ(form.Caption, "Zevlin  ( BROWN ) *");
    choose("File>Save");
    EXPECT_TRUE(exists("BROWN"));
    EXPECT_FALSE(exists("Brown"));
}

TEST_F(ChooserMenu, TheCardOnScreenFollowsAFileInAnotherCaseThanItsName) {
    openNamed("bROWN");
    answerChooser([&] {
        rename(1, "Baker");
        leave();
    });
    choose("File>Save As...");
    EXPECT_EQ(form.CardName, "Baker");
}
#endif

TEST_F(ChooserMenu, TheTitleGoesOnToSayWhatTheChooserIsFor) {
    openNamed("Brown");
    clickMark(1);
    answer(toolkit::Answer::No);
    answerChooser([&] {
        rename(1, "Baker");
        EXPECT_EQ(form.Caption, "Zevlin  ( Baker ) * - Save this card");
        clickRow(0);
        clickOn(form.BOK);
    });
    choose("File>Save As...");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.Caption, "Zevlin  ( Baker ) *");
    choose("File>Save");
    answerChooser([&] {
        rename(1, "Brown");
        EXPECT_EQ(form.Caption, "Zevlin  - Open an existing card file");
        leave();
    });
    choose("File>Open...");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
}

TEST_F(ChooserMenu, RenamingAnotherCardLeavesTheNameOfTheOneOnScreen) {
    openNamed("Brown");
    answerChooser([&] {
        rename(0, "Baker");
        leave();
    });
    choose("File>Save As...");
    EXPECT_EQ(form.CardName, "Brown");
}

TEST_F(ChooserMenu, ARenameThatFailsLeavesTheNameOfTheCardOnScreen) {
    openNamed("Brown");
    announceError("Error in mpopRename_Click: #");
    answerChooser([&] {
        rename(1, "Clark");
        leave();
    });
    choose("File>Save As...");
    EXPECT_EQ(form.CardName, "Brown");
}

TEST_F(ChooserMenu, RenameRefusesTheTemporaryCardsName) {
    inChooser([&] {
        rename(1, "$$TempCard");
        EXPECT_TRUE(boxes.at(0).text.starts_with("'$$TempCard' is an invalid file name."));
        leave();
    });
    EXPECT_TRUE(exists("Brown"));
}

TEST_F(ChooserMenu, ACardThatVanishesBehindTheChooserOpensBlankUnderItsName) {
    answerChooser([&] {
        fs::remove(dataFile("Brown.zev"));
        clickRow(1);
        clickOn(form.BOK);
    });
    choose("File>Open...");
    EXPECT_EQ(form.CardName, "Brown");
    EXPECT_EQ(form.Caption, "Zevlin  ( Brown )");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(ChooserMenu, ACardThatBecomesUnreadableBehindTheChooserOpensBlank) {
    announceError("Error in GetCardFile ");
    answerChooser([&] {
        fs::remove(dataFile("Brown.zev"));
        fs::create_directory(dataFile("Brown.zev"));
        clickRow(1);
        clickOn(form.BOK);
    });
    choose("File>Open...");
    EXPECT_TRUE(traced("Error in GetCardFile 75, Path/File access error"));
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.P1.Visible);
}

TEST_F(ChooserMenu, AFolderThatVanishesBehindTheChooserLeavesABlankCard) {
    answerChooser([&] {
        fs::remove_all(dataFolder);
        clickRow(1);
        clickOn(form.BOK);
    });
    choose("File>Open...");
    EXPECT_EQ(form.CardName, "Brown");
    EXPECT_FALSE(form.CardModified);
    fs::create_directories(dataFolder);
}

TEST_F(ChooserMenu, SavingIntoAFolderThatHasVanishedEndsTheProgram) {
    announceError("Error in MSave_Click ");
    announceError("Error in Traceit: #76"); // the trace has no folder either
    clickMark(1);
    answerChooser([&] {
        fs::remove_all(dataFolder);
        toolkit::test::typeText("Zorn");
        toolkit::test::typeKey(toolkit::key::enter);
    });
    EXPECT_TRUE(failsProgram([] { choose("File>Save As..."); }));
    EXPECT_FALSE(form.P3.Visible);
    fs::create_directories(dataFolder);
}

TEST_F(ChooserMenu, ACardWithBlanksAtItsEndsInTheFolderOpensBlankUnderTheTrimmedName) {
    writeCard(" Zorn ", cardFile({.marks = {"1,1,0"}}));
    answerChooser([&] {
        EXPECT_EQ(form.FileList.List.front(), " Zorn ");
        clickRow(0);
        clickOn(form.BOK);
    });
    choose("File>Open...");
    EXPECT_EQ(form.CardName, "Zorn");
    EXPECT_FALSE(form.AMark[1].Visible);
}

} // namespace
} // namespace zev::test
