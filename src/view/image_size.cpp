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
struct Drawing {
    float scale = 1;
    float width = 0;
    float height = 0; ///< with the strip
    float strip = 0;

    /// `ratio` times as large, for screens with smaller pixels.
    [[nodiscard]] Drawing enlarged(float ratio) const {
        return {scale * ratio, wholePixelsOf(width * ratio), wholePixelsOf(height * ratio),
                strip * ratio};
    }
};

float shownScale(float scale) {
    return scale < smallestScale || scale > largestScale ? scaleOfRefusedOnes : scale;
}

Drawing drawingOf(const CardPicture& source, float scale) {
    Drawing drawing{.scale = shownScale(scale)};
    drawing.width = wholePixelsOf(static_cast<float>(source.width()) * drawing.scale);
    // The strip takes the scale asked for, even where the picture is shown at another one.
    drawing.strip = scale * stripPixels;
    drawing.height = wholePixelsOf(
        wholePixelsOf(static_cast<float>(source.height()) * drawing.scale) + drawing.strip);
    return drawing;
}

ScaleRequest requestOf(const Drawing& drawing) {
    return {.factor = drawing.scale,
            .width = static_cast<int>(drawing.width),
            .height = static_cast<int>(drawing.height),
            .contentHeight = static_cast<int>(std::floor(drawing.height - drawing.strip))};
}

using SharedPicture = std::shared_ptr<const toolkit::Bitmap>;

SharedPicture pictureOf(const CardPicture& source, const ScaleRequest& request) {
    return std::make_shared<const toolkit::Bitmap>(source.scaled(request));
}

/// Beyond its full size the picture has nothing more to show: the card is drawn anew, or left for
/// the screen to stretch.
SharedPicture enlargedPicture(const CardPicture& source, const Drawing& drawing, float ratio) {
    const float most = std::max(largestScale / drawing.scale, 1.0F);
    const auto artwork = ratio > most ? source.artwork() : nullptr;
    if (artwork == nullptr)
        return pictureOf(source, requestOf(drawing.enlarged(std::min(ratio, most))));
    const ScaleRequest request = requestOf(drawing.enlarged(ratio));
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
    const Drawing drawing = drawingOf(source, scale);
    target.Width = drawing.width * twips;
    target.Height = drawing.height * twips;
    target.Picture = takePicture(form, source, requestOf(drawing));
    target.Sharp = {target.Picture, [source, drawing](float ratio) {
                        return enlargedPicture(source, drawing, ratio);
                    }};
    target.Artwork = [source] { return source.artwork(); };
}

} // namespace

void SetImageSize(Zevlin& form, toolkit::PictureBox& target, const CardPicture& source, float scale,
                  Rescale rescale) {
    Traceit(form, "SetImageSize " + flagsText(scale, rescale));
    trapped(form, "Error in SetImageSize " + flagsText(scale, rescale) + " #", [&] {
        if (rescale == Rescale::IfChanged && scale == form.LastImageScale) return;
        form.LastImageScale = shownScale(scale);
        drawPicture(form, target, source, scale);
        Traceit(form, "SetImageSize results: 1, 1, 1, 1");
    });
}

void StartPicture(Zevlin& form) {
    // A print job has made its picture before the rebuild.
    if (form.Printing) return;
    const std::size_t step = ladderStep(form);
    if (step >= form.ZoomTable.size() || form.ZoomTable[step] == form.LastImageScale) return;
    const ScaleRequest request = requestOf(drawingOf(form.PBase, form.ZoomTable[step]));
    // Where it was made only when it was asked for, a zoom step took nearly half as long again
    // until it was seen: 55 ms instead of 38, medians of one run on a busy machine. Most of a
    // rebuild waits for the disk that takes the options.
    form.PictureStarted =
        PrefetchedPicture{request, std::async(std::launch::async, [source = form.PBase, request] {
                              return source.scaled(request);
                          })};
}

void RestoreBackgroundPicture(Zevlin& form, Rescale rescale) {
    Traceit(form,
            std::string(truthText(rescale == Rescale::Always)) + " RestoreBackgroundPicture ");
    trapped(form, "Error in RestoreBackgroundPicture: #", [&] {
        SetImageSize(form, form.P1, form.PBase, form.ZoomTable.at(ladderStep(form)), rescale);
    });
}

} // namespace zev
