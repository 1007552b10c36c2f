#include "form/background.h"

#include "app/layouts.h"
#include "form/write_options.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class Background : public FormTest {};

TEST_F(Background, TheFormIsTiledAndShowsTheVersion) {
    start();
    EXPECT_EQ(form.Background.backdrop, toolkit::Backdrop::Tiles);
    ASSERT_NE(form.Background.tile, nullptr);
    EXPECT_EQ(form.Background.tile->width(), 324);
    EXPECT_EQ(form.Background.tileScale, 1);
    EXPECT_EQ(form.Background.yOffset, 0);
    EXPECT_EQ(form.Background.text, form.ProgramVersion);
    EXPECT_TRUE(traced("CreateBG"));
}

TEST_F(Background, TheTilesAreSeenBesideTheCard) {
    writeOptions("Zoom=1\r\n");
    start();
    toolkit::test::resizeWindow(200, 100);
    form.P1.Visible = false;
    window->update();
    toolkit::test::settle();
    const auto shown = toolkit::test::grabWindow();
    const auto tile = form.Background.tile;
    // Somewhere in the middle a whole row of a tile is visible.
    int green = 0;
    for (int x = 0; x < shown.width(); ++x) {
        const auto color = shown.pixel(x, shown.height() / 2);
        const auto red = static_cast<int>(*color & 0xFFU);
        if (static_cast<int>(*color >> 8U & 0xFFU) > red + 30) ++green;
    }
    EXPECT_GT(green, shown.width() * 9 / 10);
}

TEST_F(Background, ItComesBackAfterItWasChanged) {
    start();
    form.Background = {};
    CreateBG(form, form.BGPat, 0, 0);
    EXPECT_EQ(form.Background.text, form.ProgramVersion);
}

TEST_F(Background, AScaleOutsideItsBoundsIsOne) {
    start();
    for (const float scale : {0.0F, 0.049F, 10.1F, -1.0F}) {
        CreateBG(form, form.BGPat, scale, 0);
        EXPECT_EQ(form.Background.tileScale, 1) << scale;
    }
    for (const float scale : {0.05F, 2.5F, 10.0F}) {
        CreateBG(form, form.BGPat, scale, 0);
        EXPECT_EQ(form.Background.tileScale, scale);
    }
}

TEST_F(Background, AnOffsetOutsideTheFormIsNone) {
    start();
    for (const float offset : {-1.0F, form.Height + 1}) {
        CreateBG(form, form.BGPat, 0, offset);
        EXPECT_EQ(form.Background.yOffset, 0) << offset;
    }
    CreateBG(form, form.BGPat, 0, form.Height);
    EXPECT_EQ(form.Background.yOffset, form.Height);
}

TEST_F(Background, AnyTextureIsPaintedAtItsScaleBelowTheOffset) {
    start();
    form.P1.Visible = false;
    toolkit::PictureBox texture;
    auto tile = std::make_shared<toolkit::Bitmap>(10, 10, toolkit::rgb(9, 8, 7));
    tile->fill(0, 0, 1, 10, toolkit::rgb(250, 0, 0));
    texture.Picture = tile;
    CreateBG(form, texture, 3, 20 * 15);
    const auto shown = toolkit::test::grabWindow();
    const int top = shown.height() - static_cast<int>(form.ScaleHeight() / 15);
    EXPECT_EQ(shown.pixel(31, top + 19), form.BackColor);
    EXPECT_EQ(shown.pixel(31, top + 20), toolkit::rgb(250, 0, 0));
    EXPECT_EQ(shown.pixel(33, top + 20), toolkit::rgb(9, 8, 7));
    EXPECT_EQ(shown.pixel(60, top + 300), toolkit::rgb(250, 0, 0));
}

TEST_F(Background, AnEnlargedWindowIsTiledToItsEdges) {
    start();
    form.P1.Visible = false;
    toolkit::PictureBox texture;
    texture.Picture = std::make_shared<toolkit::Bitmap>(7, 7, toolkit::rgb(9, 8, 7));
    CreateBG(form, texture, 0, 0);
    toolkit::test::resizeWindow(300, 200);
    const auto shown = toolkit::test::grabWindow();
    EXPECT_EQ(shown.pixel(shown.width() - 1, shown.height() - 1), toolkit::rgb(9, 8, 7));
    EXPECT_EQ(shown.pixel(shown.width() - 1, shown.height() / 2), toolkit::rgb(9, 8, 7));
}

} // namespace
} // namespace zev::test
