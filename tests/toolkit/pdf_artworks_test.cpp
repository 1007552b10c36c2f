// The artworks on the pages of a PDF file.
#include <gtest/gtest.h>

#include <memory>

#include "support/pdf_content.h"
#include "toolkit/print/pdf_document.h"

namespace toolkit::test {
namespace {

using zev::test::isInPdf;
using zev::test::timesInPdf;
using zev::test::unpackedPdf;

/// A card of a hundred by fifty pixels whose artwork has a box, and twice as many pixels each way.
std::shared_ptr<CardRecording> cardWithBox() {
    auto card = std::make_shared<CardRecording>();
    card->width = 100;
    card->height = 50;
    card->picture = std::make_shared<const Bitmap>(100, 50);
    card->artwork = std::make_shared<const Drawing>(
        Drawing{.width = 200, .height = 100, .items = {FilledRectangle{black, 20, 10, 40, 2}}});
    return card;
}

TEST(PdfArtworks, HoldsAnArtworkOnceHoweverOftenPagesShowIt) {
    const auto card = cardWithBox();
    PdfDocument document({.title = "Jones"});
    for (int i = 0; i < 3; ++i)
        document.addPage({.width = 612, .height = 792, .cards = {{card, 0, 0, 90, 90}}});
    document.addPage(
        {.width = 612, .height = 792, .cards = {{card, 0, 0, 90, 90}, {card, 90, 90, 180, 90}}});
    const std::string file = unpackedPdf(document.finish());
    EXPECT_EQ(timesInPdf(file, "/Subtype /Form"), 1);
    EXPECT_EQ(timesInPdf(file, "20 10 40 2 re"), 1);
    EXPECT_EQ(timesInPdf(file, " Do\n"), 5);
    EXPECT_TRUE(
        isInPdf(file, "q\n0.450000000 0 0 0.900000000 0.000000000 702.000000000 cm\n/Form"));
    EXPECT_TRUE(
        isInPdf(file, "q\n0.900000000 0 0 0.900000000 90.000000000 612.000000000 cm\n/Form"));
}

TEST(PdfArtworks, HoldsTheArtworkOfEachCard) {
    PdfDocument document({.title = "Jones"});
    for (int i = 0; i < 2; ++i)
        document.addPage({.width = 612, .height = 792, .cards = {{cardWithBox(), 0, 0, 90, 90}}});
    EXPECT_EQ(timesInPdf(unpackedPdf(document.finish()), "/Subtype /Form"), 2);
}

TEST(PdfArtworks, ShowsArtworkAndPictureOnOnePage) {
    auto pictured = std::make_shared<CardRecording>();
    pictured->width = 3;
    pictured->height = 2;
    pictured->picture = std::make_shared<Bitmap>(3, 2);
    const Page page{.width = 612,
                    .height = 792,
                    .cards = {{cardWithBox(), 0, 0, 90, 90}, {pictured, 200, 200, 30, 20}}};
    const std::string file = unpackedPdf(pdfDocument({&page, 1}, ""));
    EXPECT_EQ(timesInPdf(file, "/XObject <<"), 2); // of the page and of the form
    EXPECT_EQ(timesInPdf(file, "/Subtype /Form"), 1);
    EXPECT_EQ(timesInPdf(file, "/Subtype /Image"), 1);
    EXPECT_EQ(timesInPdf(file, " Do\n"), 2);
}

} // namespace
} // namespace toolkit::test
