#include "output/make_gray.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "output/gray.h"

namespace zev {
namespace {

using Artwork = std::shared_ptr<const toolkit::Drawing>;

std::function<Artwork()> grayedArtwork(const Artwork& artwork) {
    if (artwork == nullptr) return {};
    return [gray = std::make_shared<const toolkit::Drawing>(grayed(*artwork))] { return gray; };
}

} // namespace

void MakeGray(Zevlin& form, toolkit::PictureBox& picture) {
    procedure(form, "MakeGray", [&] {
        if (picture.Picture)
            picture.Picture = std::make_shared<toolkit::Bitmap>(grayed(*picture.Picture));
        if (picture.Artwork) picture.Artwork = grayedArtwork(picture.Artwork());
    });
}

void blackenLabels(Zevlin& form) {
    form.Timestamp.ForeColor = toolkit::black;
    for (auto* labels : {&form.AMark, &form.AText, &form.SText})
        forEachField(*labels, [&](int i) { (*labels)[i].ForeColor = toolkit::black; });
}

} // namespace zev
