// The card filled in, measured from what the program paints: pen and print fit each other.
#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "card/load.h"
#include "card/write_card.h"
#include "events/edit_field.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

constexpr float twipsPerPixel = 15;
constexpr int whole = 765;
/// Ink as dark as this is no faint edge.
constexpr int clear = whole / 2;

/// How much darker than paper a pixel is, 0 to 765.
int darkness(const toolkit::Bitmap& bitmap, int x, int y) {
    const auto color = bitmap.pixel(x, y);
    if (!color) return 0;
    return whole -
           static_cast<int>((*color & 0xFFU) + (*color >> 8U & 0xFFU) + (*color >> 16U & 0xFFU));
}

/// A rectangle of pixels; right and bottom are the first ones beyond it.
struct Area {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] bool empty() const { return right <= left; }
    void take(int x, int y) {
        *this = empty() ? Area{x, y, x + 1, y + 1}
                        : Area{std::min(left, x), std::min(top, y), std::max(right, x + 1),
                               std::max(bottom, y + 1)};
    }
    [[nodiscard]] Area enlarged(int ratio) const {
        return {left * ratio, top * ratio, right * ratio, bottom * ratio};
    }
    [[nodiscard]] double middleX() const { return (left + right) / 2.0; }
    [[nodiscard]] double middleY() const { return (top + bottom) / 2.0; }
};

/// The ink in a part of a picture, faint edges left out.
Area inkIn(const toolkit::Bitmap& bitmap, Area part, int faintest = whole / 4) {
    Area ink;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            if (darkness(bitmap, x, y) > faintest) ink.take(x, y);
    return ink;
}

class FilledCard : public FormTest {
  protected:
    /// Opens a card with every mark set and the same text in every area.
    void startWith(const std::string& text) {
        start();
        openFilledCard(text);
        full = form.PBase.scaled(
            {.factor = 1, .width = form.PBase.width(), .height = form.PBase.height()});
    }

    void zoomTo(int level) {
        form.ZoomLevel = static_cast<std::int16_t>(level);
        RebuildScreenImage(form);
        scale = form.LastImageScale;
        print = *form.P1.Picture;
        form.P1.Picture =
            std::make_shared<const toolkit::Bitmap>(print.width(), print.height(), toolkit::white);
        pen = toolkit::test::grabCard();
    }

    [[nodiscard]] static Area areaOf(const toolkit::Label& label) {
        const auto pixel = [](float length) {
            return static_cast<int>(std::lround(length / twipsPerPixel));
        };
        return {pixel(label.Left), pixel(label.Top), pixel(label.Left + label.Width),
                pixel(label.Top + label.Height)};
    }
    /// A length on the shown card in pixels of the full one.
    [[nodiscard]] double inFull(double pixels) const { return pixels / static_cast<double>(scale); }

    /// The font of the area before it was made smaller to fit the text.
    [[nodiscard]] toolkit::FontSpec normalFont(const toolkit::Label& label) const {
        toolkit::FontSpec font = label.Font;
        font.Name = form.TextFontName;
        const bool names = &label == &form.AText[form.NamesField];
        font.Size = form.TextFontSize[names ? 3 : 1];
        return font;
    }

    /// The first row of the printed rule under a text area, on the full card.
    [[nodiscard]] std::optional<int> ruleOf(const toolkit::Label& label) const {
        const float base = label.Top + toolkit::textAscent(normalFont(label));
        const auto at = static_cast<int>(inFull(static_cast<double>(base / twipsPerPixel)));
        const auto left =
            static_cast<int>(inFull(static_cast<double>(label.Left / twipsPerPixel))) + 4;
        const int right =
            left + static_cast<int>(inFull(static_cast<double>(label.Width / twipsPerPixel))) - 8;
        for (int y = at - 4; y < at + 24; ++y) {
            int x = left;
            while (x < right && darkness(full, x, y) > 0) ++x;
            if (x >= right) return y;
        }
        return std::nullopt;
    }

    [[nodiscard]] bool isCircle(int mark) const { return form.AMark[mark].Caption == "\xA1"; }

    void showMarks(const std::function<bool(int)>& chosen) {
        for (int mark = 1; mark <= form.AMark.UBound(); ++mark)
            form.AMark[mark].Visible = chosen(mark);
        pen = toolkit::test::grabCard();
    }
    /// Neighbouring circles touch each other's cells, so they are looked at in two turns.
    void showEverySecondMark(int turn) {
        showMarks([turn](int mark) { return mark % 2 != turn; });
    }

    /// The printed box around a place of the full card.
    [[nodiscard]] std::optional<Area> boxAround(double x, double y) const {
        const auto edge = [&](int right, int down) {
            int steps = 0;
            const auto atX = static_cast<int>(x);
            const auto atY = static_cast<int>(y);
            while (steps < boxSide && darkness(full, atX + steps * right, atY + steps * down) == 0)
                ++steps;
            return (right != 0 ? atX : atY) + steps * (right + down);
        };
        const Area box{edge(-1, 0), edge(0, -1), edge(1, 0) + 1, edge(0, 1) + 1};
        if (box.right - box.left != boxSide - 2 || box.bottom - box.top != boxSide - 2)
            return std::nullopt;
        return box;
    }

    /// The printed letter inside a circle, on the full card.
    [[nodiscard]] Area letterIn(Area circle) const {
        const auto x = static_cast<int>(inFull(circle.middleX()));
        const auto y = static_cast<int>(inFull(circle.middleY()));
        return inkIn(full, {x - letterReach, y - letterReach, x + letterReach, y + letterReach});
    }

    void expectTextsOnBaseLineOfWords(int ratio);

    void expectAirRound(int mark) {
        const Area circle = inkIn(pen, areaOf(form.AMark[mark]));
        const Area letter = letterIn(circle);
        ASSERT_FALSE(letter.empty()) << mark << " at " << scale;
        const auto shown = [this](int length) {
            return static_cast<double>(length) * static_cast<double>(scale);
        };
        EXPECT_LT(circle.left, shown(letter.left) - shown(air)) << mark << " at " << scale;
        EXPECT_LT(circle.top, shown(letter.top) - shown(air)) << mark << " at " << scale;
        EXPECT_GT(circle.right, shown(letter.right) + shown(air)) << mark << " at " << scale;
        EXPECT_GT(circle.bottom, shown(letter.bottom) + shown(air)) << mark << " at " << scale;
        const Area free{static_cast<int>(std::ceil(shown(letter.left))),
                        static_cast<int>(std::ceil(shown(letter.top))),
                        static_cast<int>(shown(letter.right)),
                        static_cast<int>(shown(letter.bottom))};
        EXPECT_TRUE(inkIn(pen, free).empty()) << mark << " at " << scale;
    }

    /// How many printed pixels are covered by writing.
    [[nodiscard]] int touchedPrint() const {
        int touched = 0;
        for (int y = 0; y < pen.height(); ++y)
            for (int x = 0; x < pen.width(); ++x)
                if (darkness(pen, x, y) > whole / 4 && darkness(print, x, y) > whole / 4) ++touched;
        return touched;
    }
    void expectNoPrintTouched() {
        for (const int level : {3, 4, 5, 8, 11}) {
            zoomTo(level);
            showMarks([](int) { return false; });
            EXPECT_EQ(touchedPrint(), 0) << scale;
        }
    }
    void wipe(Area area) {
        pen.fill(area.left, area.top, area.right - area.left, area.bottom - area.top,
                 toolkit::white);
    }
    /// The card without the strip at its foot, where time stamp and credit line stand.
    [[nodiscard]] Area cardArea() const {
        const int foot = static_cast<int>(std::ceil(footRows * static_cast<double>(scale)));
        return {0, 0, pen.width(), pen.height() - foot};
    }

    // In pixels of the full card.
    static constexpr int boxSide = 30;
    static constexpr int letterReach = 15;
    static constexpr int air = 2;
    static constexpr int ruleBelowWords = 12;
    static constexpr double footRows = 46;

    float scale = 0;
    toolkit::Bitmap full;  ///< the printed card at full size
    toolkit::Bitmap print; ///< the printed card as shown
    toolkit::Bitmap pen;   ///< what the player filled in, on bare paper
};

/// Where the stems of a text end, to a fraction of a pixel.
double footOf(const toolkit::Bitmap& pen, Area part) {
    const auto inRow = [&](int y) {
        double sum = 0;
        for (int x = part.left; x < part.right; ++x) sum += darkness(pen, x, y);
        return sum;
    };
    const Area ink = inkIn(pen, part, whole / 10);
    const int middle = static_cast<int>(ink.middleY());
    int y = middle;
    while (inRow(y) > 0.99 * inRow(middle)) ++y;
    return y + inRow(y) / inRow(middle);
}

/// The second half of a centred text: the caret of an open field stands before the first letter.
Area secondHalfOf(const toolkit::Label& text) {
    const float middle = text.Left + text.Width / 2;
    const float half = toolkit::textWidth(text.Font, text.Caption) / 2;
    return {static_cast<int>(middle / twipsPerPixel), static_cast<int>(text.Top / twipsPerPixel),
            static_cast<int>((middle + half) / twipsPerPixel) + 1,
            static_cast<int>((text.Top + text.Height) / twipsPerPixel)};
}

/// At each zoom every text's stems end where the printed words of its row do, to the row of pixels.
void FilledCard::expectTextsOnBaseLineOfWords(int ratio) {
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        if (ratio > 1) pen = toolkit::test::grabCardAt(ratio);
        // Half a row, and what places on whole pixels miss the words' line by.
        const double most = 0.5 + 0.7 * ratio;
        for (int field = 1; field <= form.AText.UBound(); ++field) {
            if (field == form.NamesField) continue;
            const toolkit::Label& label = form.AText[field];
            const auto rule = ruleOf(label);
            ASSERT_TRUE(rule) << field << " at " << scale;
            const double words = (*rule - ruleBelowWords) * static_cast<double>(scale) * ratio;
            const double foot = footOf(pen, areaOf(label).enlarged(ratio));
            EXPECT_NEAR(foot, std::round(foot), 0.02) << field << " at " << scale;
            EXPECT_NEAR(foot, words, most) << field << " at " << scale;
        }
    }
}

TEST_F(FilledCard, TextsStandOnTheBaseLineOfTheWordsAtEveryZoom) {
    startWith("IIII");
    expectTextsOnBaseLineOfWords(1);
}

TEST_F(FilledCard, TextsStandOnTheBaseLineOfTheWordsOnSharpScreens) {
    startWith("IIII");
    expectTextsOnBaseLineOfWords(2);
}

/// The line that a label's caption stands on, in pixels from the card's top.
double lineOf(const toolkit::Label& label) {
    return static_cast<double>((label.Top + toolkit::textAscent(label.Font) + label.Lowered) /
                               twipsPerPixel);
}

TEST_F(FilledCard, SuitsStandOnTheLineOfTheirText) {
    startWith("I^sI");
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        for (int symbol = 1; symbol <= form.SText.UBound(); ++symbol) {
            const toolkit::Label& suit = form.SText[symbol];
            const toolkit::Label& text = form.AText[std::stoi(suit.Tag)];
            EXPECT_NEAR(lineOf(suit), lineOf(text), 0.01) << symbol << " at " << scale;
            Area around = areaOf(suit);
            around.bottom = areaOf(text).bottom; // the next line's suits begin below
            EXPECT_NEAR(inkIn(pen, around, clear).bottom, std::nearbyint(lineOf(text)), 1)
                << symbol << " at " << scale;
        }
    }
}

TEST_F(FilledCard, OpenFieldKeepsTheLineOfItsText) {
    startWith("IIII");
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        const auto closed = pen;
        for (int field = 1; field <= form.AText.UBound(); field += 7) {
            AText_Click(form, field);
            pen = toolkit::test::grabCard();
            const Area half = secondHalfOf(form.AText[field]);
            EXPECT_NEAR(footOf(pen, half), footOf(closed, half), 0.55) << field << " at " << scale;
            toolkit::test::typeKey(toolkit::key::escape);
        }
    }
}

TEST_F(FilledCard, ChecksBeginInTheirBoxesAndRiseOutOfThemAtEveryZoom) {
    startWith("");
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        const double row = inFull(1);
        for (int mark = 1; mark <= form.AMark.UBound(); ++mark) {
            if (isCircle(mark)) continue;
            const Area ink = inkIn(pen, areaOf(form.AMark[mark]));
            ASSERT_FALSE(ink.empty()) << mark << " at " << scale;
            const auto box = boxAround(inFull(ink.middleX()), inFull(ink.middleY()));
            ASSERT_TRUE(box) << mark << " at " << scale;
            EXPECT_NEAR(inFull(ink.left), box->left + 2, 2 + row) << mark << " at " << scale;
            EXPECT_NEAR(inFull(ink.bottom), box->bottom - 4, 2 + row) << mark << " at " << scale;
            EXPECT_GT(inFull(ink.right) + row, box->right + 1) << mark << " at " << scale;
            EXPECT_LT(inFull(ink.top) - row, box->top - 4) << mark << " at " << scale;
            // A mark may go over the edge of its box, but not far.
            EXPECT_LT(inFull(ink.right - ink.left), 1.5 * boxSide + row) << mark << " at " << scale;
        }
    }
}

TEST_F(FilledCard, CirclesRunRoundTheirCardWithAirAtEveryZoom) {
    startWith("");
    for (int level = 1; level <= form.ZoomLevels; ++level) {
        zoomTo(level);
        for (const int turn : {0, 1}) {
            showEverySecondMark(turn);
            for (int mark = turn + 1; mark <= form.AMark.UBound(); mark += 2)
                if (isCircle(mark)) expectAirRound(mark);
        }
    }
}

TEST_F(FilledCard, TwelveCharactersTouchNoPrint) {
    startWith("agQy 5-9 HCP");
    expectNoPrintTouched();
}

TEST_F(FilledCard, TwelveCharactersWithSuitsTouchNoPrint) {
    startWith("g^h 5-9 ^sPQ");
    expectNoPrintTouched();
}

TEST_F(FilledCard, FortyCharactersShrinkIntoTheirArea) {
    startWith("transfers, then minors: a slam try, gQy!");
    for (const int level : {3, 5, 11}) {
        zoomTo(level);
        showMarks([](int) { return false; });
        for (int field = 1; field <= form.AText.UBound(); ++field) {
            const toolkit::Label& label = form.AText[field];
            const bool fits = toolkit::textWidth(label.Font, label.Caption + " ") <= label.Width;
            EXPECT_TRUE(fits || label.Font.Size <= form.TextFontSize[1] / 2) << field;
            EXPECT_FALSE(inkIn(pen, areaOf(label), whole / 20).empty()) << field;
            wipe(areaOf(label));
        }
        // Nothing was written outside the areas.
        EXPECT_TRUE(inkIn(pen, cardArea()).empty()) << scale;
    }
}

} // namespace
} // namespace zev::test
