// The printed card at each step of the zoom: paper stays paper, and letters to be circled stay
// free.
#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>
#include <vector>

#include "support/form_test.h"
#include "toolkit/picture/embedded_file.h"
#include "toolkit/picture/indexed_picture.h"
#include "view/halve_picture.h"
#include "view/rebuild.h"
#include "view/scale_picture.h"

namespace zev::test {
namespace {

constexpr float twips = 15;
constexpr int footRows = 30;
constexpr auto ladder = std::to_array<float>(
    {0.2F, 0.25F, 1.0F / 3, 0.425F, 0.5F, 0.6F, 2.0F / 3, 0.75F, 0.8F, 0.9F, 1.0F});

toolkit::Bitmap embedded(const char* name) {
    const auto picture = toolkit::decodePicture(toolkit::embeddedFile(name));
    return scaled(picture, {.factor = 1, .width = picture.width, .height = picture.height});
}
const toolkit::Bitmap& full() {
    static const toolkit::Bitmap picture = embedded("card/full.bin");
    return picture;
}
toolkit::Bitmap cardAt(float scale) {
    const auto sized = [scale](int length) {
        return static_cast<int>(std::lround(static_cast<float>(length) * scale));
    };
    return CardPicture().scaled(
        {.factor = scale, .width = sized(full().width()), .height = sized(full().height())});
}
bool isInk(const toolkit::Bitmap& picture, int x, int y) {
    return picture.pixel(x, y).value_or(toolkit::white) != toolkit::white;
}

/// Whether the full card has ink where this pixel of the smaller one comes from.
bool hasSource(float scale, int x, int y) {
    const auto first = [scale](int at) {
        return static_cast<int>(std::floor(static_cast<float>(at) / scale)) - 2;
    };
    for (int down = first(y); down <= first(y + 1) + 4; ++down)
        for (int right = first(x); right <= first(x + 1) + 4; ++right)
            if (isInk(full(), right, down)) return true;
    return false;
}

TEST(CardScales, ReadyMadeHalfIsWhatTheScalerMakesOfTheFullOne) {
    const toolkit::Bitmap made = halved(full());
    const toolkit::Bitmap ready = embedded("card/half.bin");
    ASSERT_EQ(ready.width(), made.width());
    ASSERT_EQ(ready.height(), made.height());
    for (int y = 0; y < made.height(); ++y)
        ASSERT_TRUE(std::equal(made.row(y), made.row(y) + made.width(), ready.row(y))) << y;
}

TEST(CardScales, PaperIsWhiteToTheBitAtEachScale) {
    for (const float scale : ladder) {
        const toolkit::Bitmap card = cardAt(scale);
        int stray = 0;
        for (int y = 0; y < card.height(); ++y)
            for (int x = 0; x < card.width(); ++x)
                if (isInk(card, x, y) && !hasSource(scale, x, y)) ++stray;
        EXPECT_EQ(stray, 0) << scale;
    }
}

TEST(CardScales, EdgesArePaperAtEachScale) {
    for (const float scale : ladder) {
        const toolkit::Bitmap card = cardAt(scale);
        ASSERT_GT(card.width(), 0);
        int touched = 0;
        for (int x = 0; x < card.width(); ++x)
            touched += isInk(card, x, 0) || isInk(card, x, card.height() - 1) ? 1 : 0;
        for (int y = 0; y < card.height(); ++y)
            touched += isInk(card, 0, y) || isInk(card, card.width() - 1, y) ? 1 : 0;
        EXPECT_EQ(touched, 0) << scale;
    }
}

TEST(CardScales, FootIsFreeAtEachScale) {
    for (const float scale : ladder) {
        const toolkit::Bitmap card = cardAt(scale);
        const auto rows = static_cast<int>(std::ceil(footRows * scale));
        for (int y = card.height() - rows; y < card.height(); ++y)
            for (int x = 0; x < card.width(); ++x) ASSERT_FALSE(isInk(card, x, y)) << scale;
    }
}

class CircledLetters : public FormTest {
  protected:
    /// The connected ink around a place, with diagonal neighbours.
    static std::set<std::pair<int, int>> blobAt(const toolkit::Bitmap& card, int x, int y) {
        constexpr std::size_t farTooMuch = 3000;
        std::set<std::pair<int, int>> blob{{x, y}};
        std::vector<std::pair<int, int>> open{{x, y}};
        while (!open.empty() && blob.size() < farTooMuch) {
            const auto [atX, atY] = open.back();
            open.pop_back();
            for (int near = 0; near < 9; ++near) {
                const std::pair place{atX + near % 3 - 1, atY + near / 3 - 1};
                if (isInk(card, place.first, place.second) && blob.insert(place).second)
                    open.push_back(place);
            }
        }
        return blob;
    }

    /// Finds the letter on the ring's middle row: the first ink from four design pixels after the
    /// left edge on.
    static std::set<std::pair<int, int>> letterIn(const toolkit::Bitmap& card,
                                                  const toolkit::Label& ring, float scale) {
        const auto left = static_cast<int>(ring.Left / twips);
        const auto right = static_cast<int>((ring.Left + ring.Width) / twips);
        const auto y = static_cast<int>((ring.Top + ring.Height / 2) / twips);
        for (int x = left + static_cast<int>(std::ceil(8 * scale)); x < right; ++x)
            if (isInk(card, x, y)) return blobAt(card, x, y);
        return {};
    }
};

TEST_F(CircledLetters, StandFreeFromAThirdUp) {
    start();
    for (int level = 3; level <= form.ZoomLevels; ++level) {
        form.ZoomLevel = static_cast<std::int16_t>(level);
        RebuildScreenImage(form);
        for (int mark = 1; mark <= form.AMark.UBound(); ++mark) {
            const toolkit::Label& ring = form.AMark[mark];
            if (ring.Caption != "\xA1") continue;
            const auto letter = letterIn(*form.P1.Picture, ring, form.LastImageScale);
            ASSERT_FALSE(letter.empty()) << mark << " at " << form.LastImageScale;
            for (const auto& [x, y] : letter) {
                ASSERT_GT(static_cast<float>(x), ring.Left / twips) << mark;
                ASSERT_LT(static_cast<float>(x), (ring.Left + ring.Width) / twips) << mark;
                ASSERT_GT(static_cast<float>(y), ring.Top / twips) << mark;
                ASSERT_LT(static_cast<float>(y), (ring.Top + ring.Height) / twips) << mark;
            }
        }
    }
}

} // namespace
} // namespace zev::test
