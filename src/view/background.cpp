#include "view/background.h"

#include "app/trace.h"
#include "app/zevlin.h"
#include "view/felt.h"

namespace zev {

void CreateBG(Zevlin& form) {
    Traceit(form, "CreateBG");
    trapped(form, "Error in CreateBG ", [&] {
        static const auto tile = std::make_shared<const toolkit::Bitmap>(feltTile());
        form.Background = {.backdrop = toolkit::Backdrop::Tiles,
                           .tile = tile,
                           .tileScale = 1,
                           .yOffset = 0,
                           .top = toolkit::white,
                           .bottom = toolkit::white,
                           .text = form.ProgramVersion};
    });
}

} // namespace zev
