// The colours of a drawn page, held against the bitmap that the same card would be printed from.
#include <cmath>
#include <map>
#include <set>

#include "output/page_rendering.h"
#include "output/print_card.h"
#include "output/print_test.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/flattened_card.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

using toolkit::Bitmap;
using toolkit::Color;

enum class Inks { AsTheyAre, GreyAndBlack };

struct ColorCase {
    const char* name;
    bool forcedBlack;
    bool forcedColor;
    int printersColors;
    Inks inks;
};

std::ostream& operator<<(std::ostream& out, const ColorCase& colors) { return out << colors.name; }

bool isGray(Color color) {
    return toolkit::redOf(color) == toolkit::greenOf(color) &&
           toolkit::redOf(color) == toolkit::blueOf(color);
}

/// All colours that the page is drawn with.
std::set<Color> inksOf(const std::filesystem::path& page) {
    const std::string content = unpackedPdf(toolkit::readFile(page));
    const std::string_view setsInk = "/CSp cs ";
    std::set<Color> inks;
    for (auto at = content.find(setsInk); at != std::string::npos;
         at = content.find(setsInk, at + 1)) {
        const std::vector<float> channels = numbersAfter(content, setsInk, at);
        if (channels.size() != 3) continue;
        const auto shade = [&](std::size_t channel) {
            return static_cast<int>(std::lround(channels[channel] * 255));
        };
        inks.insert(toolkit::rgb(shade(0), shade(1), shade(2)));
    }
    return inks;
}

/// Whether a pixel and all around it have one colour, which no edge has changed.
template <typename ColorAt>
bool isFlat(ColorAt colorAt, int x, int y) {
    for (int row = y - 1; row <= y + 1; ++row)
        for (int column = x - 1; column <= x + 1; ++column)
            if (colorAt(column, row) != colorAt(x, y)) return false;
    return true;
}

/// The colours of the pixels that count, by place.
template <typename Counts>
std::set<Color> colorsIn(const Bitmap& picture, Counts counts) {
    std::set<Color> colors;
    std::uint32_t last = 0;
    for (int y = 1; y < picture.height() - 1; ++y)
        for (int x = 1; x < picture.width() - 1; ++x) {
            const std::uint32_t value = picture.row(y)[x];
            if (value == last || !counts(x, y)) continue;
            colors.insert(toolkit::colorOf(value));
            last = value;
        }
    return colors;
}

std::set<Color> colorsIn(const Bitmap& picture) {
    return colorsIn(picture, [](int, int) { return true; });
}

std::set<Color> flatColorsIn(const Bitmap& picture) {
    const auto pixelAt = [&](int x, int y) { return picture.row(y)[x]; };
    return colorsIn(picture, [&](int x, int y) { return isFlat(pixelAt, x, y); });
}

/// Those that a set lacks.
std::set<Color> missing(const std::set<Color>& wanted, const std::set<Color>& from) {
    std::set<Color> lacking;
    std::ranges::set_difference(wanted, from, std::inserter(lacking, lacking.end()));
    return lacking;
}

/// A card with every mark and suits in every text; each fifth text is highlighted.
class PageColors : public PrintTest, public testing::WithParamInterface<ColorCase> {
  protected:
    PageColors() {
        toolkit::overrideScreen({.width = 48000, .height = 48000});
        writeLayout(toolkit::readFile(programFolder / "Definitions.Ini.15"));
        toolkit::Printer printer = pdfWithPage(8.1F);
        printer.ColorMode = GetParam().printersColors;
        toolkit::overridePrinters({printer});
    }
    /// Prints the card, and keeps the bitmap of it in the midst of the job.
    void printAndKeep() {
        start();
        openFilledCard("4^h: ^s");
        for (int i = 1; i <= form.Highlight.UBound(); i += 5) form.Highlight[i].Visible = true;
        form.MMono.Checked = GetParam().forcedBlack;
        form.MColor.Checked = GetParam().forcedColor;
        whileAsking = [this] {
            toolkit::PictureBox card = form.P1;
            toolkit::flatten(card);
            bitmap = card.Picture;
        };
        answerFile(page);
        MPrint_Click(form);
        whileAsking = {};
    }
    [[nodiscard]] std::filesystem::path pictured() {
        const auto file = home / "pictured.pdf";
        answerFile(file);
        toolkit::PrintJob job;
        EXPECT_TRUE(job.start(toolkit::printerNamed(toolkit::printToPdfName),
                              {.title = "Page", .filePreset = {}}));
        job.stretch(bitmap, {.left = 0, .top = 0, .width = 4860, .height = 5047});
        job.finish();
        return file;
    }
    const std::filesystem::path page = home / "page.pdf";
    std::shared_ptr<const Bitmap> bitmap;
};

TEST_P(PageColors, TheInksAreTheColoursOfTheBitmap) {
    printAndKeep();
    ASSERT_NE(bitmap, nullptr);
    const std::set<Color> inks = inksOf(page);
    // Where labels and artwork lie on paper, the paper needs no ink.
    std::set<Color> withPaper = inks;
    withPaper.insert(toolkit::white);
    EXPECT_EQ(missing(inks, colorsIn(*bitmap)), std::set<Color>{});
    EXPECT_EQ(missing(flatColorsIn(*bitmap), withPaper), std::set<Color>{});
    const Color highlight = form.Highlight[1].BackColor;
    EXPECT_TRUE(inks.contains(highlight));
    const auto gray = std::ranges::count_if(inks, isGray);
    if (GetParam().inks == Inks::GreyAndBlack) {
        // Highlights keep their colour, as they do on the bitmap. Red and blue make two greys.
        EXPECT_EQ(gray, std::ssize(inks) - 1);
        EXPECT_GE(gray, 4);
    } else {
        EXPECT_TRUE(inks.contains(form.ColorRed));
        EXPECT_TRUE(inks.contains(form.ColorBlue));
        EXPECT_EQ(gray, 2);
    }
}

TEST_P(PageColors, EachPlaceHasTheColourOfTheBitmap) {
    printAndKeep();
    ASSERT_NE(bitmap, nullptr);
    const Rendering drawn = drawnBy(popplerInColor, page);
    const Rendering told = drawnBy(popplerInColor, pictured());
    ASSERT_EQ(drawn.width, told.width);
    ASSERT_EQ(drawn.height, told.height);
    struct Places {
        int same = 0;
        int other = 0;
    };
    std::map<Color, Places> places;
    const auto toldAt = [&](int x, int y) { return told.color(x, y); };
    const auto drawnAt = [&](int x, int y) { return drawn.color(x, y); };
    // Every other pixel, as nothing flat is so small.
    for (int y = 1; y < told.height - 1; y += 2)
        for (int x = 1; x < told.width - 1; x += 2) {
            const Color color = toldAt(x, y);
            if (color == toolkit::white || !isFlat(toldAt, x, y) || !isFlat(drawnAt, x, y))
                continue;
            Places& found = places[color];
            ++(drawnAt(x, y) == color ? found.same : found.other);
        }
    // Black, the highlights, and at least one of the others.
    EXPECT_GE(places.size(), 3U);
    for (const auto& [color, found] : places) {
        EXPECT_GT(found.same, 0) << std::hex << color;
        EXPECT_EQ(found.other, 0) << std::hex << color;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Jobs, PageColors,
    testing::Values(
        ColorCase{"AColourPrinter", false, false, toolkit::colored, Inks::AsTheyAre},
        ColorCase{"ForcedBlack", true, false, toolkit::colored, Inks::GreyAndBlack},
        ColorCase{"AMonochromePrinter", false, false, toolkit::monochrome, Inks::GreyAndBlack},
        ColorCase{"ForcedColour", false, true, toolkit::monochrome, Inks::AsTheyAre},
        ColorCase{"ForcedColourBeforeForcedBlack", true, true, toolkit::colored, Inks::AsTheyAre}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace zev::test
