#include "card_picture/picture_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <utility>

namespace card_picture {
namespace {

/// Ink that hangs together, corners included.
struct Blob {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
    std::set<std::pair<int, int>> pixels{};
};

Blob blobAt(const Picture& picture, int x, int y) {
    Blob blob{x, x, y, y, {{x, y}}};
    std::vector<std::pair<int, int>> open{{x, y}};
    while (!open.empty() && blob.pixels.size() < 5000) {
        const auto [atX, atY] = open.back();
        open.pop_back();
        blob.left = std::min(blob.left, atX);
        blob.right = std::max(blob.right, atX);
        blob.top = std::min(blob.top, atY);
        blob.bottom = std::max(blob.bottom, atY);
        for (int down = -1; down <= 1; ++down)
            for (int right = -1; right <= 1; ++right)
                if (picture.ink(atX + right, atY + down) &&
                    blob.pixels.insert({atX + right, atY + down}).second)
                    open.emplace_back(atX + right, atY + down);
    }
    return blob;
}

struct Ring {
    double x = 0;
    double y = 0;
    double radius = 0;
};

Ring ringOf(const Field& mark, int twips, double scale) {
    const Glyph glyph = markGlyph(mark, twips);
    return {scale * (mark.left + glyph.centreX), scale * (mark.top + glyph.centreY),
            scale * glyph.radius};
}

/// The first ink on the ring's middle row from four design pixels after its left edge on.
std::optional<Blob> letterIn(const Picture& picture, const Ring& ring, double scale) {
    const int y = static_cast<int>(std::floor(ring.y));
    const int end = static_cast<int>(ring.x + ring.radius);
    for (int x = static_cast<int>(ring.x - ring.radius + 4 * scale); x < end; ++x)
        if (picture.ink(x, y)) return blobAt(picture, x, y);
    return std::nullopt;
}

/// The picture at a third of full scale: each pixel has the ink of the nine that it covers.
Picture third() {
    const Picture& full = fullPicture();
    Picture small{full.width / 3, full.height / 3, {}};
    for (int y = 0; y < small.height; ++y)
        for (int x = 0; x < small.width; ++x) {
            bool ink = false;
            for (int part = 0; part < 9; ++part)
                ink = ink || full.ink(3 * x + part % 3, 3 * y + part / 3);
            small.pixels.push_back(ink ? Colour{0, 0, 0} : paper);
        }
    return small;
}

TEST(Circles, EachRingHasItsLetterInTheMiddle) {
    for (const int twips : {12, 13, 15})
        for (const Field& mark : layout(twips).marks) {
            if (!mark.isCircle()) continue;
            const Ring ring = ringOf(mark, twips, 2);
            const auto letter = letterIn(fullPicture(), ring, 2);
            ASSERT_TRUE(letter) << mark.number;
            EXPECT_NEAR((letter->left + letter->right + 1) / 2.0, ring.x, 2)
                << mark.number << " for " << twips;
            EXPECT_NEAR((letter->top + letter->bottom + 1) / 2.0, ring.y, 2.7)
                << mark.number << " for " << twips;
        }
}

TEST(Circles, LettersHaveAirToTheirRing) {
    for (const int twips : {12, 13, 15})
        for (const Field& mark : layout(twips).marks) {
            if (!mark.isCircle()) continue;
            const Ring ring = ringOf(mark, twips, 2);
            const auto letter = letterIn(fullPicture(), ring, 2);
            ASSERT_TRUE(letter) << mark.number;
            for (const auto& [x, y] : letter->pixels)
                ASSERT_LT(std::hypot(x + 0.5 - ring.x, y + 0.5 - ring.y), ring.radius - 4)
                    << mark.number;
        }
}

TEST(Circles, LettersStandFreeAtHalfScale) {
    for (const Field& mark : layout(15).marks) {
        if (!mark.isCircle()) continue;
        const auto letter = letterIn(halfPicture(), ringOf(mark, 15, 1), 1);
        ASSERT_TRUE(letter) << mark.number;
        for (int y = letter->top - 2; y <= letter->bottom + 2; ++y)
            for (int x = letter->left - 2; x <= letter->right + 2; ++x)
                if (halfPicture().ink(x, y)) {
                    ASSERT_TRUE(letter->pixels.contains({x, y})) << mark.number;
                }
    }
}

TEST(Circles, LettersStandFreeAtAThird) {
    const Picture small = third();
    const double scale = 2.0 / 3;
    for (const Field& mark : layout(15).marks) {
        if (!mark.isCircle()) continue;
        const Ring ring = ringOf(mark, 15, scale);
        const auto letter = letterIn(small, ring, scale);
        ASSERT_TRUE(letter) << mark.number;
        EXPECT_GT(letter->left, ring.x - ring.radius) << mark.number;
        EXPECT_LT(letter->right, ring.x + ring.radius) << mark.number;
        EXPECT_GT(letter->top, ring.y - ring.radius) << mark.number;
        EXPECT_LT(letter->bottom, ring.y + ring.radius) << mark.number;
    }
}

TEST(Circles, EachHoldingHasOneForEachCard) {
    const std::set<std::string> holdings{
        "s.xx",   "s.xxx",  "s.4x",   "s.5x",   "s.akx",  "s.kqx",  "s.qjx",  "s.jt9",  "s.kqt9",
        "s.t9x",  "s.kjtx", "s.kt9x", "s.qt9x", "n.xx",   "n.xxx",  "n.4x",   "n.5x",   "n.akjx",
        "n.ajt9", "n.kqjx", "n.qjtx", "n.jt9x", "n.aqjx", "n.at9x", "n.kqt9", "n.qt9x", "n.t98x"};
    std::size_t cards = 0;
    const auto numbers = fieldNumbers("mark");
    for (const std::string& holding : holdings) {
        const char first = holding[2];
        const std::size_t length = first == '4' || first == '5'
                                       ? static_cast<std::size_t>(first - '0')
                                       : holding.size() - 2;
        for (std::size_t card = 1; card <= length; ++card, ++cards) {
            const auto found = numbers.find(holding + "." + std::to_string(card));
            ASSERT_NE(found, numbers.end()) << holding << " " << card;
            EXPECT_TRUE(
                layout(15).marks.at(static_cast<std::size_t>(found->second - 1)).isCircle());
        }
    }
    const auto circles =
        std::ranges::count_if(layout(15).marks, [](const Field& mark) { return mark.isCircle(); });
    EXPECT_EQ(static_cast<std::size_t>(circles), cards);
}

} // namespace
} // namespace card_picture
