// The picture of the card, and a handler's changes on it.
#include "painting.h"

namespace window_test {
namespace {

using namespace toolkit;

using CardWidget = PaintTest;

TEST_F(CardWidget, PictureIsShownPixelByPixelAndTheRestIsWhite) {
    auto picture = std::make_shared<Bitmap>(100, 50, grey);
    picture->setPixel(99, 49, red);
    card.Picture = picture;
    const Bitmap shown = test::grabCard();
    ASSERT_EQ(shown.width(), 400);
    ASSERT_EQ(shown.height(), 300);
    EXPECT_EQ(shown.pixel(0, 0), grey);
    EXPECT_EQ(shown.pixel(98, 49), grey);
    EXPECT_EQ(shown.pixel(99, 49), red);
    EXPECT_EQ(shown.pixel(100, 49), white);
    EXPECT_EQ(shown.pixel(99, 50), white);
}

TEST_F(CardWidget, PictureLargerThanTheCardIsCutOff) {
    card.Picture = std::make_shared<Bitmap>(1000, 1000, grey);
    const Bitmap shown = test::grabCard();
    ASSERT_EQ(shown.width(), 400);
    EXPECT_EQ(shown.pixel(399, 299), grey);
}

TEST_F(CardWidget, HandlersChangeIsOnTheScreenAfterTheEvent) {
    card.Click = [this] { block(marks[1], 50, 60, 20, 10, blue); };
    const test::CardPaints before = test::cardPaints();
    test::click(px(300), px(200));
    test::settle();
    EXPECT_GE(test::cardPaints().pixels - before.pixels, 20 * 10);
    EXPECT_EQ(test::grabCard().pixel(55, 65), blue);
}

} // namespace
} // namespace window_test
