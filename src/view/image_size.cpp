#include "view/image_size.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <memory>
#include <string>
#include <utility>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/drawn_card.h"
#include "view/scale_picture.h"

namespace zev {
namespace {

constexpr float stripPixels = 15;
constexpr float scaleOfRefusedOnes = 0.5F;

float wholePixelsOf(float pixels) { return static_cast<float>(toolkit::roundToInteger(pixels)); }

std::string flagsText(float scale, Rescale rescale) {
    return toolkit::numberText(scale) + ", False, " +
           std::string(truthText(rescale == Rescale::Always));
}

/// A picture of the card at one size, in pixels, with the white strip at its foot.
struct PictureSize {
    float scale = 1;
    float width = 0;
    float height = 0; ///< with the strip
    float strip = 0;

    /// `ratio` times as large, for screens with smaller pixels.
    [[nodiscard]] PictureSize enlarged(float ratio) const {
        return {scale * ratio, wholePixelsOf(width * ratio), wholePixelsOf(height * ratio),
                strip * ratio};
    }
};

float shownScale(float scale) {
    return scale < smallestScale || scale > largestScale ? scaleOfRefusedOnes : scale;
}

PictureSize sizeOf(const CardPicture& source, float scale) {
    PictureSize size{.scale = shownScale(scale)};
    size.width = wholePixelsOf(static_cast<float>(source.width()) * size.scale);
    // The strip takes the scale asked for, even where the picture is shown at another one.
    size.strip = scale * stripPixels;
    size.height =
        wholePixelsOf(wholePixelsOf(static_cast<float>(source.height()) * size.scale) + size.strip);
    return size;
}

ScaleRequest requestOf(const PictureSize& size) {
    return {.factor = size.scale,
            .width = static_cast<int>(size.width),
            .height = static_cast<int>(size.height),
            .contentHeight = static_cast<int>(std::floor(size.height - size.strip))};
}

using SharedPicture = std::shared_ptr<const toolkit::Bitmap>;

SharedPicture pictureOf(const CardPicture& source, const ScaleRequest& request) {
    return std::make_shared<const toolkit::Bitmap>(source.scaled(request));
}

/// Beyond its full size the picture has nothing more to show: the card is drawn anew, or left for
/// the screen to stretch.
SharedPicture enlargedPicture(const CardPicture& source, const PictureSize& size, float ratio) {
    const float most = std::max(largestScale / size.scale, 1.0F);
    const auto artwork = ratio > most ? source.artwork() : nullptr;
    if (artwork == nullptr)
        return pictureOf(source, requestOf(size.enlarged(std::min(ratio, most))));
    const ScaleRequest request = requestOf(size.enlarged(ratio));
    return std::make_shared<const toolkit::Bitmap>(
        toolkit::painted(*artwork, request.factor, request.width, request.height));
}

/// The picture that was begun, if it is the one that is wanted, else a new one.
SharedPicture takePicture(Zevlin& form, const CardPicture& source, const ScaleRequest& request) {
    auto started = std::exchange(form.PictureStarted, std::nullopt);
    if (!started || &source != &form.PBase || started->request != request)
        return pictureOf(source, request);
    return std::make_shared<const toolkit::Bitmap>(started->picture.get());
}

std::size_t ladderStep(const Zevlin& form) {
    const bool fit = form.MFitScreenWidth.Checked || form.MFitScreenHeight.Checked;
    return fit ? std::size_t{0} : static_cast<std::size_t>(form.ZoomLevel);
}

void drawPicture(Zevlin& form, toolkit::PictureBox& target, const CardPicture& source,
                 float scale) {
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const PictureSize size = sizeOf(source, scale);
    target.Width = size.width * twips;
    target.Height = size.height * twips;
    target.Picture = takePicture(form, source, requestOf(size));
    target.Sharp = {target.Picture,
                    [source, size](float ratio) { return enlargedPicture(source, size, ratio); }};
    target.Artwork = [source] { return source.artwork(); };
}

} // namespace

void SetImageSize(Zevlin& form, toolkit::PictureBox& target, const CardPicture& source, float scale,
                  Rescale rescale) {
    Traceit(form, "SetImageSize " + flagsText(scale, rescale));
    try {
        if (rescale == Rescale::IfChanged && scale == form.LastImageScale) return;
        form.LastImageScale = shownScale(scale);
        drawPicture(form, target, source, scale);
        Traceit(form, "SetImageSize results: 1, 1, 1, 1");
    } catch (const std::exception&) {
        Traceit(form, "Error in SetImageSize " + flagsText(scale, rescale));
    }
}

void StartPicture(Zevlin& form) {
    // A print job has made its picture before the rebuild.
    if (form.Printing) return;
    const std::size_t step = ladderStep(form);
    if (step >= form.ZoomTable.size() || form.ZoomTable[step] == form.LastImageScale) return;
    const ScaleRequest request = requestOf(sizeOf(form.PBase, form.ZoomTable[step]));
    // Where it was made only when it was asked for, a zoom step took nearly half as long again
    // until it was seen: 55 ms instead of 38, medians of one run on a busy machine. Most of a
    // rebuild waits for the disk that takes the options.
    form.PictureStarted =
        PrefetchedPicture{request, std::async(std::launch::async, [source = form.PBase, request] {
                              return source.scaled(request);
                          })};
}

void restorePictureOfFields(Zevlin& form) {
    const std::size_t step = ladderStep(form);
    const bool isShown = form.LastImageScale == 0 || step >= form.ZoomTable.size() ||
                         shownScale(form.ZoomTable[step]) == form.LastImageScale;
    if (form.Carried || isShown) RestoreBackgroundPicture(form, Rescale::IfChanged);
}

void RestoreBackgroundPicture(Zevlin& form, Rescale rescale) {
    Traceit(form,
            std::string(truthText(rescale == Rescale::Always)) + " RestoreBackgroundPicture ");
    trapped(form, "Error in RestoreBackgroundPicture: #", [&] {
        SetImageSize(form, form.P1, form.PBase, form.ZoomTable.at(ladderStep(form)), rescale);
    });
}

} // namespace zev
