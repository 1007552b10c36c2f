// Auto-adjust over the installed card: fields that lie where they belong stay there.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "design/auto_adjust.h"
#include "design/design_field.h"
#include "support/form_test.h"
#include "toolkit/base/twips.h"
#include "toolkit/window/screen.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

/// Where a label lies, twips, and the pixels that its origin and its base line are painted on.
struct LabelPlace {
    float left = 0;
    float top = 0;
    int column = 0;
    int row = 0;
};

/// Pixels of the shown card; right and bottom are the last ones.
struct Ink {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

class AdjustedCard : public FormTest, public testing::WithParamInterface<int> {
  protected:
    AdjustedCard() : twips(GetParam()) {
        toolkit::overrideScreen({.twipsPerPixel = twips, .width = 24000, .height = 24000});
        const auto installed = programFolder / ("Definitions.Ini." + std::to_string(twips));
        std::filesystem::copy_file(installed, dataFile("Definitions.Ini"),
                                   std::filesystem::copy_options::overwrite_existing);
    }

    void showAt(int level) {
        start();
        form.ZoomLevel = static_cast<std::int16_t>(level);
        RebuildScreenImage(form);
        ASSERT_EQ(form.TwipsPerPixel, twips);
        ASSERT_EQ(form.AMark.UBound(), 271);
        ASSERT_EQ(form.AText.UBound(), 97);
    }

    [[nodiscard]] LabelPlace placeOf(const toolkit::Label& label) const {
        const auto pixel = [&](float place) {
            return static_cast<int>(std::lround(place / static_cast<float>(twips)));
        };
        return {label.Left, label.Top, pixel(label.Left),
                pixel(label.Top + toolkit::textAscent(label.Font))};
    }
    [[nodiscard]] std::vector<LabelPlace> places() const {
        std::vector<LabelPlace> all;
        for (int i = 1; i <= form.AMark.UBound(); ++i) all.push_back(placeOf(form.AMark[i]));
        for (int i = 1; i <= form.AText.UBound(); ++i) all.push_back(placeOf(form.AText[i]));
        return all;
    }

    /// As painted, and in whole twips, of which a text may move some more.
    void expectNoMoveBeyond(int pixels, int moreTwips = 0) {
        const auto wholeTwips = [](float from, float to) {
            return std::lround(std::abs(to - from));
        };
        const long most = pixels * twips;
        const std::vector<LabelPlace> before = places();
        MAutoAdjust_Click(form);
        const std::vector<LabelPlace> after = places();
        const auto texts = static_cast<std::size_t>(form.AMark.UBound());
        for (std::size_t i = 0; i < before.size(); ++i) {
            EXPECT_LE(std::abs(after[i].column - before[i].column), pixels) << i;
            EXPECT_LE(std::abs(after[i].row - before[i].row), pixels) << i;
            EXPECT_LE(wholeTwips(before[i].left, after[i].left), most) << i;
            EXPECT_LE(wholeTwips(before[i].top, after[i].top), most + (i < texts ? 0 : moreTwips))
                << i;
        }
    }

    [[nodiscard]] bool isInk(int x, int y) const {
        return form.P1.Picture->pixel(x, y).value_or(toolkit::white) != toolkit::white;
    }
    [[nodiscard]] Ink ringOf(const toolkit::Label& mark) const {
        const std::size_t size = mark.Font.Size == form.MarkFontSize[2] ? 2 : 1;
        const auto& offsets = form.FontOffsets[ink_kind::circle][size];
        const auto& others = form.CircleAdjust[size];
        const auto pixel = [&](float place) {
            return static_cast<int>(std::floor(place / static_cast<float>(twips)));
        };
        return {pixel(mark.Left + offsets[inkLeft]), pixel(mark.Top + others[2]),
                pixel(mark.Left + others[1]), pixel(mark.Top + offsets[inkBottom])};
    }
    /// The print in the middle half of a ring.
    [[nodiscard]] Ink letterIn(const Ink& ring) const {
        const int airX = (ring.right - ring.left) / 4;
        const int airY = (ring.bottom - ring.top) / 4;
        Ink letter{ring.right, ring.bottom, ring.left, ring.top};
        for (int y = ring.top + airY; y <= ring.bottom - airY; ++y)
            for (int x = ring.left + airX; x <= ring.right - airX; ++x) {
                if (!isInk(x, y)) continue;
                letter = {std::min(letter.left, x), std::min(letter.top, y),
                          std::max(letter.right, x), std::max(letter.bottom, y)};
            }
        return letter;
    }

    void expectLettersKept() {
        std::vector<Ink> letters(static_cast<std::size_t>(form.AMark.UBound()) + 1);
        int circles = 0;
        for (int i = 1; i <= form.AMark.UBound(); ++i) {
            if (isCheck(form.AMark[i])) continue;
            ++circles;
            letters[static_cast<std::size_t>(i)] = letterIn(ringOf(form.AMark[i]));
            ASSERT_LE(letters[static_cast<std::size_t>(i)].left,
                      letters[static_cast<std::size_t>(i)].right);
        }
        EXPECT_EQ(circles, 99);
        MAutoAdjust_Click(form);
        for (int i = 1; i <= form.AMark.UBound(); ++i) {
            if (isCheck(form.AMark[i])) continue;
            const Ink ring = ringOf(form.AMark[i]);
            const Ink& letter = letters[static_cast<std::size_t>(i)];
            EXPECT_LT(ring.left, letter.left) << i;
            EXPECT_LT(ring.top, letter.top) << i;
            EXPECT_GT(ring.right, letter.right) << i;
            EXPECT_GT(ring.bottom, letter.bottom) << i;
        }
    }

    static constexpr int twoThirds = 3;
    static constexpr int designSize = 5;
    static constexpr int twice = 11;
    int twips = 0;
};

TEST_P(AdjustedCard, AtDesignSizeNoFieldMovesByMoreThanAPixel) {
    showAt(designSize);
    ASSERT_EQ(form.P1.Picture->width(), 1198);
    expectNoMoveBeyond(1);
}

TEST_P(AdjustedCard, AtTwiceThatSizeNoFieldMovesByMoreThanTwoPixels) {
    showAt(twice);
    ASSERT_EQ(form.P1.Picture->width(), 2396);
    expectNoMoveBeyond(2);
}

TEST_P(AdjustedCard, AtTwoThirdsOfThatSizeNoFieldMovesByMoreThanTwoPixels) {
    showAt(twoThirds);
    ASSERT_EQ(form.P1.Picture->width(), 799);
    // A rule may begin at any third of a row there. A layout's places are whole pixels: with its
    // texts one higher, that of 13 twips would keep to two pixels here and move them by three at
    // twice the design size.
    expectNoMoveBeyond(2, twips == 13 ? 4 : 0);
}

TEST_P(AdjustedCard, CirclesKeepTheirLettersAtDesignSize) {
    showAt(designSize);
    expectLettersKept();
}

TEST_P(AdjustedCard, CirclesKeepTheirLettersAtTwiceThatSize) {
    showAt(twice);
    expectLettersKept();
}

TEST_P(AdjustedCard, CirclesKeepTheirLettersAtTwoThirdsOfThatSize) {
    showAt(twoThirds);
    expectLettersKept();
}

INSTANTIATE_TEST_SUITE_P(Layouts, AdjustedCard, testing::Values(12, 13, 15));

} // namespace
} // namespace zev::test
