// The picture of the card, and a handler's changes on it.
#include "painting.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/flattened_card.h"

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

TEST_F(CardWidget, SharpPictureIsPaintedInTheScreensOwnPixels) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    float asked = 0;
    card.Sharp = {card.Picture, [&asked](float ratio) {
                      asked = ratio;
                      auto twice = std::make_shared<Bitmap>(800, 600, grey);
                      twice->setPixel(101, 51, red);
                      return twice;
                  }};
    EXPECT_EQ(test::grabCard().pixel(50, 25), grey);
    EXPECT_EQ(asked, 0);
    const Bitmap sharp = test::grabCardAt(2);
    EXPECT_EQ(asked, 2);
    ASSERT_EQ(sharp.width(), 800);
    EXPECT_EQ(sharp.pixel(101, 51), red);
    EXPECT_EQ(sharp.pixel(100, 51), grey);
    EXPECT_EQ(sharp.pixel(799, 599), grey);
}

TEST_F(CardWidget, SharpPictureOfAnotherPictureDoesNotCount) {
    card.Sharp = {std::make_shared<Bitmap>(400, 300, red),
                  [](float) { return std::make_shared<Bitmap>(800, 600, red); }};
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    EXPECT_EQ(test::grabCardAt(2).pixel(300, 300), grey);
}

TEST_F(CardWidget, SharpPictureSmallerThanTheScreensIsStretchedOverTheWholePlace) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    card.Sharp = {card.Picture, [](float) { return std::make_shared<Bitmap>(500, 375, red); }};
    const Bitmap sharp = test::grabCardAt(2);
    EXPECT_EQ(sharp.pixel(0, 0), red);
    EXPECT_EQ(sharp.pixel(799, 599), red);
}

TEST_F(CardWidget, SharpTextIsWrittenInTheScreensOwnPixels) {
    write(stamp, "Illinois", Alignment::Left);
    place(stamp, 20, 20, 200, 40);
    const Bitmap once = test::grabCard();
    const Bitmap twice = test::grabCardAt(2);
    const Ink small = inkOf(once);
    const Ink large = inkOf(twice);
    EXPECT_NEAR(large.right - large.left, 2 * (small.right - small.left), 3);
    // Were the small text merely enlarged, all its pixels would stand in blocks of four.
    int split = 0;
    for (int y = large.top / 2 * 2; y < large.bottom; y += 2)
        for (int x = large.left / 2 * 2; x < large.right; x += 2)
            if (twice.pixel(x, y) != twice.pixel(x + 1, y)) ++split;
    EXPECT_GT(split, 20);
}

TEST_F(CardWidget, HandlersChangeIsOnTheScreenAfterTheEvent) {
    card.Click = [this] { block(marks[1], 50, 60, 20, 10, blue); };
    const test::CardPaints before = test::cardPaints();
    test::click(px(300), px(200));
    test::settle();
    EXPECT_GE(test::cardPaints().pixels - before.pixels, 20 * 10);
    EXPECT_EQ(test::grabCard().pixel(55, 65), blue);
}

TEST_F(CardWidget, NothingIsAskedOfItsFieldsWhileNobodyListens) {
    accessible.fieldCount = [this] { return note("count"), 0; };
    accessible.sections = [this] { return note("sections"), std::vector<AccessibleSection>(); };
    accessible.focused = [this] { return note("focused"), std::optional<FieldId>(); };
    open();
    log.clear();
    test::pressMouse(px(5), px(5));
    test::releaseMouse(px(5), px(5));
    openBox("text");
    EXPECT_EQ(times("count") + times("sections") + times("focused"), 0);
    static_cast<void>(test::accessibleSections());
    EXPECT_EQ(times("sections"), 1);
}

TEST_F(CardWidget, FrameRunsAroundItsLabelOverAllOtherLabels) {
    // A hidden label has one, too.
    marks[1].Move(px(100), px(50), px(20), px(30));
    block(texts[1], 0, 0, 110, 300, grey);
    framed = &marks[1];
    const Bitmap shown = test::grabCard();
    const Color frame = rgb(0, 90, 200);
    for (const int x : {99, 100, 119, 120}) EXPECT_EQ(shown.pixel(x, 60), frame) << x;
    for (const int y : {49, 50, 79, 80}) EXPECT_EQ(shown.pixel(115, y), frame) << y;
    for (const int x : {98, 101}) EXPECT_EQ(shown.pixel(x, 60), grey) << x;
    for (const int x : {118, 121}) EXPECT_EQ(shown.pixel(x, 60), white) << x;
    for (const int y : {48, 51, 78, 81}) EXPECT_EQ(shown.pixel(115, y), white) << y;
    const Bitmap twice = test::grabCardAt(2);
    for (const int x : {198, 201, 238, 241}) EXPECT_EQ(twice.pixel(x, 120), frame) << x;
}

TEST_F(CardWidget, FrameThatMovesRepaintsBothItsPlacesAndNoMore) {
    marks[1].Move(px(100), px(50), px(20), px(20));
    marks[2].Move(px(200), px(50), px(20), px(20));
    const auto pixelsOf = [](const auto& act) {
        const auto before = test::cardPaints().pixels;
        act();
        test::settle();
        return test::cardPaints().pixels - before;
    };
    const auto put = [&](const Label* label) {
        return pixelsOf([&] {
            framed = label;
            window->update();
        });
    };
    put(nullptr);
    EXPECT_EQ(put(&marks[1]), 22 * 22);
    EXPECT_EQ(put(&marks[2]), 2 * 22 * 22);
    EXPECT_EQ(put(&marks[2]), 0);
    EXPECT_EQ(put(nullptr), 22 * 22);
    EXPECT_EQ(inkOf(test::grabCard()).right, -1);
}

TEST_F(CardWidget, FlattenedCardHasNoFrame) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    marks[1].Move(px(100), px(50), px(20), px(20));
    framed = &marks[1];
    window->update();
    ASSERT_EQ(test::grabCard().pixel(99, 60), rgb(0, 90, 200));
    flatten(card);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x) ASSERT_EQ(card.Picture->pixel(x, y), grey);
}

} // namespace
} // namespace window_test
