// Pages and images without a window, held against what the program itself prints and exports.
#include "cards/card_form.h"

#include "cards/form_folder.h"
#include "cards/surroundings.h"
#include "output/export_card.h"
#include "output/print_test.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/print/pdf_document.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr double someDate = 1795000000;

class CardFormTest : public PrintTest {
  protected:
    CardFormTest() {
        fs::copy_file(programFolder / "Definitions.Ini.15", dataFolder / "Definitions.Ini",
                      fs::copy_options::overwrite_existing);
        for (const char* name : {"Two Over One.zev", "Standard American.zev"})
            fs::copy_file(fs::path(ZEVLIN_CARD_FOLDER) / name, dataFolder / name);
        options.command = Command::Pdf;
        options.stamp = true;
    }

    void startProgram(const std::string& card = "Two Over One") { start(card); }

    /// The program's own page.
    std::string printed(std::string_view item = "File>Print card") {
        const auto file = home / "page.pdf";
        answerFile(file);
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        return withoutDateOfPdf(toolkit::readFile(file));
    }
    std::string exported(void (*command)(Zevlin&), const std::string& name) {
        answerInput(name);
        command(form);
        return toolkit::readFile(dataFile(name));
    }

    /// From here on the program's window is closed.
    CardForm& maker() {
        if (maker_) return *maker_;
        window.reset();
        const fs::path copy = home / "run" / "ZEV";
        fs::create_directories(copy);
        std::istringstream in;
        std::ostringstream ignored;
        fillFormFolder(copy, options,
                       {.in = in, .out = ignored, .err = ignored, .dataFolder = [this] {
                            return dataFolder;
                        }});
        maker_ = std::make_unique<CardForm>(options, copy, date);
        return *maker_;
    }
    std::vector<toolkit::Page> pages(const std::string& card = "Two Over One") {
        maker().show(dataFolder / (card + ".zev"));
        return maker().pages();
    }
    std::string page(const std::string& title = "Two Over One") {
        return withoutDateOfPdf(toolkit::pdfDocument(pages(), title));
    }
    static float creditIn(const toolkit::CardRecording& card) {
        for (const toolkit::Label& label : card.labels)
            if (label.Caption.starts_with("   [")) return label.Left;
        return 0;
    }
    std::string image(const std::string& name) {
        maker().show(dataFolder / "Two Over One.zev");
        maker().saveImage(home / name);
        return toolkit::readFile(home / name);
    }

    CommandOptions options;
    std::optional<double> date = someDate;

  private:
    std::unique_ptr<CardForm> maker_;
};

TEST_F(CardFormTest, ThePageIsTheOneThatIsPrinted) {
    startProgram();
    const std::string wanted = printed();
    EXPECT_TRUE(page() == wanted);
}

TEST_F(CardFormTest, ThePageIsTheSameWhateverThePlayersView) {
    writeOptions("Name=Joe\r\nZoom=2\r\nFit=1\r\nBold=1\r\nFontSize=2\r\nFillInCheckMarks=1\r\n");
    startProgram();
    const std::string wanted = printed();
    EXPECT_TRUE(page() == wanted);
}

TEST_F(CardFormTest, ThePartnersPageIsTheOneThatIsPrinted) {
    writeOptions("Name=Joe\r\nNumber=123\r\nZoom=4\r\n");
    startProgram();
    const std::string wanted = printed("File>Print Partner's card");
    options.owner = CardOwner::Partner;
    EXPECT_TRUE(page("Two Over One - partner") == wanted);
}

TEST_F(CardFormTest, BothPagesComeBehindEachOther) {
    options.owner = CardOwner::Both;
    const auto both = pages();
    ASSERT_EQ(both.size(), 2U);
    const std::string own = toolkit::pdfDocument({both.data(), 1}, "");
    const std::string partners = toolkit::pdfDocument({&both[1], 1}, "");
    EXPECT_FALSE(own == partners);
}

TEST_F(CardFormTest, BlackIsAsThePlayerForcesIt) {
    writeOptions("Zoom=5\r\nMono=1\r\n");
    startProgram();
    const std::string wanted = printed();
    EXPECT_TRUE(page() == wanted) << "by the player's options";
}

TEST_F(CardFormTest, BlackCanBeAskedFor) {
    startProgram();
    const std::string colored = printed();
    form.MMono.Checked = true;
    const std::string wanted = printed();
    EXPECT_FALSE(colored == wanted);
    options.black = true;
    EXPECT_TRUE(page() == wanted);
}

TEST_F(CardFormTest, PaperIsTheUsualOne) { EXPECT_NEAR(pages().front().width, 8.5 * 72, 0.01); }

TEST_F(CardFormTest, PaperIsTheOneAskedFor) {
    options.paper = "a4";
    const auto page = pages().front();
    EXPECT_NEAR(page.width, 8.27 * 72, 0.1);
    EXPECT_NEAR(page.height, 11.69 * 72, 0.1);
    ASSERT_EQ(page.cards.size(), 1U);
    EXPECT_NEAR(page.cards.front().width, 8.1 * 72, 0.01);
}

TEST_F(CardFormTest, TheImageIsTheOneThatIsExported) {
    startProgram();
    const std::string png = exported(mPrintToDiskPNG_Click, "x.png");
    const std::string gif = exported(mPrintToDiskGIF_Click, "x.gif");
    const std::string bmp = exported(mPrintToDisk_Click, "x.bmp");
    const std::string jpg = exported(mPrintToDiskJPG_Click, "x.jpg");
    options.command = Command::Image;
    EXPECT_TRUE(image("a.png") == png);
    EXPECT_TRUE(image("a.jpg") == jpg);
    EXPECT_TRUE(image("a.gif") == gif);
    EXPECT_TRUE(image("a.bmp") == bmp);
    EXPECT_TRUE(image("b.png") == png) << "and once more";
}

TEST_F(CardFormTest, BlackImagesStayBlack) {
    writeOptions("Zoom=5\r\nMono=1\r\n");
    startProgram();
    const std::string png = exported(mPrintToDiskPNG_Click, "x.png");
    options.command = Command::Image;
    EXPECT_TRUE(image("a.png") == png);
    EXPECT_TRUE(image("b.png") == png) << "and once more";
}

TEST_F(CardFormTest, AnImageIsAsWideAsAskedFor) {
    options.command = Command::Image;
    options.width = 700;
    image("a.png");
    EXPECT_EQ(toolkit::loadBitmap(home / "a.png").width(), 700);
}

TEST_F(CardFormTest, APictureThatCantBeThatWideIsTrouble) {
    toolkit::savePng(toolkit::Bitmap(1000, 1000), dataFolder / "Convention card.gif");
    options.command = Command::Image;
    options.width = 1200;
    EXPECT_THROW((void)maker(), Trouble);
}

TEST_F(CardFormTest, AStampHasNoClockUnlessItIsAskedFor) {
    options.stamp = false;
    date.reset();
    const auto stampIn = [](const toolkit::Page& page) {
        for (const toolkit::Label& label : page.cards.front().card->labels)
            if (label.Caption.starts_with("[ ")) return label.Caption;
        return std::string();
    };
    EXPECT_EQ(stampIn(pages().front()), "[ Two Over One ]      ");
    EXPECT_EQ(stampIn(pages("Standard American").front()), "[ Standard American ]      ");
}

TEST_F(CardFormTest, TheCreditStandsWhereItStandsBesideTheClock) {
    const auto credit = [this] { return creditIn(*pages().front().cards.front().card); };
    const float wanted = credit();
    EXPECT_GT(wanted, 0);
    options.stamp = false;
    EXPECT_EQ(credit(), wanted);
}

TEST_F(CardFormTest, NothingOfACardReachesTheNext) {
    const std::string fresh = page();
    (void)pages("Standard American");
    EXPECT_TRUE(page() == fresh);
}

TEST_F(CardFormTest, ThePlayersFolderIsLeftAlone) {
    writeOptions("Zoom=2\r\n");
    const auto before = fs::last_write_time(dataFolder);
    page();
    EXPECT_EQ(fs::last_write_time(dataFolder), before);
    EXPECT_EQ(dataFileContent("ZEV.Ini"), "Zoom=2\r\n");
}

} // namespace
} // namespace zev::test
