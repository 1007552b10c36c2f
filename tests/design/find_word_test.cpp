#include "design/find_word.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "toolkit/base/error.h"

namespace zev {
namespace {

constexpr int wordTwips = 15;

/// A blank card on which words are drawn. All figures are pixels.
class FindWord : public testing::Test {
  protected:
    struct Way {
        float right = 0;
        float down = 0;
        bool operator==(const Way&) const = default;
    };
    struct Ring {
        float left = 0;
        float right = 0;
        float top = 0;
        float bottom = 0;
    };

    void draw(int left, int top, int width, int height) {
        card.fill(left, top, width, height, toolkit::black);
    }
    /// Searches in one picture, so that what one has erased is gone for the next.
    Way find(const Ring& ring, float scale = 1) {
        if (!picture) picture.emplace(card, wordTwips, scale);
        const auto way = findWord(*picture,
                                  {.left = ring.left * wordTwips,
                                   .right = ring.right * wordTwips,
                                   .top = ring.top * wordTwips,
                                   .bottom = ring.bottom * wordTwips},
                                  marker);
        return {way.right / wordTwips, way.down / wordTwips};
    }
    /// The number of the failure, 0 without one.
    int failureOf(const Ring& ring) {
        try {
            find(ring);
        } catch (const toolkit::RunTimeError& failure) {
            return failure.number();
        }
        return 0;
    }
    [[nodiscard]] int inkLeft() const {
        int count = 0;
        for (int row = 0; row < card.height(); ++row) {
            for (int column = 0; column < card.width(); ++column)
                count += picture->isInk(SearchedPicture::Pixel{column, row}) ? 1 : 0;
        }
        return count;
    }

    /// A ring of 20 by 20 pixels whose middle is (50, 50).
    static constexpr Ring ring50{40, 60, 40, 60};

    toolkit::Bitmap card{300, 200};
    std::optional<SearchedPicture> picture;
    int marker = 0;
};

TEST_F(FindWord, GoesFromTheMiddleOfTheCircleToThatOfTheWord) {
    draw(47, 46, 11, 13); // middle (52, 52)
    EXPECT_EQ(find(ring50), (Way{2, 2}));
    EXPECT_EQ(marker, 600);
    EXPECT_EQ(inkLeft(), 0);
}

TEST_F(FindWord, OfTwoMiddlePixelsTheLeftAndUpperOneCounts) {
    draw(48, 48, 4, 6);
    EXPECT_EQ(find(ring50), (Way{-1, 0}));
    picture.reset();
    EXPECT_EQ(find({40, 61, 40, 59}), (Way{-1, 1}));
}

TEST_F(FindWord, WithoutAWordTheWayLeadsToTheMiddleOfTheCard) {
    // From (300 + 0) / 2 and (200 + 0) / 2.
    EXPECT_EQ(find(ring50), (Way{100, 50}));
    EXPECT_EQ(marker, 600);
    EXPECT_EQ(find({200, 240, 150, 160}), (Way{-70, -55}));
}

TEST_F(FindWord, LooksFromFourPixelsInsideTheLeftEdgeOnTheMiddleRow) {
    draw(43, 50, 1, 1);
    EXPECT_EQ(find(ring50), (Way{100, 50}));
    draw(44, 50, 1, 1);
    picture.reset();
    EXPECT_EQ(find(ring50), (Way{-7, 0})) << "both pixels: the word begins left of the start";
    picture.reset();
    EXPECT_EQ(find({40, 60, 40, 61}), (Way{-7, 0})) << "50.5 is row 50";
    picture.reset();
    EXPECT_EQ(find({40, 60, 40, 62}), (Way{100, 49})) << "row 51";
}

TEST_F(FindWord, FourPixelsGrowWithTheScale) {
    draw(47, 50, 1, 1);
    EXPECT_EQ(find(ring50, 2), (Way{100, 50}));
    picture.reset();
    EXPECT_EQ(find(ring50, 1.75F), (Way{-3, 0}));
}

TEST_F(FindWord, LooksAsFarAsTheRightEdgeOnly) {
    draw(60, 49, 3, 3);
    EXPECT_EQ(find({40, 59, 40, 60}), (Way{101, 50}));
    EXPECT_EQ(find(ring50), (Way{11, 0}));
}

TEST_F(FindWord, CornersJoinShapesAndGapsPartThem) {
    draw(50, 50, 2, 2);
    draw(52, 52, 2, 2); // touches by a corner
    draw(55, 50, 2, 2); // a pixel of paper between
    EXPECT_EQ(find(ring50), (Way{1, 1}));
    EXPECT_EQ(inkLeft(), 4);
    EXPECT_EQ(find(ring50), (Way{5, 0})) << "the next word, as the first is gone";
}

TEST_F(FindWord, AFrameThatTheWordTouchesGoesWithIt) {
    draw(20, 30, 100, 1);
    draw(20, 30, 1, 60);
    draw(20, 90, 101, 1);
    draw(120, 30, 1, 60);
    draw(50, 31, 3, 25);
    EXPECT_EQ(find(ring50), (Way{20, 10}));
    EXPECT_EQ(inkLeft(), 0);
}

TEST_F(FindWord, FollowsWindingShapesToTheirEnds) {
    // A comb: its teeth hang on a bar, so each is reached by way of the bar alone.
    draw(50, 50, 41, 1);
    for (int tooth = 50; tooth <= 90; tooth += 2) draw(tooth, 50, 1, 30);
    draw(70, 40, 1, 10);
    EXPECT_EQ(find(ring50), (Way{20, 9}));
    EXPECT_EQ(inkLeft(), 0);
}

TEST_F(FindWord, PlacesBetweenPixelsKeepTheirFraction) {
    draw(50, 50, 1, 1);
    // The place is 50.4, which is pixel 50: twice 50.4 and a half, halved, is 50.65.
    EXPECT_EQ(find({40.4F, 60.4F, 40, 60}), (Way{0, 0}));
    picture.reset();
    // The ring's middle is 50.9 and so still pixel 50; 50.65 of the word is, too.
    EXPECT_EQ(find({40.4F, 60.9F, 40, 60}), (Way{0, 0}));
    picture.reset();
    // At 49.8 the word isn't met before 50.8, and the middle of 50.8 and 50.8 is in pixel 51.
    EXPECT_EQ(find({40.8F, 60.2F, 40, 60}), (Way{1, 0}));
}

TEST_F(FindWord, FiftyThousandPixelsAreAWordAndOneMoreIsAFailure) {
    card = toolkit::Bitmap(310, 210);
    draw(45, 5, 250, 200);
    EXPECT_EQ(find(ring50), (Way{119, 54}));
    EXPECT_EQ(inkLeft(), 0);

    draw(44, 204, 1, 1);
    picture.reset();
    EXPECT_EQ(failureOf(ring50), 9);
    EXPECT_EQ(marker, 300);
    EXPECT_EQ(inkLeft(), 1) << "what was taken stays erased";
}

TEST_F(FindWord, OutsideTheCardAnEndlessWordBegins) {
    // The rightmost column is ink, and what lies beyond can't be erased.
    draw(290, 50, 10, 1);
    draw(20, 50, 5, 1);
    EXPECT_EQ(failureOf({280, 299, 40, 60}), 9);
    EXPECT_EQ(marker, 300);
    EXPECT_EQ(failureOf({-80, -60, 40, 60}), 9);
    EXPECT_EQ(failureOf({-6, 16, -30, -10}), 9);
    EXPECT_EQ(find({10, 30, 40, 60}), (Way{2, 0})) << "other words are still there";
}

TEST_F(FindWord, ARowOffTheCardIsOutside) {
    EXPECT_EQ(failureOf({40, 60, -25, -4}), 9);
    EXPECT_EQ(failureOf({40, 60, 195, 220}), 9);
    EXPECT_EQ(failureOf({290, 310, 40, 60}), 9) << "met at the end of the row";
}

TEST_F(FindWord, APlaceBeyondWholeNumbersFailsWhereItIsNeeded) {
    EXPECT_EQ(failureOf({1e9F, 1e9F, 40, 60}), 6);
    EXPECT_EQ(marker, 100);
    EXPECT_EQ(failureOf({40, 60, 1e9F, 1e9F}), 6);
    EXPECT_EQ(marker, 100);
    EXPECT_EQ(failureOf({40, 1e9F, 40, 60}), 6);
    EXPECT_EQ(marker, 200);
}

TEST_F(FindWord, AnyOtherColourThanTheFirstPixelsIsInkAndIsErasedToIt) {
    card = toolkit::Bitmap(300, 200, toolkit::rgb(255, 255, 240));
    card.fill(50, 50, 1, 1, toolkit::white);
    EXPECT_EQ(find(ring50), (Way{0, 0}));
    EXPECT_EQ(inkLeft(), 0);
}

} // namespace
} // namespace zev
