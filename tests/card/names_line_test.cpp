#include "card/names_line.h"

#include "card_form_test.h"
#include "form/write_options.h"
#include "layout/write_layout.h"

namespace zev::test {
namespace {

constexpr std::string_view examples = "\n  Joe 12345\n  Joe Smith 12345\n  Joe\n\n"
                                      "To delete this information, enter a single 'space'";

class NamesLineTest : public CardFormTest {
  protected:
    void enter(const std::string& item, const std::string& answer) {
        answerInput(answer);
        choose("Options>" + item);
    }
    void enterMine(const std::string& answer) { enter("My Name", answer); }
    void enterPartner(const std::string& answer) { enter("Partner's Name", answer); }
    [[nodiscard]] std::string line() const { return form.AText[3].Caption; }
};

TEST_F(NamesLineTest, MyNameIsAskedForWithExamples) {
    start();
    enterMine("");
    ASSERT_EQ(inputs.size(), 1U);
    EXPECT_EQ(inputs[0].title, "My ID");
    EXPECT_EQ(inputs[0].preset, "");
    EXPECT_EQ(inputs[0].prompt, "Enter your name [and optionally, your ACBL ID number]. Examples:" +
                                    std::string(examples));
    EXPECT_TRUE(traced("MMyID_Click"));
}

TEST_F(NamesLineTest, PartnersNameIsAskedForWithExamples) {
    start();
    enterPartner("");
    ASSERT_EQ(inputs.size(), 1U);
    EXPECT_EQ(inputs[0].title, "Partner ID");
    EXPECT_EQ(inputs[0].prompt,
              "Enter your partner's name [and optionally, ACBL ID number]. Examples:" +
                  std::string(examples));
    EXPECT_TRUE(traced("MPartnerID_Click"));
}

TEST_F(NamesLineTest, ThePresentNamesAreProposed) {
    writeOptions("Zoom=5\r\nName=Joe\r\nNumber=7\r\n");
    start();
    form.PartnerNumber = "8";
    enterMine("");
    enterPartner("");
    EXPECT_EQ(inputs.at(0).preset, "Joe 7");
    EXPECT_EQ(inputs.at(1).preset, "8");
}

TEST_F(NamesLineTest, MyNameIsKeptInTheOptionsAndShown) {
    start();
    enterMine("Joe Smith 12345");
    EXPECT_EQ(form.MyName, "Joe Smith");
    EXPECT_EQ(form.MyNumber, "12345");
    EXPECT_EQ(line(), "Joe Smith #12345");
    EXPECT_NE(dataFileContent("ZEV.Ini").find("\r\nName=Joe Smith"), std::string::npos);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(NamesLineTest, MyNameThatCouldntBeWrittenIsToldAndWrittenWhenTheProgramEnds) {
    start();
    const auto aside = home / "ZEV.Ini";
    std::filesystem::rename(dataFile("ZEV.Ini"), aside);
    std::filesystem::create_directory(dataFile("ZEV.Ini"));
    announceError("Error in IniWrite ");
    enterMine("Joe Smith 12345");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].text.find("The settings (ZEV.Ini)"), std::string::npos) << boxes[0].text;
    std::filesystem::remove(dataFile("ZEV.Ini"));
    std::filesystem::rename(aside, dataFile("ZEV.Ini"));
    answer(toolkit::Answer::No);
    EXPECT_TRUE(endsProgram([] { choose("File>Exit"); }));
    EXPECT_NE(dataFileContent("ZEV.Ini").find("\r\nName=Joe Smith"), std::string::npos);
}

TEST_F(NamesLineTest, AnAnswerOfANumberAloneIsAName) {
    start();
    enterMine("12345");
    EXPECT_EQ(form.MyName, "12345");
    EXPECT_EQ(form.MyNumber, "");
    EXPECT_EQ(line(), "12345");
}

TEST_F(NamesLineTest, AnAnswerWithoutANumberIsAName) {
    start();
    enterMine("Joe Smith");
    EXPECT_EQ(form.MyName, "Joe Smith");
    EXPECT_EQ(form.MyNumber, "");
    enterMine("Joe J12345");
    EXPECT_EQ(form.MyName, "Joe J12345");
}

TEST_F(NamesLineTest, CancelKeepsMyName) {
    writeOptions("Zoom=5\r\nName=Joe\r\n");
    start();
    enterMine("");
    EXPECT_EQ(form.MyName, "Joe");
    EXPECT_FALSE(traced("IniWrite"));
}

TEST_F(NamesLineTest, OneBlankClearsMyNameButNotTheLine) {
    writeOptions("Zoom=5\r\nName=Joe\r\nNumber=7\r\n");
    start();
    ASSERT_EQ(line(), "Joe #7");
    enterMine(" ");
    EXPECT_EQ(form.MyName, "");
    EXPECT_EQ(form.MyNumber, "");
    EXPECT_EQ(line(), "Joe #7");
    EXPECT_EQ(dataFileContent("ZEV.Ini").find("Name=Joe"), std::string::npos);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(NamesLineTest, TwoBlanksDoNothing) {
    writeOptions("Zoom=5\r\nName=Joe\r\n");
    start();
    enterMine("  ");
    EXPECT_EQ(form.MyName, "Joe");
    EXPECT_FALSE(traced("IniWrite"));
}

TEST_F(NamesLineTest, PartnersNameIsKeptInTheCardAlone) {
    start();
    const std::string options = dataFileContent("ZEV.Ini");
    enterPartner("Jane 8");
    EXPECT_EQ(form.PartnerName, "Jane");
    EXPECT_EQ(form.PartnerNumber, "8");
    EXPECT_EQ(line(), "Jane #8");
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(dataFileContent("ZEV.Ini"), options);
}

TEST_F(NamesLineTest, BothNamesAreJoinedByAnAmpersand) {
    start();
    enterMine("Joe 7");
    enterPartner("Jane");
    EXPECT_EQ(line(), "Joe #7 && Jane");
    EXPECT_EQ(form.AText[3].Tag, "Joe #7 && Jane");
    EXPECT_TRUE(form.AText[3].Font.Bold);
}

TEST_F(NamesLineTest, TheSamePartnerChangesNothing) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"8\"", .texts = {"3,\"typed\",0"}});
    enterPartner("Jane 8");
    EXPECT_EQ(line(), "typed");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(NamesLineTest, OneBlankClearsThePartnerAndChangesTheCard) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"8\"", .texts = {"3,\"typed\",0"}});
    enterPartner(" ");
    EXPECT_EQ(form.PartnerName, "");
    EXPECT_EQ(form.PartnerNumber, "");
    EXPECT_EQ(line(), "typed");
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(traced("IniWrite"));
}

TEST_F(NamesLineTest, APartnerChangesTheCardAlsoWithoutANamesLine) {
    writeLayout(smallLayout({{.left = 1, .top = 1, .width = 9, .height = 9}},
                            {{.left = 1, .top = 50, .width = 90, .height = 9}}));
    start();
    ASSERT_EQ(form.NamesField, 0);
    enterPartner("Jane 8");
    EXPECT_EQ(form.AText[1].Caption, "");
    EXPECT_EQ(form.AText[0].Caption, "");
    EXPECT_TRUE(form.CardModified);
}

TEST_F(NamesLineTest, MyNameReplacesALineTypedByHand) {
    start();
    typeInto(3, "we two");
    enterMine("Joe");
    EXPECT_EQ(line(), "Joe");
}

TEST_F(NamesLineTest, AnOpenFieldIsCommittedFirst) {
    start();
    typeInOpenField(1, "mine");
    enterMine("Joe");
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(form.AText[1].Tag, "mine");
    EXPECT_EQ(line(), "Joe");
}

TEST_F(NamesLineTest, ALoadedLineStands) {
    writeOptions("Zoom=5\r\nName=Joe\r\n");
    start();
    openCard("Jones", {.partner = "\"Jane\",\"\"", .texts = {"3,\"we & they\",0"}});
    EXPECT_EQ(line(), "we && they");
    EXPECT_TRUE(form.AText[3].Font.Bold);
}

TEST_F(NamesLineTest, AnEmptyLineOfALoadedCardShowsMyNameAlone) {
    writeOptions("Zoom=5\r\nName=Joe\r\n");
    start();
    openCard("Jones", {.partner = "\"Jane\",\"\""});
    EXPECT_EQ(line(), "Joe");
}

TEST_F(NamesLineTest, AnEmptyLineShowsThePartnerOrElseTheCard) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"\""});
    EXPECT_EQ(line(), "Jane");
    openCard("Smith", {});
    EXPECT_EQ(line(), "Smith");
}

TEST_F(NamesLineTest, ALoadedLineKeepsItsEscapes) {
    start();
    openCard("Jones", {.texts = {"3,\"a^h\",0"}});
    EXPECT_EQ(line(), "a\xA0\xA0\xA0");
    EXPECT_EQ(form.AText[3].Tag, "a^h");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(NamesLineTest, ATypedLineComesThroughWhateverHappensToTheCard) {
    writeOptions("Zoom=5\r\nName=Me\r\n");
    start();
    typeInto(3, "Joe & Ann^h");
    answerName("Pair");
    choose("File>Save");
    const std::string saved = dataFileContent("Pair.zev");
    EXPECT_NE(saved.find("3,\"Joe & Ann^h\",1\r\n"), std::string::npos) << saved;
    openNamed("Pair");
    answerFile(home / "page.pdf");
    for (const auto* item :
         {"View>Zoom In (Bigger)                   Ctrl +", "Options>Font size>Larger",
          "File>Copy to Clipboard", "File>Print card"}) {
        choose(item);
        EXPECT_EQ(form.AText[3].Tag, "Joe && Ann^h") << item;
    }
    choose("File>Save");
    EXPECT_EQ(dataFileContent("Pair.zev"), saved);
}

TEST_F(NamesLineTest, ItsSuitStandsWhereTheLinesFontPutsIt) {
    start();
    openCard("Jones", {.texts = {"3,\"Joe and Ann ^h\",0"}});
    const float left = form.SText[form.ShownSymbols.at(3).at(0)].Left;
    openCard("Smith", {.texts = {"3,\"Joe and Ann ^h\",1"}});
    EXPECT_EQ(left, form.SText[form.ShownSymbols.at(3).at(0)].Left);
}

TEST_F(NamesLineTest, AnAmpersandInANameReadsSo) {
    start();
    enterMine("Bob & Sue 7");
    EXPECT_EQ(line(), "Bob && Sue #7");
    EXPECT_EQ(form.AText[3].Tag, "Bob && Sue #7");
    enterPartner("A&B");
    EXPECT_EQ(line(), "Bob && Sue #7 && A&&B");
}

TEST_F(NamesLineTest, ACardsNameWithAnAmpersandReadsSo) {
    start();
    openCard("Joe & Ann", {});
    EXPECT_EQ(line(), "Joe && Ann");
}

TEST_F(NamesLineTest, ASuitInANameIsShownAndKept) {
    start();
    enterMine("Joe ^h");
    EXPECT_EQ(line(), "Joe \xA0\xA0\xA0");
    EXPECT_EQ(form.AText[3].Tag, "Joe ^h");
    EXPECT_EQ(form.ShownSymbols.at(3).size(), 1U);
}

TEST_F(NamesLineTest, ASuitInANameStandsInItsPlaceAfterARebuild) {
    start();
    enterMine("Joe ^h");
    enterPartner("Ann ^s");
    for (const char* zoom : {"View>Zoom In (Bigger)                   Ctrl +",
                             "View>Zoom Out (Smaller)               Ctrl  -"}) {
        choose(zoom);
        const toolkit::Label& names = form.AText[3];
        EXPECT_EQ(names.Tag, "Joe ^h && Ann ^s");
        EXPECT_EQ(line(), "Joe \xA0\xA0\xA0 && Ann \xA0\xA0\xA0");
        const auto shown = form.ShownSymbols.at(3);
        ASSERT_EQ(shown.size(), 2U);
        EXPECT_EQ(form.SText.UBound(), 2);
        const std::string painted = toolkit::paintedText(names.Caption);
        const float start =
            names.Left + (names.Width - toolkit::textWidth(names.Font, painted)) / 2;
        const toolkit::Label& heart = form.SText[shown[0]];
        EXPECT_TRUE(heart.Visible);
        EXPECT_EQ(heart.Tag, "3");
        EXPECT_EQ(heart.Caption, "\xA9");
        EXPECT_EQ(heart.ForeColor, form.ColorRed);
        EXPECT_EQ(heart.Font.Size, names.Font.Size + 4);
        EXPECT_NEAR(heart.Left, start + toolkit::textWidth(names.Font, "Joe "), 1);
        const toolkit::Label& spade = form.SText[shown[1]];
        EXPECT_EQ(spade.ForeColor, toolkit::black);
        EXPECT_NEAR(spade.Left, start + toolkit::textWidth(names.Font, "Joe \xA0\xA0\xA0 & Ann "),
                    1);
    }
}

TEST_F(NamesLineTest, NoOldSuitLiesOverANewLine) {
    start();
    typeInto(3, "we^h");
    ASSERT_EQ(form.ShownSymbols.at(3).size(), 1U);
    const int symbol = form.ShownSymbols.at(3).at(0);
    enterMine("Joe");
    EXPECT_FALSE(form.SText[symbol].Visible);
    EXPECT_TRUE(form.ShownSymbols.at(3).empty());
}

TEST_F(NamesLineTest, TheNameThatTheLineShowsAlreadyChangesNothing) {
    start();
    enterMine("Joe ^h");
    form.CardModified = false;
    enterMine("Joe ^h");
    EXPECT_EQ(form.AText[3].Tag, "Joe ^h");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(NamesLineTest, ALongLineIsFitted) {
    start();
    const float full = form.AText[3].Font.Size;
    enterMine(std::string(90, 'W'));
    EXPECT_LT(form.AText[3].Font.Size, full);
}

} // namespace
} // namespace zev::test
