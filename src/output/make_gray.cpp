#include "output/make_gray.h"

#include "app/trace.h"
#include "app/zevlin.h"
#include "output/gray.h"

namespace zev {

void MakeGray(Zevlin& form, toolkit::PictureBox& picture) {
    Traceit(form, "MakeGray");
    trapped(form, "Error in MakeGray: #", [&] {
        if (picture.Picture)
            picture.Picture = std::make_shared<toolkit::Bitmap>(grayed(*picture.Picture));
    });
}

} // namespace zev
