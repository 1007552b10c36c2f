#include "view/image_size.h"

#include <cmath>
#include <string>

#include "app/trace.h"
#include "app/zevlin.h"
#include "toolkit/number_text.h"
#include "toolkit/screen.h"

namespace zev {
namespace {

constexpr float stripPixels = 15;
constexpr float scaleOfRefusedOnes = 0.5F;

float wholePixelsOf(float pixels) { return static_cast<float>(toolkit::roundToInteger(pixels)); }

std::string flagsText(float scale, Rescale rescale) {
    return toolkit::numberText(scale) + ", False, " +
           std::string(truthText(rescale == Rescale::Always));
}

void drawPicture(Zevlin& form, toolkit::PictureBox& target, const CardPicture& source,
                 float scale) {
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const float shown = form.LastImageScale;
    const float width = wholePixelsOf(static_cast<float>(source.width()) * shown);
    const float picture = wholePixelsOf(static_cast<float>(source.height()) * shown);
    // The strip goes by the scale asked for, also where another one is shown.
    const float strip = scale * stripPixels;
    const float height = wholePixelsOf(picture + strip);
    auto bitmap = source.scaledTo(shown, static_cast<int>(width), static_cast<int>(height));
    const int stripTop = static_cast<int>(std::floor(height - strip));
    bitmap.fill(0, stripTop, bitmap.width(), bitmap.height() - stripTop, toolkit::white);
    target.Width = width * twips;
    target.Height = height * twips;
    target.Picture = std::make_shared<const toolkit::Bitmap>(std::move(bitmap));
}

} // namespace

void SetImageSize(Zevlin& form, toolkit::PictureBox& target, const CardPicture& source, float scale,
                  Rescale rescale) {
    Traceit(form, "SetImageSize " + flagsText(scale, rescale));
    trapped(form, "Error in SetImageSize " + flagsText(scale, rescale) + " #", [&] {
        if (rescale == Rescale::IfChanged && scale == form.LastImageScale) return;
        form.LastImageScale =
            scale < smallestScale || scale > largestScale ? scaleOfRefusedOnes : scale;
        drawPicture(form, target, source, scale);
        Traceit(form, "SetImageSize results: 1, 1, 1, 1");
    });
}

void RestoreBackgroundPicture(Zevlin& form, Rescale rescale) {
    Traceit(form,
            std::string(truthText(rescale == Rescale::Always)) + " RestoreBackgroundPicture ");
    trapped(form, "Error in RestoreBackgroundPicture: #", [&] {
        const bool fit = form.MFitScreenWidth.Checked || form.MFitScreenHeight.Checked;
        const auto step = fit ? std::size_t{0} : static_cast<std::size_t>(form.ZoomLevel);
        SetImageSize(form, form.P1, form.PBase, form.ZoomTable.at(step), rescale);
    });
}

} // namespace zev
