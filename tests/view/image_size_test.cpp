#include "view/image_size.h"

#include "app/layouts.h"
#include "toolkit/bitmap.h"

namespace zev::test {
namespace {

constexpr float pixel = 15;
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
