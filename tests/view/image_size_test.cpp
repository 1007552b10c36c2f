#include <algorithm>
#include <future>

#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/model/drawing.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"
#include "view/image_size.h"

namespace zev::test {
namespace {

constexpr auto blue = toolkit::rgb(0, 0, 200);

class ImageSize : public FormTest {
  protected:
    ImageSize() {
        writeLayout(fewFields());
        toolkit::savePng(toolkit::Bitmap(2000, 1000, blue), dataFile("Convention card.gif"));
    }
    void size(float scale, Rescale rescale = Rescale::IfChanged) {
        SetImageSize(form, form.P1, form.PBase, scale, rescale);
    }
};

TEST_F(ImageSize, TheCardIsScaledAndGetsAWhiteStripForTheStamp) {
    start();
    size(1);
    EXPECT_EQ(form.P1.Width, 2000 * pixel);
    EXPECT_EQ(form.P1.Height, 1015 * pixel);
    EXPECT_EQ(form.P1.Picture->height(), 1015);
    EXPECT_EQ(form.P1.Picture->pixel(1000, 999), blue);
    EXPECT_EQ(form.P1.Picture->pixel(1000, 1000), toolkit::white);
    EXPECT_EQ(form.P1.Picture->pixel(1000, 1014), toolkit::white);
}

TEST_F(ImageSize, TheStripShrinksWithTheCard) {
    start();
    size(0.6F);
    EXPECT_EQ(form.P1.Width, 1200 * pixel);
    EXPECT_EQ(form.P1.Height, 609 * pixel);
}

TEST_F(ImageSize, AStripOfABrokenHeightBeginsAtAWholePixel) {
    start();
    size(0.425F);
    // 425 rows of the card and 6.4 of the strip are 431.
    EXPECT_EQ(form.P1.Height, 431 * pixel);
    EXPECT_EQ(form.P1.Picture->pixel(400, 423), blue);
    EXPECT_EQ(form.P1.Picture->pixel(400, 424), toolkit::white);
}

TEST_F(ImageSize, TheCardKeepsItsPlaceAndItsVisibility) {
    start();
    form.P1.Move(30, 45);
    form.P1.Visible = false;
    size(0.6F);
    EXPECT_EQ(form.P1.Left, 30);
    EXPECT_EQ(form.P1.Top, 45);
    EXPECT_FALSE(form.P1.Visible);
}

TEST_F(ImageSize, ASecondTimeAtTheSameScaleDoesNothing) {
    start();
    size(0.6F);
    const auto picture = form.P1.Picture;
    form.Trace.clear();
    size(0.6F);
    EXPECT_EQ(form.P1.Picture, picture);
    EXPECT_EQ(traceLines(), std::vector<std::string>{"SetImageSize 0.6, False, False"});
}

TEST_F(ImageSize, ForcedItScalesAgain) {
    start();
    size(0.6F);
    const auto picture = form.P1.Picture;
    form.Trace.clear();
    size(0.6F, Rescale::Always);
    EXPECT_NE(form.P1.Picture, picture);
    EXPECT_EQ(traceLines(), (std::vector<std::string>{"SetImageSize 0.6, False, True",
                                                      "SetImageSize results: 1, 1, 1, 1"}));
}

/// In place of the one that was begun, so that it can be told from any other.
void replaceBegun(PrefetchedPicture& begun, toolkit::Color color) {
    std::promise<toolkit::Bitmap> marked;
    marked.set_value(toolkit::Bitmap(begun.request.width, begun.request.height, color));
    begun.picture = marked.get_future();
}

TEST_F(ImageSize, APictureThatWasBegunIsTakenWhereItFits) {
    constexpr toolkit::Color mark = toolkit::rgb(1, 2, 3);
    start();
    form.ZoomLevel = 7;
    StartPicture(form);
    ASSERT_TRUE(form.PictureStarted);
    const toolkit::Bitmap begun = form.PictureStarted->picture.get();
    EXPECT_EQ(begun.pixel(0, 0), blue);
    EXPECT_EQ(begun.pixel(0, begun.height() - 1), toolkit::white);
    replaceBegun(*form.PictureStarted, mark);
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    EXPECT_EQ(form.P1.Picture->pixel(0, 0), mark);
    EXPECT_FALSE(form.PictureStarted);
    form.ZoomLevel = 8;
    StartPicture(form);
    replaceBegun(*form.PictureStarted, mark);
    size(0.6F);
    EXPECT_EQ(form.P1.Picture->pixel(0, 0), blue);
    EXPECT_FALSE(form.PictureStarted);
}

TEST_F(ImageSize, AFailureIsTracedWithTheScaleAndTheFlagsAlone) {
    start();
    form.ZoomLevel = 6;
    StartPicture(form);
    std::promise<toolkit::Bitmap> failed;
    failed.set_exception(
        std::make_exception_ptr(toolkit::RunTimeError(toolkit::Failure::OutOfMemory)));
    form.PictureStarted->picture = failed.get_future();
    announceError("Error in SetImageSize ");
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    EXPECT_TRUE(traced("Error in SetImageSize 0.6, False, False"));
    EXPECT_EQ(form.LastImageScale, 0.6F);
}

TEST_F(ImageSize, NoPictureIsBegunThatNobodyWants) {
    start();
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    StartPicture(form);
    EXPECT_FALSE(form.PictureStarted) << "of the size that is shown";
    form.ZoomLevel = 8;
    form.Printing = true;
    StartPicture(form);
    EXPECT_FALSE(form.PictureStarted) << "while the card has the size of the print";
    form.Printing = false;
    form.ZoomLevel = -1;
    StartPicture(form);
    EXPECT_FALSE(form.PictureStarted) << "for a step that isn't there";
}

TEST_F(ImageSize, TheBoundsThemselvesPass) {
    start();
    size(0.2F);
    EXPECT_EQ(form.P1.Width, 400 * pixel);
    EXPECT_EQ(form.LastImageScale, 0.2F);
    size(1);
    EXPECT_EQ(form.P1.Width, 2000 * pixel);
}

TEST_F(ImageSize, AScaleAboveOneIsShownAtHalfSizeWithItsOwnStrip) {
    start();
    size(2);
    EXPECT_EQ(form.LastImageScale, 0.5F);
    EXPECT_EQ(form.P1.Width, 1000 * pixel);
    EXPECT_EQ(form.P1.Height, 530 * pixel);
}

TEST_F(ImageSize, ARefusedScaleIsShownAnewEachTimeAndStandsForHalfSize) {
    start();
    size(2);
    const auto first = form.P1.Picture;
    size(2);
    const auto second = form.P1.Picture;
    EXPECT_NE(second, first);
    size(0.5F);
    EXPECT_EQ(form.P1.Picture, second);
    EXPECT_EQ(form.P1.Height, 530 * pixel);
}

TEST_F(ImageSize, AScaleBelowAFifthIsShownAtHalfSize) {
    start();
    size(0.19F);
    EXPECT_EQ(form.LastImageScale, 0.5F);
    EXPECT_EQ(form.P1.Width, 1000 * pixel);
}

TEST_F(ImageSize, AnImpossibleScaleIsNoCrash) {
    start();
    for (const float scale : {-0.3F, 0.0F, 60.0F}) {
        size(scale);
        EXPECT_EQ(form.LastImageScale, 0.5F) << scale;
    }
}

/// One black pixel column among white ones at full size tells which resolution is painted.
class SharpImage : public FormTest {
  protected:
    SharpImage() {
        writeLayout(fewFields());
        toolkit::Bitmap card(2000, 1000, toolkit::white);
        for (int x = 0; x < 2000; x += 2) card.fill(x, 0, 1, 1000, blue);
        toolkit::savePng(card, dataFile("Convention card.gif"));
    }
    void startAt(const std::string& step) {
        writeOptions("Zoom=" + step + "\r\n");
        start();
        form.Timestamp.Visible = form.CreditLabel.Visible = false;
    }
};

TEST_F(SharpImage, AScreenOfTwicePixelsShowsTheStripesThatOthersAverage) {
    startAt("5");
    const auto plain = toolkit::test::grabCard();
    EXPECT_EQ(plain.width(), 1000);
    EXPECT_EQ(plain.pixel(500, 100), plain.pixel(501, 100));
    const auto sharp = toolkit::test::grabCardAt(2);
    EXPECT_EQ(sharp.width(), 2000);
    EXPECT_EQ(sharp.pixel(1000, 200), blue);
    EXPECT_EQ(sharp.pixel(1001, 200), toolkit::white);
}

TEST_F(SharpImage, TheLogicKeepsItsWholeLogicalPixels) {
    startAt("5");
    const auto picture = form.P1.Picture;
    (void)toolkit::test::grabCardAt(2);
    EXPECT_EQ(form.P1.Picture, picture);
    EXPECT_EQ(picture->width(), 1000);
    EXPECT_EQ(form.P1.Width, 1000 * pixel);
    EXPECT_EQ(toolkit::test::grabCard().pixel(500, 100), picture->pixel(500, 100));
}

TEST_F(SharpImage, ASomewhatFinerScreenShowsThePictureOfItsSize) {
    startAt("5");
    for (const float ratio : {1.25F, 1.5F, 1.75F}) {
        const int width = static_cast<int>(1000 * ratio);
        const auto sharp = toolkit::test::grabCardAt(ratio);
        ASSERT_EQ(sharp.width(), width);
        const auto expected =
            form.PBase.scaled({.factor = ratio / 2, .width = width, .height = width / 2});
        for (int x = 300; x < 320; ++x)
            EXPECT_EQ(sharp.pixel(x, 500), expected.pixel(x, 500)) << x << " of " << ratio;
    }
}

TEST_F(SharpImage, TheStripStaysWhiteAtItsPlace) {
    startAt("5");
    const auto sharp = toolkit::test::grabCardAt(2);
    const int strip = form.P1.Picture->height() - 500;
    EXPECT_EQ(sharp.pixel(1000, 2 * 500 - 1), blue);
    for (int y = 1; y < 2 * strip; ++y)
        EXPECT_EQ(sharp.pixel(1000, sharp.height() - y), toolkit::white) << y;
}

TEST_F(SharpImage, AtFullSizeThePictureIsStretched) {
    startAt("11");
    const auto sharp = toolkit::test::grabCardAt(2);
    ASSERT_EQ(sharp.width(), 4000);
    EXPECT_EQ(sharp.pixel(2000, 1996), toolkit::test::grabCardAt(2).pixel(2000, 4));
    int darkest = 255;
    int lightest = 0;
    for (int x = 2000; x < 2008; ++x) {
        const int red = static_cast<int>(sharp.pixel(x, 900).value_or(0) & 0xFFU);
        darkest = std::min(darkest, red);
        lightest = std::max(lightest, red);
    }
    EXPECT_GT(lightest - darkest, 100);
    EXPECT_EQ(sharp.pixel(2000, 2029), toolkit::white);
}

TEST_F(SharpImage, APictureThatWasReplacedIsShownAsItIs) {
    startAt("5");
    (void)toolkit::test::grabCardAt(2);
    form.P1.Picture = std::make_shared<const toolkit::Bitmap>(1000, 508, blue);
    EXPECT_EQ(toolkit::test::grabCardAt(2).pixel(1001, 200), blue);
}

TEST_F(SharpImage, TheNextZoomStepIsSharpToo) {
    startAt("2");
    (void)toolkit::test::grabCardAt(2);
    SetImageSize(form, form.P1, form.PBase, 0.5F, Rescale::IfChanged);
    const auto sharp = toolkit::test::grabCardAt(2);
    ASSERT_EQ(sharp.width(), 2000);
    EXPECT_EQ(sharp.pixel(1000, 200), blue);
    EXPECT_EQ(sharp.pixel(1001, 200), toolkit::white);
}

TEST_F(ImageSize, BeyondItsFullSizeTheCardIsDrawnAnew) {
    std::filesystem::remove(dataFile("Convention card.gif"));
    writeOptions("Zoom=11\r\n");
    toolkit::overrideScreen({.width = 48000, .height = 48000});
    start();
    const auto artwork = CardPicture().artwork();
    const auto drawn = toolkit::test::grabCardAt(2);
    ASSERT_EQ(drawn.width(), 2 * artwork->width);
    const auto box = std::get<toolkit::FilledRectangle>(
        *std::ranges::find_if(artwork->items, [](const auto& item) {
            return std::holds_alternative<toolkit::FilledRectangle>(item);
        }));
    const int left = static_cast<int>(2 * box.left);
    const int middle = static_cast<int>(2 * box.top + box.height);
    EXPECT_EQ(drawn.pixel(left, middle), box.color);
    // Stretched, the pixel beside it would have some of its ink.
    EXPECT_EQ(drawn.pixel(left - 1, middle), toolkit::white);
}

TEST_F(ImageSize, WithoutAFitTheZoomStepCounts) {
    start();
    form.ZoomLevel = 2;
    form.ZoomTable[0] = 0.9F;
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    EXPECT_EQ(form.LastImageScale, 0.25F);
    EXPECT_TRUE(traced("False RestoreBackgroundPicture "));
}

TEST_F(ImageSize, WithEitherFitItsScaleCounts) {
    start();
    form.ZoomTable[0] = 0.9F;
    form.MFitScreenHeight.Checked = true;
    RestoreBackgroundPicture(form, Rescale::Always);
    EXPECT_EQ(form.LastImageScale, 0.9F);
    EXPECT_TRUE(traced("True RestoreBackgroundPicture "));
    form.ZoomTable[0] = 0.8F;
    form.MFitScreenHeight.Checked = false;
    form.MFitScreenWidth.Checked = true;
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    EXPECT_EQ(form.LastImageScale, 0.8F);
}

TEST_F(ImageSize, AStepOutsideTheLadderIsTraced) {
    start();
    announceError("Error in RestoreBackgroundPicture: #");
    form.ZoomLevel = 12;
    RestoreBackgroundPicture(form, Rescale::IfChanged);
    EXPECT_TRUE(traceFile().find("Error in RestoreBackgroundPicture: #") != std::string::npos);
    EXPECT_EQ(form.LastImageScale, 0.5F);
}

} // namespace
} // namespace zev::test
