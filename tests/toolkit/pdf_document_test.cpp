#include "toolkit/print/pdf_document.h"

#include <gtest/gtest.h>

#include "support/pdf_content.h"
#include "toolkit/base/ansi.h"

namespace toolkit::test {
namespace {

using zev::test::isInPdf;
using zev::test::timesInPdf;
using zev::test::unpackedPdf;

std::shared_ptr<CardRecording> cardOf(int width, int height) {
    auto card = std::make_shared<CardRecording>();
    card->width = width;
    card->height = height;
    return card;
}

/// A card with a box, a word and a label over its picture.
std::shared_ptr<CardRecording> drawnCard() {
    auto card = cardOf(100, 50);
    auto artwork = std::make_shared<Drawing>();
    artwork->width = 200;
    artwork->height = 100;
    artwork->items = {FilledRectangle{rgb(255, 0, 0), 20, 10, 40, 2},
                      Words{black, "Arial", false, 20, 30, 40, "Word"}};
    card->picture = std::make_shared<const Bitmap>(100, 50);
    card->artwork = artwork;
    Label label;
    label.Move(150, 150, 1200, 300);
    label.Caption = "caf\xE9";
    label.BackStyle = BackStyle::Opaque;
    label.BackColor = rgb(0, 0, 255);
    card->labels = {label};
    return card;
}

std::string pageWith(const std::shared_ptr<const CardRecording>& card) {
    const Page page{.width = 612, .height = 792, .cards = {{card, 72, 36, 300, 100}}};
    return pdfDocument({&page, 1}, "Jones");
}

TEST(PdfDocument, DrawsRectanglesAndTextsAndNoPicture) {
    const std::string file = unpackedPdf(pageWith(drawnCard()));
    EXPECT_EQ(timesInPdf(file, "/Subtype /Image"), 0);
    EXPECT_TRUE(isInPdf(file, "20 10 40 2 re"));
    EXPECT_GE(timesInPdf(file, "BT"), 2);
}

TEST(PdfDocument, EmbedsTheFontsInPart) {
    const std::string file = unpackedPdf(pageWith(drawnCard()));
    EXPECT_TRUE(isInPdf(file, "+LiberationSans"));
    EXPECT_TRUE(isInPdf(file, "/FontFile2"));
    EXPECT_TRUE(isInPdf(file, "/ToUnicode"));
}

TEST(PdfDocument, HoldsAPictureWithoutLoss) {
    auto card = cardOf(3, 2);
    auto picture = std::make_shared<Bitmap>(3, 2);
    picture->setPixel(0, 0, rgb(1, 2, 3));
    picture->setPixel(2, 1, rgb(250, 7, 130));
    card->picture = picture;
    const std::string file = unpackedPdf(pageWith(card));
    EXPECT_EQ(timesInPdf(file, "/Subtype /Image"), 1);
    EXPECT_FALSE(isInPdf(file, "DCTDecode"));
    EXPECT_TRUE(isInPdf(file, std::string("\x01\x02\x03\xFF\xFF\xFF\xFF\xFF\xFF"
                                          "\xFF\xFF\xFF\xFF\xFF\xFF\xFA\x07\x82")));
}

TEST(PdfDocument, ADrawingThatFillsNoCardIsPaper) {
    const std::string file = unpackedPdf(pageWith(cardOf(0, 0)));
    EXPECT_EQ(timesInPdf(file, "BT"), 0);
    EXPECT_EQ(timesInPdf(file, "/Type /Page\n"), 1);
}

TEST(PdfDocument, HoldsAnyNumberOfPages) {
    const std::vector<Page> pages{
        {.width = 612, .height = 792, .cards = {{drawnCard(), 0, 0, 9, 9}}},
        {.width = 595, .height = 842},
        {.width = 792, .height = 612}};
    const std::string file = unpackedPdf(pdfDocument(pages, ""));
    EXPECT_EQ(timesInPdf(file, "/Type /Page\n"), 3);
    EXPECT_TRUE(isInPdf(file, "[0 0 612.000000 792.000000]"));
    EXPECT_TRUE(isInPdf(file, "[0 0 595.000000 842.000000]"));
    EXPECT_TRUE(isInPdf(file, "[0 0 792.000000 612.000000]"));
}

TEST(PdfDocument, HasItsTitleInUnicode) {
    const Page page{.width = 612, .height = 792};
    const std::string file = pdfDocument({&page, 1}, "M\xFCller\x92s \x96 5\x80");
    const std::string title("\xFE\xFF\0M\0\xFC\0l\0l\0e\0r\x20\x19\0s\0 \x20\x13\0 \0"
                            "5\x20\xAC",
                            28);
    EXPECT_TRUE(isInPdf(file, "/Title (" + title + ")"));
    EXPECT_TRUE(isInPdf(file, "/CreationDate (D:2"));
}

TEST(PdfDocument, TellsTheDateThatItIsGiven) {
    const auto file = [](std::optional<std::string> date) {
        PdfDocument document({.title = "Jones", .date = std::move(date)});
        document.addPage({.width = 612, .height = 792});
        return document.finish();
    };
    EXPECT_TRUE(isInPdf(file("20260921141320Z"), "/CreationDate (D:20260921141320Z)"));
    EXPECT_FALSE(isInPdf(file(""), "/CreationDate"));
    EXPECT_TRUE(isInPdf(file(std::nullopt), "/CreationDate (D:2"));
    EXPECT_EQ(file("20260921141320Z"), file("20260921141320Z"));
}

TEST(PdfDocument, TakesPagesOneByOne) {
    PdfDocument document({.title = "Jones"});
    for (int i = 0; i < 3; ++i)
        document.addPage({.width = 612, .height = 792, .cards = {{drawnCard(), 0, 0, 9, 9}}});
    EXPECT_EQ(timesInPdf(unpackedPdf(document.finish()), "/Type /Page\n"), 3);
}

TEST(PdfDocument, SaysItsLanguage) {
    const Page page{.width = 612, .height = 792};
    const std::string file = pdfDocument({&page, 1}, "Jones");
    EXPECT_EQ(timesInPdf(file, "/Type /Catalog"), 1);
    EXPECT_EQ(timesInPdf(file, "/Lang (en-US)"), 1);
    EXPECT_EQ(timesInPdf(file, "/DisplayDocTitle true"), 1);
}

TEST(PdfDocument, ItsTableSaysWhereItsObjectsBegin) {
    const std::string file = pageWith(drawnCard());
    EXPECT_TRUE(file.ends_with("%%EOF\n"));
    const std::size_t table = std::stoul(file.substr(file.rfind("startxref\n") + 10));
    ASSERT_EQ(file.substr(table, 7), "xref\n0 ");
    const std::size_t size = std::stoul(file.substr(table + 7));
    EXPECT_TRUE(isInPdf(file.substr(table), "/Size " + std::to_string(size) + '\n'));
    EXPECT_GT(size, 20U);
    const std::size_t first = file.find('\n', table + 7) + 1;
    for (std::size_t number = 1; number < size; ++number) {
        const std::string entry = file.substr(first + 20 * number, 20);
        const std::string head = std::to_string(number) + " 0 obj\n";
        EXPECT_EQ(file.substr(std::stoul(entry), head.size()), head);
        EXPECT_EQ(entry.substr(10), " 00000 n \n");
    }
    EXPECT_FALSE(isInPdf(file, "\n" + std::to_string(size) + " 0 obj\n"));
}

} // namespace
} // namespace toolkit::test
