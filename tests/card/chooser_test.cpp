// Showing the chooser and taking its name.
#include "card/chooser.h"

#include <filesystem>

#include "card/lifecycle.h"
#include "card/save.h"
#include "card/write_card.h"
#include "chooser_form_test.h"
#include "form/write_options.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
using toolkit::test::typeKey;
using toolkit::test::typeText;

using Chooser = ChooserTest;

constexpr const char* invalidTail =
    "' is an invalid file name.  Names cannot contain any of these characters:  "
    "/  :  *  \\  ?  \"  <  >";

TEST_F(Chooser, HidesTheListOfAnEmptyFolderAndAsksForANewName) {
    start();
    inChooser([&] {
        EXPECT_FALSE(toolkit::test::isShown(form.FileList));
        EXPECT_EQ(form.LSaveAs.Caption, "Enter a name for a new card");
        typeText("Jones");
        typeKey(toolkit::key::enter);
    });
    EXPECT_EQ(chosen, "Jones");
    EXPECT_TRUE(tracedInOrder({"GetFileNames", "PopulateFileList"}));
}

TEST_F(Chooser, ListsTheCardsWithoutExtensionAndWithoutRegardToCase) {
    start();
    writeCard("b", "");
    writeCard("A", "");
    std::ofstream(dataFile("C.ZEV")).flush();
    inChooser([&] {
        EXPECT_TRUE(toolkit::test::isShown(form.FileList));
        EXPECT_EQ(form.LSaveAs.Caption, "Select from list or enter a name for a new card");
        EXPECT_EQ(form.FileList.List, (std::vector<std::string>{"A", "b", "C"}));
        EXPECT_EQ(form.FileList.ListIndex, -1);
        leave();
    });
}

TEST_F(Chooser, ListsOnlyRepresentableCardFiles) {
    start();
    writeCard("Ku\xC4\x8D"
              "era",
              "");
    fs::create_directory(dataFile("Folder.zev"));
    writeCard("Jones", "");
    inChooser([&] {
        EXPECT_EQ(form.FileList.List, std::vector<std::string>{"Jones"});
        leave();
    });
}

TEST_F(Chooser, StandsInPlaceOfTheCardAndTheMenus) {
    start();
    inChooser([&] {
        EXPECT_FALSE(toolkit::test::isShown(form.P1));
        EXPECT_TRUE(toolkit::test::isShown(form.P3));
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.TSaveAs));
        for (const char* path : {"File>New", "File>Open...", "File>Save", "Options>My Name"})
            EXPECT_FALSE(toolkit::test::chooseMenu(path)) << path;
        typeKey('S', toolkit::shift::ctrl);
        typeKey('O', toolkit::shift::ctrl);
        typeKey(toolkit::key::f1);
        EXPECT_FALSE(traced("MSave_Click"));
        EXPECT_FALSE(traced("MOpen_Click"));
        EXPECT_FALSE(form.THelp.Visible);
        leave();
    });
    EXPECT_TRUE(toolkit::test::isShown(form.P1));
    EXPECT_FALSE(toolkit::test::isShown(form.P3));
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1));
    EXPECT_TRUE(toolkit::test::chooseMenu("File>New"));
}

TEST_F(Chooser, HidesTheHelpThatWouldLieBesideIt) {
    start();
    typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    inChooser([&] {
        EXPECT_FALSE(toolkit::test::isShown(form.THelp));
        leave();
    });
    EXPECT_TRUE(form.P1.Enabled);
}

TEST_F(Chooser, NeitherKeysNorWheelMoveTheHiddenCard) {
    start();
    form.P1.Move(-300, -300);
    form.WheelHooked = true;
    inChooser([&] {
        for (const int key : {toolkit::key::home, toolkit::key::end, toolkit::key::pageUp,
                              toolkit::key::down, toolkit::key::left})
            typeKey(key);
        toolkit::test::turnWheel(120);
        leave();
    });
    EXPECT_EQ(form.P1.Left, -300);
    EXPECT_EQ(form.P1.Top, -300);
}

TEST_F(Chooser, ClosingTheWindowOnlyClosesTheChooser) {
    start();
    clickMark(1);
    inChooser([&] { toolkit::test::closeWindow(); });
    EXPECT_EQ(chosen, "");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(tracedInOrder({"Form_Unload 0", "BCancel_Click"}));
    EXPECT_FALSE(toolkit::test::isShown(form.P3));
}

TEST_F(Chooser, ClosingTheWindowAgainClosesTheChooserThatItsQuestionHasOpened) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Yes);
    answerChooser([] { toolkit::test::closeWindow(); });
    toolkit::test::closeWindow();
    EXPECT_EQ(choosers.size(), 1U);
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(form.P3.Visible);
}

TEST_F(Chooser, TellsTheFolderAndHowToOpenIt) {
    start();
    form.mDocsFolder.Checked = true;
    inChooser([&] {
        EXPECT_EQ(form.LPath.Caption, "Folder:  " + dataFolder.string());
        EXPECT_EQ(tipOfFolder(), "Click to open the folder in Windows Explorer");
        clickOn(form.LPath);
        leave();
    });
    EXPECT_EQ(launched.size(), 1U);
}

TEST_F(Chooser, TellsThatTheFolderCanBeChangedAsLongAsItCan) {
    start();
    form.mDocsFolder.Checked = false;
    inChooser([&] {
        EXPECT_EQ(tipOfFolder(),
                  "Click to open the folder in Windows Explorer  Right-click to change");
        leave();
    });
}

TEST_F(Chooser, ShowsAnAmpersandOfTheFolder) {
    start();
    form.DataFolder = home / "a&b";
    inChooser([&] {
        EXPECT_EQ(toolkit::paintedText(form.LPath.Caption), "Folder:  " + form.DataFolder.string());
        leave();
    });
}

TEST_F(Chooser, TrimsTheName) {
    start();
    inChooser([&] {
        typeText("  Jones ");
        typeKey(toolkit::key::enter);
    });
    EXPECT_EQ(chosen, "Jones");
    EXPECT_TRUE(form.ChooserTaken);
    EXPECT_FALSE(form.ChooserCancelled);
    EXPECT_EQ(form.TSaveAs.Text, "  Jones ");
}

TEST_F(Chooser, OffersTheNameThatWasTakenLastReadyToBeReplaced) {
    start();
    take("Jones");
    inChooser([&] {
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "Jones");
        EXPECT_FALSE(toolkit::test::isGreyed(form.BOK));
        typeText("Sm");
        EXPECT_EQ(form.TSaveAs.Text, "Sm");
        leave();
    });
}

TEST_F(Chooser, CancelEmptiesTheNameAndRenewsTheTitle) {
    start();
    form.TSaveAs.Text = "Jones";
    form.Caption = "other";
    inChooser([&] { clickOn(form.BCancel); });
    EXPECT_EQ(chosen, "");
    EXPECT_EQ(form.TSaveAs.Text, "");
    EXPECT_TRUE(form.ChooserCancelled);
    EXPECT_FALSE(form.ChooserTaken);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
    EXPECT_TRUE(tracedInOrder({"BCancel_Click", "SetCaption"}));
}

TEST_F(Chooser, ANameOfBlanksLeavesOkDisabled) {
    start();
    inChooser([&] {
        EXPECT_TRUE(toolkit::test::isGreyed(form.BOK));
        typeText("   ");
        EXPECT_TRUE(toolkit::test::isGreyed(form.BOK));
        EXPECT_TRUE(traced("TsaveAs_Change"));
        typeKey(toolkit::key::enter);
        clickOn(form.BOK);
        EXPECT_FALSE(form.ChooserTaken);
        typeText("x");
        EXPECT_FALSE(toolkit::test::isGreyed(form.BOK));
        clickOn(form.BOK);
    });
    EXPECT_EQ(chosen, "x");
}

TEST_F(Chooser, RefusesEachForbiddenCharacter) {
    start();
    for (const char character : std::string_view("/\\:*?<>\"")) {
        const std::string name = std::string("a") + character + "b";
        EXPECT_EQ(take(name), "");
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.back().text, "'" + name + invalidTail);
    }
    EXPECT_EQ(boxes.size(), 8U);
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[0].title, "");
}

TEST_F(Chooser, RefusesTheTemporaryCardsNameInAnyCase) {
    start();
    for (const std::string name : {"$$Tempcard", "$$TEMPCARD", "$$tempcard.zev"}) {
        EXPECT_EQ(take(name), "");
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.back().text, "'" + name + invalidTail);
    }
    EXPECT_EQ(boxes.size(), 3U);
    EXPECT_EQ(take("$$Tempcard 2"), "$$Tempcard 2");
}

TEST_F(Chooser, NoCardIsSavedAsTheTemporaryOne) {
    start();
    clickMark(1);
    answerName("$$tempCARD");
    choose("File>Save As...");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.CardName, "");
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(std::filesystem::exists(dataFile("$$tempCARD.zev")));
}

TEST_F(Chooser, DoesNotListTheTemporaryCard) {
    start();
    writeCard("$$tempCard", "");
    writeCard("Jones", "");
    inChooser([&] {
        EXPECT_EQ(form.FileList.List, std::vector<std::string>{"Jones"});
        leave();
    });
}

TEST_F(Chooser, ATemporaryCardAloneIsAnEmptyFolder) {
    start();
    writeCard("$$Tempcard", "");
    inChooser([&] {
        EXPECT_FALSE(toolkit::test::isShown(form.FileList));
        leave();
    });
}

/// Files come and go while the list is shown.
TEST_F(Chooser, ACardThatAppearsBehindItOpensByItsName) {
    start();
    writeCard("Adams", cardFile({}));
    answerChooser([&] {
        writeCard("Brown", cardFile({.marks = {"1,1,0"}}));
        typeText("Brown");
        typeKey(toolkit::key::enter);
    });
    choose("File>Open...");
    EXPECT_EQ(form.CardName, "Brown");
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(Chooser, ACardThatAppearsBehindItIsNotReplacedUnasked) {
    start();
    clickMark(1);
    answer(toolkit::Answer::No);
    answerChooser([&] {
        writeCard("Brown", "theirs");
        typeText("Brown");
        typeKey(toolkit::key::enter);
    });
    choose("File>Save As...");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "File already exists. Do you want to replace it?");
    EXPECT_EQ(dataFileContent("Brown.zev"), "theirs");
    EXPECT_EQ(form.CardName, "");
}

TEST_F(Chooser, ACardThatVanishesBehindItIsSavedAnew) {
    start();
    writeCard("Brown", cardFile({}));
    clickMark(1);
    answer(toolkit::Answer::Yes);
    answerChooser([&] {
        std::filesystem::remove(dataFile("Brown.zev"));
        clickRow(0);
        clickOn(form.BOK);
    });
    choose("File>Save As...");
    EXPECT_EQ(form.CardName, "Brown");
    EXPECT_TRUE(std::filesystem::exists(dataFile("Brown.zev")));
}

TEST_F(Chooser, ARefusedNameEndsTheCommandLikeACancel) {
    start();
    answerName("a/b");
    choose("File>Save As...");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.CardName, "");
    EXPECT_FALSE(traced("MSave_Click"));
    EXPECT_FALSE(form.P3.Visible);
}

TEST_F(Chooser, ARefusedNameOpensABlankCard) {
    start();
    openCard("Jones", {});
    answerName("a/b");
    choose("File>Open...");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.CardName, "");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(Chooser, ARefusedNameLeavesTheCardItsNameAndItsStar) {
    start();
    openCard("Jones", {});
    const std::string saved = dataFileContent("Jones.zev");
    clickMark(1);
    ASSERT_EQ(form.Caption, "Zevlin  ( Jones ) *");
    answerName("a/b");
    choose("File>Save As...");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, std::string("'a/b") + invalidTail);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones ) *");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(dataFileContent("Jones.zev"), saved);
    choose("File>Save");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_NE(dataFileContent("Jones.zev"), saved);
}

TEST_F(Chooser, RefusesWhatThePlatformCannotName) {
    start();
    const std::string name(300, 'x');
    EXPECT_EQ(take(name), "");
    EXPECT_EQ(boxes.at(0).text, "'" + name + invalidTail);
}

TEST_F(Chooser, TakesALongNameWithDotsAndOneLikeADevice) {
    start();
    const std::string name = std::string(196, 'x') + ".a.b";
    EXPECT_EQ(take(name), name);
    EXPECT_EQ(take("..."), "...");
    EXPECT_TRUE(boxes.empty());
#ifndef _WIN32
    EXPECT_EQ(take("CON"), "CON");
#endif
}

TEST_F(Chooser, LettersOutsideTheCodePageBecomeTheirBaseLetters) {
    start();
    EXPECT_EQ(take("Ku\xC4\x8D"
                   "era"),
              "Kucera");
}

TEST_F(Chooser, CharactersOutsideTheCodePageBecomeQuestionMarksAndAreRefused) {
    start();
    EXPECT_EQ(take("Ku\xD0\x96"
                   "era"),
              "");
    EXPECT_EQ(boxes.at(0).text, std::string("'Ku?era") + invalidTail);
}

TEST_F(Chooser, AFolderThatHasVanishedIsLikeAnEmptyOne) {
    start();
    writeCard("Jones", "");
    fs::remove_all(dataFolder);
    inChooser([&] {
        EXPECT_FALSE(form.FileList.Visible);
        EXPECT_EQ(form.LSaveAs.Caption, "Enter a name for a new card");
        typeText("Jones");
        typeKey(toolkit::key::enter);
    });
    EXPECT_EQ(chosen, "Jones");
}

TEST_F(Chooser, AFailureIsTracedAndEverythingComesBack) {
    start();
    announceError("Error in GetFileNames: #");
    inChooser([&] {
        form.SetFocus(form.BOK);
        throw toolkit::RunTimeError(toolkit::Failure::OutOfMemory);
    });
    EXPECT_TRUE(traced("Error in GetFileNames: #7, Out of memory"));
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_FALSE(form.P3.Visible);
    EXPECT_TRUE(form.MenusEnabled);
}

TEST_F(Chooser, TheGradientRunsThroughThePanelWithoutASeam) {
    start();
    inChooser([&] {
        const toolkit::Bitmap shown = toolkit::test::grabWindow();
        const auto pixels = [this](float twips) {
            return static_cast<int>(twips) / form.TwipsPerPixel;
        };
        const int menu = pixels(form.FrameHeight);
        const int left = pixels(form.P3.Left);
        const int middle = pixels(form.P3.Top + form.P3.Height / 2);
        EXPECT_EQ(shown.pixel(left - 3, menu + middle), shown.pixel(left + 3, menu + middle));
        const int top = pixels(form.P3.Top) + 3;
        EXPECT_EQ(shown.pixel(left - 3, menu + top), shown.pixel(left + 8, menu + top));
        EXPECT_NE(shown.pixel(left + 8, menu + top), shown.pixel(left + 3, menu + middle));
        leave();
    });
    EXPECT_EQ(form.Background.backdrop, toolkit::Backdrop::Tiles);
}

TEST_F(Chooser, FitsIntoASmallForm) {
    writeOptions("Zoom=1\r\n");
    start();
    for (int i = 0; i < 40; ++i) writeCard("Card " + std::to_string(i), "");
    inChooser([&] {
        EXPECT_GE(form.P3.Left, 0);
        EXPECT_GE(form.P3.Top, 0);
        EXPECT_LE(form.P3.Left + form.P3.Width, form.ScaleWidth());
        EXPECT_LE(form.P3.Top + form.P3.Height, form.ScaleHeight());
        leave();
    });
}

} // namespace
} // namespace zev::test
