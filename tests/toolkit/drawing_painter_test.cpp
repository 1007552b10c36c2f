// What a card is drawn of, as a page shows it: the only device whose units can be read.
#include <gtest/gtest.h>

#include <memory>

#include "support/pdf_content.h"
#include "toolkit/base/twips.h"
#include "toolkit/print/pdf_document.h"

namespace toolkit::test {
namespace {

class DrawingPainter : public testing::Test {
  protected:
    DrawingPainter() {
        card->width = 100;
        card->height = 50;
        card->picture = std::make_shared<const Bitmap>(100, 50);
    }
    /// The page's own operators.
    [[nodiscard]] std::string drawn() const {
        const Page page{.width = 612, .height = 792, .cards = {{card, 0, 0, 300, 150}}};
        return zev::test::unpackedPdf(pdfDocument({&page, 1}, ""));
    }
    [[nodiscard]] bool draws(std::string_view text) const {
        return drawn().find(text) != std::string::npos;
    }
    /// A label of ten by a hundred and twenty pixels, a third of a pixel off.
    static Label label() {
        Label made;
        const auto pixel = static_cast<float>(twipsPerPixel());
        made.Move(pixel * 20.25F, pixel * 10.5F, pixel * 120, pixel * 20);
        made.Font.Size = 8;
        made.Caption = "Word";
        return made;
    }
    /// A box, in four pixels for each of the picture's.
    static std::shared_ptr<const Drawing> fourTimesAsWide() {
        return std::make_shared<const Drawing>(
            Drawing{.width = 400,
                    .height = 200,
                    .items = {FilledRectangle{rgb(255, 0, 0), 20, 10, 40, 2}}});
    }
    std::shared_ptr<CardRecording> card = std::make_shared<CardRecording>();
};

TEST_F(DrawingPainter, TheArtworkIsAsWideAsThePicture) {
    card->artwork = fourTimesAsWide();
    // 3 points for a pixel of the card, and so for four of the artwork.
    EXPECT_TRUE(draws("0.750000000 0 0 0.750000000 0.000000000 642.000000000 cm")) << drawn();
    EXPECT_TRUE(draws("/BBox [0 0 400.000000 200.000000]"));
    EXPECT_TRUE(draws("20 10 40 2 re"));
}

TEST_F(DrawingPainter, TheArtworkLiesOverPaperOfAnotherColour) {
    card->artwork = fourTimesAsWide();
    card->paper = rgb(0, 128, 0);
    const std::string page = drawn();
    const std::size_t ground = page.find("0 0 100 50 re");
    ASSERT_NE(ground, std::string::npos) << page;
    // 50 dots of 1200 to the inch for a pixel of the card.
    EXPECT_NE(page.find("12.5000000 0 0 12.5000000 0 0 cm\n20 10 40 2 re", ground),
              std::string::npos)
        << page;
}

TEST_F(DrawingPainter, BoxesOfOneColourThatFollowEachOtherAreFilledAtOnce) {
    auto artwork = std::make_shared<Drawing>();
    artwork->width = 100;
    artwork->height = 50;
    const Color red = rgb(255, 0, 0);
    artwork->items = {
        FilledRectangle{red, 20, 10, 40, 2},         FilledRectangle{red, 20, 20, 40, 2},
        Words{red, "Arial", false, 20, 30, 40, "m"}, FilledRectangle{red, 20, 30, 40, 2},
        FilledRectangle{black, 20, 40, 40, 2},       FilledRectangle{black, 20, 45, 40, 2}};
    card->artwork = artwork;
    const std::string page = drawn();
    std::size_t at = 0;
    for (const char* step : {"20 10 40 2 re\n20 20 40 2 re\nf\n", "BT\n", "20 30 40 2 re\nf\n",
                             "20 40 40 2 re\n20 45 40 2 re\nf\n"}) {
        at = page.find(step, at);
        ASSERT_NE(at, std::string::npos) << step << page;
    }
}

TEST_F(DrawingPainter, ALabelStandsAtItsExactPlace) {
    Label made = label();
    made.BackStyle = BackStyle::Opaque;
    made.BackColor = rgb(0, 0, 255);
    card->labels = {made};
    EXPECT_TRUE(draws("20.2500000 10.5000000 120 20 re")) << drawn();
    EXPECT_TRUE(draws("20.2500000 -"));
}

TEST_F(DrawingPainter, OnlyATextThatLeavesItsLabelIsCut) {
    card->labels = {label()};
    EXPECT_FALSE(draws("W* n")) << drawn();
    card->labels[0].Width /= 10;
    EXPECT_TRUE(draws("W* n")) << drawn();
    card->labels[0].Clips = false;
    EXPECT_FALSE(draws("W* n")) << drawn();
}

TEST_F(DrawingPainter, WordsOfAFontOfOtherMeasuresAreFittedToTheirWidth) {
    auto artwork = std::make_shared<Drawing>();
    artwork->width = 100;
    artwork->height = 50;
    artwork->items = {Words{black, "Arial", false, 20, 30, 40, "mmm", 25}};
    card->artwork = artwork;
    // Three letters of 1706 units of 2048 to the em are 49.98 wide.
    EXPECT_TRUE(draws("0.500195388 0 0 1 30 40 cm")) << drawn();
    card->artwork = std::make_shared<Drawing>(
        Drawing{.width = 100,
                .height = 50,
                .items = {Words{black, "Arial", false, 20, 30, 40, "mmm", 49.98}}});
    EXPECT_FALSE(draws("1 30 40 cm")) << drawn();
}

TEST_F(DrawingPainter, WordsOfAMissingFontAreSetInTheUsualOneAndFitted) {
    auto artwork = std::make_shared<Drawing>();
    artwork->width = 100;
    artwork->height = 50;
    artwork->items = {Words{black, "No such font", false, 20, 30, 40, "mmm", 25}};
    card->artwork = artwork;
    EXPECT_TRUE(draws("+LiberationSans")) << drawn();
    EXPECT_TRUE(draws("0.500195388 0 0 1 30 40 cm")) << drawn();
}

TEST_F(DrawingPainter, TheGroundOfTheCardIsPaintedWhereItIsntPaper) {
    card->artwork =
        std::make_shared<const Drawing>(Drawing{.width = 100, .height = 50, .items = {}});
    EXPECT_FALSE(draws("0 0 100 50 re"));
    card->paper = rgb(0, 128, 0);
    card->height = 60;
    EXPECT_TRUE(draws("0 0 100 60 re")) << drawn();
    EXPECT_TRUE(draws("0 0 100 50 re")) << drawn();
}

} // namespace
} // namespace toolkit::test
