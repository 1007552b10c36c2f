#include "card/chooser.h"

#include "card_form_test.h"

namespace zev::test {
namespace {

class Chooser : public CardFormTest {
  protected:
    std::string choose(const std::string& answer) {
        answerInput(answer);
        return GetFileNames(form);
    }
};

TEST_F(Chooser, AsksForANewNameInAnEmptyFolder) {
    start();
    EXPECT_EQ(choose("Jones"), "Jones");
    EXPECT_EQ(inputs.at(0).prompt, "Enter a name for a new card");
    EXPECT_TRUE(traced("GetFileNames"));
}

TEST_F(Chooser, ListsTheCardsOfTheFolder) {
    start();
    writeCard("b", "");
    writeCard("A", "");
    EXPECT_EQ(choose("A"), "A");
    EXPECT_EQ(inputs.at(0).prompt, "Select from list or enter a name for a new card\n\n  A\n  b");
}

TEST_F(Chooser, ListsOnlyRepresentableCardFiles) {
    start();
    writeCard("Ku\xC4\x8D"
              "era",
              "");
    std::filesystem::create_directory(dataFile("Folder.zev"));
    writeCard("Jones", "");
    EXPECT_EQ(cardNames(form), std::vector<std::string>{"Jones"});
}

TEST_F(Chooser, TrimsTheName) {
    start();
    EXPECT_EQ(choose("  Jones "), "Jones");
    EXPECT_TRUE(form.ChooserTaken);
    EXPECT_FALSE(form.ChooserCancelled);
    EXPECT_EQ(form.TSaveAs, "  Jones ");
}

TEST_F(Chooser, CancelEmptiesTheNameAndRenewsTheTitle) {
    start();
    form.TSaveAs = "Jones";
    form.Caption = "other";
    EXPECT_EQ(choose(""), "");
    EXPECT_EQ(inputs.at(0).preset, "Jones");
    EXPECT_EQ(form.TSaveAs, "");
    EXPECT_TRUE(form.ChooserCancelled);
    EXPECT_FALSE(form.ChooserTaken);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
}

TEST_F(Chooser, TakesANameOfBlanksForACancel) {
    start();
    EXPECT_EQ(choose("   "), "");
    EXPECT_EQ(form.TSaveAs, "");
    EXPECT_TRUE(form.ChooserCancelled);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Chooser, RefusesEachForbiddenCharacter) {
    start();
    for (const char character : std::string_view("/\\:*?<>\"")) {
        const std::string name = std::string("a") + character + "b";
        EXPECT_EQ(choose(name), "");
        EXPECT_EQ(boxes.back().text,
                  "'" + name +
                      "' is an invalid file name.  Names cannot contain any of these "
                      "characters:  /  :  *  \\  ?  \"  <  >");
    }
    EXPECT_EQ(boxes.size(), 8U);
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[0].title, "");
}

TEST_F(Chooser, RefusesWhatThePlatformCannotName) {
    start();
    const std::string name(300, 'x');
    EXPECT_EQ(choose(name), "");
    EXPECT_TRUE(boxes.at(0).text.starts_with("'" + name + "' is an invalid file name."));
}

TEST_F(Chooser, ARefusedNameEndsTheCommandLikeACancel) {
    start();
    answerInput("a/b");
    CardFormTest::choose("File>Save As...");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.CardName, "");
    EXPECT_FALSE(traced("MSave_Click"));
}

} // namespace
} // namespace zev::test
