#include "card/take_card.h"

#include <fstream>

#include "card/lifecycle.h"
#include "card_form_test.h"
#include "toolkit/base/files.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/testing/test_drop.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/dialog_answers.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class TakeCard : public CardFormTest {
  protected:
    TakeCard() : mail(home / "mail box") { fs::create_directory(mail); }

    /// A card outside of the data folder, with mark 1 set. The name is in UTF-8.
    [[nodiscard]] fs::path
    makeCard(std::string_view name,
             const std::string& content = cardFile({.marks = {"1,1,0"}})) const {
        const fs::path file = mail / std::u8string(name.begin(), name.end());
        toolkit::writeFile(file, content);
        return file;
    }
    static bool drop(const fs::path& file) { return toolkit::test::drop({.files = {file}}); }
    static bool isTaken(const fs::path& file) {
        return toolkit::test::dragOver({.files = {file}}) != toolkit::test::DragAnswer::Refused;
    }
    void expectBlank() const {
        EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
        EXPECT_FALSE(form.AMark[1].Visible);
    }

    fs::path mail;
};

TEST_F(TakeCard, AfterAQuestionACopyOfItIsOpened) {
    start();
    const fs::path file = makeCard("Jones & Smith 100%.zev");
    answer(toolkit::Answer::Yes);
    EXPECT_TRUE(drop(file));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Copy 'Jones & Smith 100%' into your cards and open it?");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNo);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Question);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones & Smith 100% )");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(dataFileContent("Jones & Smith 100%.zev"), toolkit::readFile(file));
}

TEST_F(TakeCard, ARefusalLeavesEverythingAsItIs) {
    start();
    answer(toolkit::Answer::No);
    EXPECT_TRUE(drop(makeCard("Jones.zev")));
    expectBlank();
    EXPECT_FALSE(fs::exists(dataFile("Jones.zev")));
}

TEST_F(TakeCard, GetsAFreeNameWhereOthersHaveIt) {
    start();
    writeCard("JONES", "first");
    writeCard("Jones 2", "second");
    answer(toolkit::Answer::Yes);
    drop(makeCard("Jones.zev"));
    EXPECT_EQ(boxes[0].text, "Copy 'Jones' into your cards as 'Jones 3' and open it?");
    EXPECT_EQ(form.CardName, "Jones 3");
    EXPECT_EQ(dataFileContent("JONES.zev"), "first");
    EXPECT_EQ(dataFileContent("Jones 2.zev"), "second");
    EXPECT_TRUE(fs::exists(dataFile("Jones 3.zev")));
}

#ifndef _WIN32
TEST_F(TakeCard, GetsANameThatACardCanHave) {
    start();
    answer(toolkit::Answer::Yes);
    drop(makeCard("\u65E5 2:1\n?.zev"));
    EXPECT_EQ(boxes[0].text, "Copy '? 2:1?"
                             "?' into your cards as '_ 2_1__' and open it?");
    EXPECT_EQ(form.CardName, "_ 2_1__");
}
#endif

TEST_F(TakeCard, AsksAboutUnsavedChangesBefore) {
    start();
    clickMark(2);
    answer(toolkit::Answer::Yes);
    answer(toolkit::Answer::Cancel);
    drop(makeCard("Jones.zev"));
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].title, "Unsaved changes");
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(fs::exists(dataFile("Jones.zev")));
}

TEST_F(TakeCard, IsOpenedInThePlaceOfChangesThatArentWanted) {
    start();
    clickMark(2);
    answer(toolkit::Answer::Yes);
    answer(toolkit::Answer::No);
    drop(makeCard("Jones.zev"));
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_FALSE(form.MUndo.Enabled);
}

TEST_F(TakeCard, IsOpenedOnceTheChangesAreSaved) {
    start();
    form.CardName = "Smith";
    typeInOpenField(1, "5H");
    answer(toolkit::Answer::Yes);
    answer(toolkit::Answer::Yes);
    drop(makeCard("Jones.zev"));
    EXPECT_NE(dataFileContent("Smith.zev").find("1,\"5H\","), std::string::npos);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_FALSE(form.CText.Visible);
}

TEST_F(TakeCard, NothingIsAskedAboutChangesThatStayWhereItIsRefused) {
    start();
    clickMark(2);
    answer(toolkit::Answer::No);
    drop(makeCard("Jones.zev"));
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(TakeCard, AsksAgainWhereTheNameIsTakenMeanwhile) {
    start();
    clickMark(2);
    answer(toolkit::Answer::Yes);
    // The changes are saved under the very name.
    answer(toolkit::Answer::Yes);
    answerName("Jones");
    answer(toolkit::Answer::Yes);
    drop(makeCard("Jones.zev"));
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_EQ(boxes[2].text, "Copy 'Jones' into your cards as 'Jones 2' and open it?");
    EXPECT_EQ(form.CardName, "Jones 2");
    EXPECT_NE(dataFileContent("Jones.zev").find("2,1,0\r\n"), std::string::npos);
}

TEST_F(TakeCard, DiscardedChangesCountAgainWhereThePlayerThenRefuses) {
    start();
    clickMark(2);
    const fs::path file = makeCard("Jones.zev");
    std::vector answers{toolkit::Answer::Yes, toolkit::Answer::No, toolkit::Answer::No};
    toolkit::answerDialogsWith({.message = [&](const toolkit::MessageBox& box) {
        // Another program makes the card while the changes are asked about.
        if (box.title == "Unsaved changes") writeCard("Jones", "another");
        const auto answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }});
    drop(file);
    EXPECT_TRUE(answers.empty());
    EXPECT_EQ(dataFileContent("Jones.zev"), "another");
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(TakeCard, ThatCantBeWrittenIsToldAndTheCardStays) {
    start();
    clickMark(2);
    form.DataFolder /= "gone";
    announceError("Error in TakeCopy: #76, Path not found");
    announceError("Error in Traceit");
    answer(toolkit::Answer::Yes);
    answer(toolkit::Answer::No);
    drop(makeCard("Jones.zev"));
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_EQ(boxes[2].text,
              "'Jones.zev' could not be copied (Path not found).  Nothing was copied "
              "into your cards.");
    EXPECT_EQ(boxes[2].icon, toolkit::Icon::Exclamation);
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(TakeCard, AFileThatIsNoCardIsToldBeforeAnythingIsAsked) {
    start();
    clickMark(2);
    drop(makeCard("letter.txt", "Dear Joe,\r\n"));
    drop(makeCard("Bad.zev", cardFile({.marks = {}})));
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].text, "'letter.txt' is not a card that Zevlin can read.  Nothing was copied "
                             "into your cards.");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[1].text, "'Bad.zev' is not a card that Zevlin can read.  Nothing was copied "
                             "into your cards.");
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(fs::exists(dataFile("Bad.zev")));
}

TEST_F(TakeCard, AFileThatCantBeReadIsTold) {
    start();
    const fs::path file = makeCard("Jones.zev");
    fs::remove(file);
    EXPECT_EQ(takeCopy(form, file), std::nullopt);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "'Jones.zev' could not be read (File not found).  Nothing was copied "
                             "into your cards.");
}

TEST_F(TakeCard, OneOfThePlayersOwnOpensAtOnce) {
    start();
    writeCard("Smith", cardFile({.marks = {"1,1,0"}}));
    EXPECT_TRUE(drop(dataFile("Smith.zev")));
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(form.Caption, "Zevlin  ( Smith )");
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(TakeCard, OneOfThePlayersOwnAsksAboutUnsavedChanges) {
    start();
    writeCard("Smith", cardFile({.marks = {"1,1,0"}}));
    clickMark(2);
    answer(toolkit::Answer::Cancel);
    drop(dataFile("Smith.zev"));
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_EQ(form.CardName, "");
}

TEST_F(TakeCard, KnowsThePlayersOwnByEveryPath) {
    start();
    writeCard("Smith", cardFile({}));
    EXPECT_EQ(ownCardOf(form, dataFile("Smith.zev")), "Smith");
    EXPECT_EQ(ownCardOf(form, dataFolder / ".." / "ZEV" / "." / "Smith.zev"), "Smith");
    EXPECT_EQ(ownCardOf(form, makeCard("Smith.zev")), std::nullopt);
    EXPECT_EQ(ownCardOf(form, dataFile("Definitions.Ini")), std::nullopt);
    EXPECT_EQ(ownCardOf(form, dataFile("Nobody.zev")), std::nullopt);
    writeCard("$$Tempcard", "");
    EXPECT_EQ(ownCardOf(form, dataFile("$$Tempcard.zev")), std::nullopt);
}

TEST_F(TakeCard, KnowsThePlayersOwnWithoutADataFolder) {
    start();
    writeCard("Smith", cardFile({}));
    const fs::path before = fs::current_path();
    fs::current_path(dataFolder);
    form.DataFolder.clear();
    EXPECT_EQ(ownCardOf(form, dataFile("Smith.zev")), "Smith");
    fs::current_path(before);
    form.DataFolder = dataFolder;
}

#ifndef _WIN32
TEST_F(TakeCard, KnowsThePlayersOwnThroughLinks) {
    start();
    writeCard("Smith", cardFile({}));
    fs::create_directory_symlink(dataFolder, mail / "cards");
    EXPECT_EQ(ownCardOf(form, mail / "cards" / "Smith.zev"), "Smith");
    fs::create_symlink(dataFile("Smith.zev"), mail / "link.zev");
    EXPECT_EQ(ownCardOf(form, mail / "link.zev"), "Smith");
    // A card that is kept elsewhere is still listed as a card.
    fs::create_symlink(makeCard("Jones.zev"), dataFile("Jones here.zev"));
    EXPECT_EQ(ownCardOf(form, dataFile("Jones here.zev")), "Jones here");
}

TEST_F(TakeCard, KnowsThePlayersOwnInAnyCase) {
    start();
    toolkit::writeFile(dataFile("SMITH.ZEV"), cardFile({}));
    EXPECT_EQ(ownCardOf(form, dataFile("SMITH.ZEV")), "SMITH");
    // This one is hidden behind another card of its name.
    toolkit::writeFile(dataFile("SMITH.zev"), cardFile({}));
    EXPECT_EQ(ownCardOf(form, dataFile("SMITH.ZEV")), std::nullopt);
}
#endif

TEST_F(TakeCard, ClosesTheHelp) {
    start();
    choose("Help");
    ASSERT_TRUE(form.THelp.Visible);
    answer(toolkit::Answer::Yes);
    EXPECT_TRUE(drop(makeCard("Jones.zev")));
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.P1.Enabled);
    EXPECT_EQ(form.CardName, "Jones");
}

TEST_F(TakeCard, IsTheChoiceWhereTheChooserOpens) {
    start();
    const fs::path file = makeCard("Jones.zev");
    answer(toolkit::Answer::Yes);
    answerChooser([&] { EXPECT_TRUE(drop(file)); });
    choose("File>Open...");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_FALSE(form.P3.Visible);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.ChooserOpens);
}

TEST_F(TakeCard, LeavesTheChooserOpenWhereItIsRefused) {
    start();
    const fs::path file = makeCard("Jones.zev");
    answer(toolkit::Answer::No);
    answerChooser([&] {
        drop(file);
        EXPECT_TRUE(form.P3.Visible);
        toolkit::test::typeKey(toolkit::key::escape);
    });
    choose("File>Open...");
    expectBlank();
}

TEST_F(TakeCard, IsRefusedWhereACardIsBeingNamed) {
    start();
    const fs::path file = makeCard("Jones.zev");
    answerChooser([&] {
        EXPECT_FALSE(isTaken(file));
        toolkit::test::typeKey(toolkit::key::escape);
    });
    choose("File>Save As...");
}

TEST_F(TakeCard, IsRefusedWhereOpenCantBeChosen) {
    start();
    const fs::path file = makeCard("Jones.zev");
    EXPECT_TRUE(isTaken(file));
    form.MenusEnabled = false;
    EXPECT_FALSE(isTaken(file));
    form.MenusEnabled = true;
    form.MOpen.Enabled = false;
    EXPECT_FALSE(isTaken(file));
    form.MOpen.Enabled = true;
    form.Printing = true;
    EXPECT_FALSE(isTaken(file));
    form.Printing = false;
    form.IsLoaded = false;
    EXPECT_FALSE(isTaken(file));
}

} // namespace
} // namespace zev::test
