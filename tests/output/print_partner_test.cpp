#include "card/write_card.h"
#include "output/print_partner.h"
#include "output/print_test.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

/// The second text field is the names line.
class PrintPartner : public PrintTest {
  protected:
    void startAs(const std::string& me, const std::string& card) {
        writeCard(card, "'Program version: 2.0.0\r\n\"\",\"\"\r\n1\r\n1,1,0\r\n2\r\n1,\"text\","
                        "0\r\n2,\"Own line\",1\r\n");
        start(card + ".zev");
        form.MyName = me;
    }
    /// Prints and says what the names line of the printed card was.
    std::string printed(std::string_view item = "File>Print Partner's card") {
        std::string line;
        answerFile({});
        whileAsking = [&] { line = form.AText[2].Caption; };
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        return line;
    }
};

TEST_F(PrintPartner, WithoutAPartnersNameTheCardsNameComesFirst) {
    startAs("Smith", "Jones");
    EXPECT_EQ(printed(), "Jones && Smith");
    EXPECT_EQ(form.AText[2].Caption, "Own line");
    EXPECT_EQ(form.AText[2].Tag, "Own line");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(PrintPartner, ThePartnersNameAndNumberComeFirst) {
    startAs("Smith", "Jones");
    form.PartnerName = "Pat";
    form.PartnerNumber = "77";
    EXPECT_EQ(printed(), "Pat && Smith          #77");
    EXPECT_EQ(form.PartnerName, "Pat");
}

TEST_F(PrintPartner, TheLineIsFittedAnewAfterwards) {
    startAs("Smith", "Jones");
    const toolkit::FontSpec font = form.AText[2].Font;
    form.PartnerName = std::string(90, 'W');
    printed();
    EXPECT_EQ(form.AText[2].Font, font);
}

TEST_F(PrintPartner, EscapesOfTheOwnLineComeBack) {
    startAs("Smith", "Jones");
    clickText(2);
    toolkit::test::typeKey(36);
    toolkit::test::typeText("^h ");
    toolkit::test::typeKey(27);
    const std::string tag = form.AText[2].Tag;
    const std::string caption = form.AText[2].Caption;
    const int symbols = form.SText.UBound();
    ASSERT_EQ(tag, "^h Own line");
    printed();
    EXPECT_EQ(form.AText[2].Tag, tag);
    EXPECT_EQ(form.AText[2].Caption, caption);
    EXPECT_EQ(form.SText.UBound(), symbols);
}

TEST_F(PrintPartner, AnAmpersandInANameReadsSo) {
    startAs("Smith", "Jones");
    form.PartnerName = "Bob & Sue";
    EXPECT_EQ(printed(), "Bob && Sue && Smith");
}

TEST_F(PrintPartner, WithoutAnyNameTheOwnLineIsPrintedWithItsSuits) {
    start();
    clickText(2);
    toolkit::test::typeText("we ^h");
    toolkit::test::typeKey(27);
    std::string tag;
    answerFile({});
    whileAsking = [&] { tag = form.AText[2].Tag; };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print Partner's card"));
    EXPECT_EQ(tag, "we ^h");
    EXPECT_EQ(form.AText[2].Tag, "we ^h");
}

TEST_F(PrintPartner, NoSuitOfTheOwnLineLiesOverThePartners) {
    startAs("Smith", "Jones");
    clickText(2);
    toolkit::test::typeText("^h ");
    toolkit::test::typeKey(27);
    std::size_t suits = 0;
    answerFile({});
    whileAsking = [&] { suits = form.ShownSymbols.at(2).size(); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print Partner's card"));
    EXPECT_EQ(suits, 0U);
    EXPECT_EQ(form.ShownSymbols.at(2).size(), 1U);
}

TEST_F(PrintPartner, AnEditOfTheNamesLineIsCommittedFirst) {
    startAs("Smith", "Jones");
    clickText(2);
    toolkit::test::typeText("!");
    EXPECT_EQ(printed(), "Jones && Smith");
    EXPECT_NE(form.AText[2].Tag.find('!'), std::string::npos);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(PrintPartner, WithoutAnyNameTheLineStays) {
    start();
    EXPECT_EQ(printed(), "");
}

TEST_F(PrintPartner, TwoCardsAreTheOwnOneAndThenThePartners) {
    startAs("Smith", "Jones");
    std::vector<std::string> lines;
    answerFile({});
    answerFile({});
    whileAsking = [&] { lines.push_back(form.AText[2].Caption); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print two cards"));
    EXPECT_EQ(lines, (std::vector<std::string>{"Own line", "Jones && Smith"}));
    EXPECT_EQ(form.AText[2].Caption, "Own line");
    EXPECT_EQ(form.AText[2].Tag, "Own line");
}

TEST_F(PrintPartner, TwoCardsAreOfferedTwoFilesAndEachQuestionNamesItsCard) {
    startAs("Smith", "Jones");
    const auto own = home / "own.pdf";
    const auto partners = home / "partners.pdf";
    answerFile(own);
    answerFile(partners);
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print two cards"));
    ASSERT_EQ(fileQuestions.size(), 2U);
    EXPECT_EQ(fileQuestions[0].preset, dataFolder / "Jones.pdf");
    EXPECT_EQ(fileQuestions[0].title, "Print to PDF: Jones");
    EXPECT_EQ(fileQuestions[1].preset, dataFolder / "Jones - partner.pdf");
    EXPECT_EQ(fileQuestions[1].title, "Print to PDF: Jones - partner");
    EXPECT_NE(toolkit::readFile(own).find(pdfTitle("Jones")), std::string::npos);
    EXPECT_NE(toolkit::readFile(partners).find(pdfTitle("Jones - partner")), std::string::npos);
}

TEST_F(PrintPartner, AnUnnamedCardOfThePartnerIsOfferedAFileOfItsOwn) {
    start();
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print Partner's card"));
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    ASSERT_EQ(fileQuestions.size(), 2U);
    EXPECT_EQ(fileQuestions[0].preset, dataFolder / "Card - partner.pdf");
    EXPECT_EQ(fileQuestions[1].preset, dataFolder / "Card.pdf");
}

TEST_F(PrintPartner, WithoutANamesLineItIsThePartnersFileToo) {
    writeLayout(smallLayout({{10, 10, 0, 0, 1, 2}}, {}));
    start();
    ASSERT_EQ(form.NamesField, 0);
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print Partner's card"));
    ASSERT_EQ(fileQuestions.size(), 1U);
    EXPECT_EQ(fileQuestions[0].preset, dataFolder / "Card - partner.pdf");
}

TEST_F(PrintPartner, NoToTheAlertStopsOnlyTheFirstOfTwoCards) {
    toolkit::overridePrinters({pdfWithPage(7)});
    startAs("Smith", "Jones");
    answer(toolkit::Answer::No);
    EXPECT_EQ(printed("File>Print two cards"), "Jones && Smith");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(fileQuestions.size(), 1U);
}

} // namespace
} // namespace zev::test
