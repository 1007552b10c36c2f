#include "output/make_gray.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "output/gray.h"

namespace zev {

void MakeGray(Zevlin& form, toolkit::PictureBox& picture) {
    procedure(form, "MakeGray", [&] {
        if (picture.Picture)
            picture.Picture = std::make_shared<toolkit::Bitmap>(grayed(*picture.Picture));
    });
}

} // namespace zev
