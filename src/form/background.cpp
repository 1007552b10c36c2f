#include "form/background.h"

#include "form/trace.h"
#include "form/zevlin.h"

namespace zev {
namespace {

constexpr float smallestTileScale = 0.05F;
constexpr float largestTileScale = 10;

} // namespace

void CreateBG(Zevlin& form, const toolkit::PictureBox& texture, float scaleFactor, float yOffset) {
    Traceit(form, "CreateBG");
    trapped(form, "Error in CreateBG ", [&] {
        const bool canScale = scaleFactor >= smallestTileScale && scaleFactor <= largestTileScale;
        const bool canShift = yOffset >= 0 && yOffset <= form.Height;
        form.Background = {.backdrop = toolkit::Backdrop::Tiles,
                           .tile = texture.Picture,
                           .tileScale = canScale ? scaleFactor : 1,
                           .yOffset = canShift ? yOffset : 0,
                           .top = toolkit::white,
                           .bottom = toolkit::white,
                           .text = form.ProgramVersion};
    });
}

} // namespace zev
