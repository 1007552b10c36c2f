#include "view/card_picture.h"

#include <utility>

#include "toolkit/indexed_picture.h"
#include "view/halve_picture.h"
#include "view/scale_picture.h"

namespace zev {
namespace {

constexpr int builtInWidth = 2396;
constexpr int builtInHeight = 2473;
constexpr float half = 0.5F;

/// Decoded once, when a scale first asks for it.
const toolkit::IndexedPicture& builtInFull() {
    static const auto picture = toolkit::decodePicture(toolkit::embeddedFile("/card/full.bin"));
    return picture;
}

/// Comes ready made with the program, so a start needs no full picture.
const toolkit::IndexedPicture& builtInHalf() {
    static const auto picture = toolkit::decodePicture(toolkit::embeddedFile("/card/half.bin"));
    return picture;
}

} // namespace

struct CardPicture::Replacement {
    std::shared_ptr<const toolkit::Bitmap> full;
    toolkit::Bitmap half;
};

CardPicture::CardPicture(const std::shared_ptr<const toolkit::Bitmap>& picture)
    : replacement_(std::make_shared<const Replacement>(Replacement{picture, halved(*picture)})) {}

void CardPicture::load(const std::filesystem::path& path) {
    *this = CardPicture(std::make_shared<const toolkit::Bitmap>(toolkit::loadBitmap(path)));
}

int CardPicture::width() const { return replacement_ ? replacement_->full->width() : builtInWidth; }

int CardPicture::height() const {
    return replacement_ ? replacement_->full->height() : builtInHeight;
}

toolkit::Bitmap CardPicture::scaledTo(float scale, int width, int height) const {
    const bool fromFull = scale > half;
    const ScaleRequest request{
        .factor = fromFull ? scale : scale / half, .width = width, .height = height};
    if (replacement_) return scaled(fromFull ? *replacement_->full : replacement_->half, request);
    return scaled(fromFull ? builtInFull() : builtInHalf(), request);
}

} // namespace zev
