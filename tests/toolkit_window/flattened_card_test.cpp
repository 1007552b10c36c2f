// The card as one picture, whatever of it the screen shows.
#include "painting.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/flattened_card.h"

namespace window_test {
namespace {

using namespace toolkit;

class FlattenedCard : public PaintTest {
  protected:
    [[nodiscard]] Bitmap flattened() const {
        PictureBox copy = card;
        flatten(copy);
        return *copy.Picture;
    }
};

TEST_F(FlattenedCard, HoldsThePictureAndTheVisibleLabels) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    block(marks[1], 50, 60, 20, 10, blue);
    block(marks[2], 80, 60, 20, 10, red);
    marks[2].Visible = false;
    const Bitmap flat = flattened();
    ASSERT_EQ(flat.width(), 400);
    ASSERT_EQ(flat.height(), 300);
    EXPECT_EQ(flat.pixel(55, 65), blue);
    EXPECT_EQ(flat.pixel(85, 65), grey);
}

TEST_F(FlattenedCard, WhoSharesThePictureKeepsItWithoutTheLabels) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    const auto shared = card.Picture;
    block(marks[1], 50, 60, 20, 10, blue);
    flatten(card);
    EXPECT_EQ(shared->pixel(55, 65), grey);
    EXPECT_EQ(card.Picture->pixel(55, 65), blue);
}

TEST_F(FlattenedCard, APictureThatNobodySharesIsntCopied) {
    PictureBox alone = card;
    alone.Picture = std::make_shared<Bitmap>(400, 300, grey);
    const Bitmap* own = alone.Picture.get();
    block(marks[1], 50, 60, 20, 10, blue);
    flatten(alone);
    EXPECT_EQ(alone.Picture.get(), own);
    EXPECT_EQ(own->pixel(55, 65), blue);
}

TEST_F(FlattenedCard, GoesBeyondWhatTheWindowShows) {
    card.Width = px(2000);
    card.Height = px(1500);
    block(marks[1], 1900, 1400, 20, 10, blue);
    const Bitmap flat = flattened();
    ASSERT_EQ(flat.width(), 2000);
    EXPECT_EQ(flat.pixel(1905, 1405), blue);
    EXPECT_EQ(flat.pixel(1000, 1000), white);
}

TEST_F(FlattenedCard, TheScreenKeepsTheCardWhileAnotherOneStandsForIt) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    const Bitmap before = test::grabCard();
    frozen.Visible = true;
    card.Picture = std::make_shared<Bitmap>(400, 300, red);
    card.Move(0, 0, px(50), px(50));
    card.Visible = false;
    test::settle();
    const Bitmap during = test::grabCard();
    ASSERT_EQ(during.width(), 400);
    EXPECT_EQ(during.pixel(200, 200), grey);
    frozen.Visible = false;
    card.Visible = true;
    EXPECT_EQ(test::grabCard().pixel(20, 20), red);
}

} // namespace
} // namespace window_test
