// How wide a page says that its suits are.
#include <gtest/gtest.h>

#include <memory>

#include "support/pdf_content.h"
#include "toolkit/print/pdf_document.h"

namespace toolkit::test {
namespace {

/// A page with a character whose em has 600 twips.
std::string pageWithSign(const char* font, const char* character, float reach) {
    auto card = std::make_shared<CardRecording>();
    card->width = 100;
    card->height = 50;
    Label label;
    label.Move(300, 150, 1200, 900);
    label.Font = {.Name = font, .Size = 30};
    label.Caption = character;
    label.Reach = reach;
    card->labels = {label};
    const Page page{.width = 612, .height = 792, .cards = {{card, 0, 0, 300, 150}}};
    return zev::test::unpackedPdf(pdfDocument({&page, 1}, ""));
}

std::string pageWithSuit(float reach) { return pageWithSign("Symbol", "\xA9", reach); }

bool pageHolds(std::string_view file, std::string_view text) {
    return file.find(text) != std::string_view::npos;
}

TEST(SuitReach, ASuitIsToldToReachAsFarAsItsRoomOrLessThanATenthFarther) {
    EXPECT_TRUE(pageHolds(pageWithSuit(420.5F), "/DW 800 "));
    EXPECT_TRUE(pageHolds(pageWithSuit(479.5F), "/DW 800 "));
    EXPECT_TRUE(pageHolds(pageWithSuit(60.5F), "/DW 200 "));
}

TEST(SuitReach, ASuitWithoutRoomOrWithFarTooMuchIsAsWideAsItIs) {
    for (const float reach : {0.0F, -433.0F, 2400.0F, 1e30F})
        EXPECT_TRUE(pageHolds(pageWithSuit(reach), "/DW 522 ")) << reach;
}

TEST(SuitReach, TheSignStaysWhereItWas) {
    for (const char* ink :
         {"/FontBBox [22.9492187 -14.6484375 499.511718 576.171875 ]", "<0001> Tj"}) {
        EXPECT_TRUE(pageHolds(pageWithSuit(0), ink));
        EXPECT_TRUE(pageHolds(pageWithSuit(433), ink));
    }
}

TEST(SuitReach, AnotherFontIsLeftAlone) {
    const std::string page = pageWithSign("Arial", "S", 433);
    EXPECT_TRUE(pageHolds(page, "+LiberationSans"));
    EXPECT_FALSE(pageHolds(page, "ZevlinS"));
}

} // namespace
} // namespace toolkit::test
