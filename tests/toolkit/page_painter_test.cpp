#include <gtest/gtest.h>

#include <memory>

#include "support/pdf_content.h"
#include "toolkit/print/pdf_document.h"

namespace toolkit::test {
namespace {

std::shared_ptr<CardRecording> boxOf(int width, int height) {
    auto card = std::make_shared<CardRecording>();
    card->width = width;
    card->height = height;
    card->paper = rgb(0, 128, 0);
    return card;
}

TEST(PagePainter, StretchesEachCardIntoItsPlace) {
    const Page page{.width = 612,
                    .height = 792,
                    .cards = {{boxOf(100, 50), 72, 36, 300, 100}, {boxOf(10, 10), 0, 6, 60, 60}}};
    const std::string file = zev::test::unpackedPdf(pdfDocument({&page, 1}, ""));
    // Dots of 1200 to the inch for each pixel, from the page's upper left corner.
    EXPECT_NE(file.find("50 0 0 33.3333333 1200 600 cm\n0 0 100 50 re"), std::string::npos) << file;
    EXPECT_NE(file.find("100 0 0 100 0 100 cm\n0 0 10 10 re"), std::string::npos) << file;
}

TEST(PagePainter, ACardWithoutASizeIsLeftOut) {
    const Page page{.width = 612, .height = 792, .cards = {{boxOf(0, 50), 0, 0, 300, 100}}};
    EXPECT_EQ(zev::test::unpackedPdf(pdfDocument({&page, 1}, "")).find(" re\n"), std::string::npos);
}

TEST(PagePainter, ItemsLieOverTheCardsAtTheirPlacesOfThePage) {
    const Page page{.width = 612,
                    .height = 792,
                    .cards = {{boxOf(100, 50), 72, 36, 300, 100}},
                    .items = {FilledRectangle{
                        .color = black, .left = 72, .top = 36, .width = 300, .height = 10}}};
    const std::string file = zev::test::unpackedPdf(pdfDocument({&page, 1}, ""));
    const auto item = file.find("16.6666666 0 0 16.6666666 0 0 cm\n72 36 300 10 re");
    ASSERT_NE(item, std::string::npos) << file;
    EXPECT_GT(item, file.find("0 0 100 50 re"));
}

} // namespace
} // namespace toolkit::test
