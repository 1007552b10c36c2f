// The card as a drawing, whatever of it the screen shows.
#include "toolkit/window/drawn_card.h"

#include <algorithm>

#include "painting.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

using RecordedCard = PaintTest;

TEST_F(RecordedCard, HoldsPictureAndArtworkAndTheVisibleLabelsFromBackToFront) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    auto artwork =
        std::make_shared<const Drawing>(Drawing{.width = 800, .height = 600, .items = {}});
    card.Artwork = [artwork] { return artwork; };
    for (int index = 1; index <= 3; ++index) block(marks[index], 10 * index, 60, 20, 10, blue);
    marks[2].Visible = false;
    marks[1].Stack = 1 + std::max(marks[3].Stack, marks[1].Stack);
    const CardRecording recording = recorded(card);
    EXPECT_EQ(recording.width, 400);
    EXPECT_EQ(recording.height, 300);
    EXPECT_EQ(recording.paper, card.BackColor);
    EXPECT_EQ(recording.picture, card.Picture);
    EXPECT_EQ(recording.artwork, artwork);
    ASSERT_GE(recording.labels.size(), 2U);
    const auto at = [&](const Label& label) {
        return std::ranges::find(recording.labels, label) - recording.labels.begin();
    };
    const auto count = static_cast<std::ptrdiff_t>(recording.labels.size());
    EXPECT_LT(at(marks[3]), at(marks[1]));
    EXPECT_LT(at(marks[1]), count);
    EXPECT_EQ(at(marks[2]), count);
}

TEST_F(RecordedCard, WithoutArtworkHasThePictureAlone) {
    card.Picture = std::make_shared<Bitmap>(400, 300, grey);
    EXPECT_EQ(recorded(card).artwork, nullptr);
    EXPECT_EQ(recorded(card).picture, card.Picture);
}

TEST(PaintedDrawing, StandsInTheCornerAtItsScaleOnWhite) {
    const Drawing drawing{
        .width = 20,
        .height = 10,
        .items = {FilledRectangle{red, 2, 3, 4, 2}, FilledRectangle{blue, 3, 3, 1, 1}}};
    const Bitmap picture = painted(drawing, 3, 70, 40);
    ASSERT_EQ(picture.width(), 70);
    ASSERT_EQ(picture.height(), 40);
    EXPECT_EQ(picture.pixel(6, 9), red);
    EXPECT_EQ(picture.pixel(17, 14), red);
    EXPECT_EQ(picture.pixel(10, 10), blue) << "the later one is in front";
    EXPECT_EQ(picture.pixel(5, 9), white);
    EXPECT_EQ(picture.pixel(18, 14), white);
    EXPECT_EQ(picture.pixel(6, 8), white);
    EXPECT_EQ(picture.pixel(17, 15), white);
    EXPECT_EQ(picture.pixel(69, 39), white);
}

TEST(PaintedDrawing, OfNoSizeIsEmpty) { EXPECT_TRUE(painted(Drawing{}, 1, 0, 0).empty()); }

} // namespace
} // namespace window_test
