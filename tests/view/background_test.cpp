#include "view/background.h"

#include "app/layouts.h"

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
    // Somewhere in the middle a whole row of a tile stands as it is.
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
    CreateBG(form);
    EXPECT_EQ(form.Background.text, form.ProgramVersion);
}

} // namespace
} // namespace zev::test
