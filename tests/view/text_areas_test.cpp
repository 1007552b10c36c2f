// The text areas in each size of their letters: what is written lies between the printed lines.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <span>
#include <sstream>
#include <string>
#include <tuple>

#include "layout/layout_text.h"
#include "support/form_test.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/files.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

/// The resolution of the screen, in twips per pixel, and the size of the letters.
class TextAreas : public FormTest,
                  public testing::WithParamInterface<std::tuple<int, const char*>> {
  protected:
    TextAreas() {
        toolkit::overrideScreen({.twipsPerPixel = twips, .width = 48000, .height = 48000});
        writeLayout(
            toolkit::readFile(programFolder / ("Definitions.Ini." + std::to_string(twips))));
    }

    /// A card with this text in each area.
    void startWith(const std::string& text) {
        start();
        openFilledCard(text);
        EXPECT_TRUE(toolkit::test::chooseMenu("Options>Font size>" + size));
        EXPECT_EQ(form.TwipsPerPixel, twips);
    }

    /// Shows the texts on bare paper.
    void zoomTo(int level) {
        form.ZoomLevel = static_cast<std::int16_t>(level);
        RebuildScreenImage(form);
        for (int mark = 1; mark <= form.AMark.UBound(); ++mark) form.AMark[mark].Visible = false;
        print = *form.P1.Picture;
        form.P1.Picture = std::make_shared<toolkit::Bitmap>(print.width(), print.height());
    }

    [[nodiscard]] static int brightness(const toolkit::Bitmap& bitmap, int x, int y) {
        const toolkit::Color color = bitmap.pixel(x, y).value_or(toolkit::white);
        return toolkit::redOf(color) + toolkit::greenOf(color) + toolkit::blueOf(color);
    }

    /// How many printed pixels are covered by writing; the faint edges of both may meet. At 120
    /// dots an inch the letters are largest against the card.
    [[nodiscard]] int touchedPrint() const {
        const int ink = twips == 12 ? 255 : 382;
        const toolkit::Bitmap pen = toolkit::test::grabCard();
        const std::uint32_t paper = toolkit::Bitmap(1, 1).row(0)[0];
        int touched = 0;
        for (int y = 0; y < pen.height(); ++y) {
            const std::span row(pen.row(y), static_cast<std::size_t>(pen.width()));
            int x = 0;
            for (const std::uint32_t value : row) {
                const bool isWritten = value != paper && brightness(pen, x, y) < ink;
                touched += isWritten && brightness(print, x, y) < ink ? 1 : 0;
                ++x;
            }
        }
        return touched;
    }

    [[nodiscard]] int pixels(float length) const {
        return static_cast<int>(std::lround(length / static_cast<float>(twips)));
    }

    /// How many rows look different, those of the card's foot left out.
    [[nodiscard]] int differences(const toolkit::Bitmap& left, const toolkit::Bitmap& right) const {
        int count = 0;
        for (int y = 0; y < pixels(form.Timestamp.Top); ++y)
            count += std::equal(left.row(y), left.row(y) + left.width(), right.row(y)) ? 0 : 1;
        return count;
    }

    /// The card without what lies in the areas, or one row below them.
    [[nodiscard]] toolkit::Bitmap besideAreas(toolkit::Bitmap card) const {
        for (const toolkit::Label& text : form.AText) {
            const int left = pixels(text.Left);
            const int top = pixels(text.Top);
            card.fill(left, top, pixels(text.Left + text.Width) - left,
                      pixels(text.Top + text.Height) + 1 - top, toolkit::white);
        }
        return card;
    }

    /// Left, top and width of each text area as a layout that is written now has them.
    [[nodiscard]] std::vector<std::string> writtenPlaces() const {
        const std::string layout = layoutText(form);
        std::istringstream lines(layout.substr(layout.find("' For each one, 8 values")));
        std::vector<std::string> places;
        const auto count = static_cast<std::size_t>(form.AText.UBound());
        for (std::string line; places.size() < count && std::getline(lines, line);) {
            if (line.empty() || std::isdigit(toolkit::code(line.front())) == 0) continue;
            std::size_t end = 0;
            for (int comma = 0; comma < 4; ++comma) end = line.find(',', end) + 1;
            places.push_back(line.substr(0, end));
        }
        return places;
    }

    const int twips = std::get<0>(GetParam());
    const std::string size = std::get<1>(GetParam());
    toolkit::Bitmap print; ///< the printed card as shown
};

TEST_P(TextAreas, WritingTouchesNoPrintAtAnyZoom) {
    startWith("agQy 5-9 HCP");
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        EXPECT_EQ(touchedPrint(), 0) << form.LastImageScale;
    }
}

TEST_P(TextAreas, WritingLiesWithinItsAreaAtEveryZoomAndIsNotCutThere) {
    startWith("gQ");
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        const toolkit::Bitmap shown = toolkit::test::grabCard();
        for (toolkit::Label& text : form.AText) text.Clips = false;
        const toolkit::Bitmap uncut = toolkit::test::grabCard();
        EXPECT_EQ(differences(shown, uncut), 0) << form.LastImageScale;
        const toolkit::Bitmap paper(uncut.width(), uncut.height());
        EXPECT_EQ(differences(besideAreas(uncut), paper), 0) << form.LastImageScale;
        EXPECT_GT(differences(uncut, paper), 0) << form.LastImageScale;
    }
}

TEST_P(TextAreas, ALayoutIsWrittenAsItWasRead) {
    start();
    const std::vector<std::string> usual = writtenPlaces();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Font size>" + size));
    for (const int level : {2, 5, 8, 11}) {
        zoomTo(level);
        EXPECT_EQ(writtenPlaces(), usual) << form.LastImageScale;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, TextAreas,
                         testing::Combine(testing::Values(15, 13, 12),
                                          testing::Values("Smaller", "Normal", "Larger", "Big")));

} // namespace
} // namespace zev::test
