// The page as other programs read it: its words, and how three of them draw it.
#include <cstdlib>

#include "card/load.h"
#include "output/page_rendering.h"
#include "output/print_card.h"
#include "output/print_test.h"
#include "toolkit/print/print_job.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/drawn_card.h"
#include "toolkit/window/flattened_card.h"
#include "toolkit/window/screen.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

class PageReaders : public PrintTest {
  protected:
    PageReaders() {
        toolkit::overrideScreen({.width = 48000, .height = 48000});
        writeLayout(toolkit::readFile(programFolder / "Definitions.Ini.15"));
    }
    void startWith(const std::string& text) {
        start();
        openFilledCard(text);
    }
    /// Writes the card at full scale as a page, drawn or as its picture.
    template <typename Draw>
    std::filesystem::path pageOf(const char* name, Draw draw) {
        const auto file = home / name;
        answerFile(file);
        toolkit::PrintJob job;
        EXPECT_TRUE(job.start(toolkit::printerNamed(toolkit::printToPdfName),
                              {.title = "Page", .filePreset = {}}));
        draw(job, toolkit::PrintJob::Place{.left = 0, .top = 0, .width = 4860, .height = 5046});
        job.finish();
        return file;
    }
    std::filesystem::path drawnPage() {
        return pageOf("drawn.pdf", [this](auto& job, const auto& place) {
            job.draw(std::make_shared<toolkit::CardRecording>(toolkit::recorded(form.P1)), place);
        });
    }
    std::filesystem::path picturedPage() {
        return pageOf("pictured.pdf", [this](auto& job, const auto& place) {
            toolkit::PictureBox card = form.P1;
            toolkit::flatten(card);
            job.stretch(card.Picture, place);
        });
    }
};

TEST_F(PageReaders, WordsComeOutAsTheyAreRead) {
    startWith("4^h Za\xEF up");
    const auto file = home / "page.pdf";
    answerFile(file);
    MPrint_Click(form);
    const std::string words = wordsOfPdf(file);
    for (const char* text :
         {"4♥ Zaï up", "✓", "○", "NAMES", "GENERAL APPROACH", "Negative", "thru", "Two Over One",
          "Transfer to ♥", "Jacoby", "1st/2nd", "circle card led, if not in bold"})
        EXPECT_NE(words.find(text), std::string::npos) << text << "\n" << words;
}

/// How often a text stands among words.
int countOf(std::string_view text, std::string_view words) {
    int found = 0;
    for (auto at = words.find(text); at != std::string_view::npos; at = words.find(text, at + 1))
        ++found;
    return found;
}

// Each text stands in every area and on the names line, in as many sizes and kinds of font as they
// need. (Words of one letter each, as "2 x 3", this reader runs together in any font.)
TEST_F(PageReaders, ASuitIsReadWithWhatStandsNextToIt) {
    start();
    for (const auto& [typed, read] :
         {std::pair("4^h: m", "4♥: m"), std::pair("1^s, 2", "1♠, 2"), std::pair("(^c)", "(♣)"),
          std::pair("^d/^h", "♦/♥"), std::pair("^h ^s ^c up", "♥ ♠ ♣ up"),
          std::pair("^sAK x", "♠AK x"), std::pair("3^d5", "3♦5"), std::pair("2^c 33", "2♣ 33"),
          std::pair("^c 10+", "♣ 10+"), std::pair("ab ^c!", "ab ♣!"), std::pair("ab^h", "ab♥")}) {
        openFilledCard(typed);
        const auto file = home / "page.pdf";
        answerFile(file);
        MPrint_Click(form);
        EXPECT_EQ(countOf(read, wordsOfPdf(file)), form.AText.UBound()) << read;
    }
}

// The fonts that such a page needs come into the program while it prints. At the card's foot the
// job renews the time stamp.
TEST_F(PageReaders, APageWithSuitsLeavesTheScreenAsItWas) {
    startWith("4^h: m");
    window->update();
    const auto before = toolkit::test::grabCard();
    print();
    const auto after = toolkit::test::grabCard();
    ASSERT_EQ(after.height(), before.height());
    ASSERT_EQ(after.width(), before.width());
    const int stamp = static_cast<int>(form.Timestamp.Top / pixel);
    ASSERT_GT(stamp, 1200);
    for (int y = 0; y < stamp; ++y)
        ASSERT_TRUE(std::equal(before.row(y), before.row(y) + before.width(), after.row(y))) << y;
}

TEST_F(PageReaders, ThePrintedCardHasNoPicture) {
    startWith("4^h up");
    const PrintedPage page = print();
    EXPECT_EQ(page.pictures, 0);
    EXPECT_LT(std::filesystem::file_size(home / "page.pdf"), 150'000U);
}

TEST_F(PageReaders, TheArtworkIsSetInItsFontWhereTheMachineHasIt) {
    startWith("");
    print();
    const char* fonts = std::getenv("FONTCONFIG_FILE");
    const bool isHidden =
        fonts != nullptr && std::string_view(fonts).ends_with("no_narrow_font.conf");
    const std::string page = unpackedPdf(toolkit::readFile(home / "page.pdf"));
    EXPECT_EQ(page.find("LiberationSansNarrow") == std::string::npos, isHidden);
}

class PageReader : public PageReaders, public testing::WithParamInterface<Reader> {};

// Ink is what is darker than half; it counts as off where the other page has no trace of ink in the
// pixels around it.
TEST_P(PageReader, DrawsThePageAsTheCardsPictureWithNothingOffByMoreThanAPixel) {
    startWith("4^h: up");
    form.ZoomLevel = 11;
    RebuildScreenImage(form);
    const Rendering drawn = drawnBy(GetParam(), drawnPage());
    const Rendering pictured = drawnBy(poppler, picturedPage());
    ASSERT_EQ(drawn.width, 2550);
    ASSERT_EQ(drawn.height, 3300);
    ASSERT_EQ(pictured.width, drawn.width);
    ASSERT_EQ(pictured.height, drawn.height);
    constexpr int dark = 128;
    constexpr int trace = 24;
    long ink = 0;
    long off = 0;
    for (int y = 0; y < drawn.height; ++y)
        for (int x = 0; x < drawn.width; ++x) {
            if (drawn.darkness(x, y) > dark && ++ink > 0 && pictured.darkestNear(x, y) < trace)
                ++off;
            if (pictured.darkness(x, y) > dark && drawn.darkestNear(x, y) < trace) ++off;
        }
    EXPECT_GT(ink, 200'000);
    EXPECT_EQ(off, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Programs, PageReader,
    testing::Values(poppler, Reader{"mupdf", "mutool draw -q -r 300 -c gray -o 'OUT' 'IN'"},
                    Reader{"ghostscript",
                           "gs -q -sDEVICE=pgmraw -r300 -dTextAlphaBits=4 -dGraphicsAlphaBits=4 "
                           "-o 'OUT' 'IN'"}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace zev::test
