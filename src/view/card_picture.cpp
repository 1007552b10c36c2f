#include "view/card_picture.h"

#include <utility>

#include "toolkit/picture/bitmap_file.h"
#include "toolkit/picture/embedded_file.h"
#include "toolkit/picture/indexed_picture.h"
#include "view/halve_picture.h"
#include "view/scale_picture.h"

namespace zev {
namespace {

constexpr int builtInWidth = 2396;
constexpr int builtInHeight = 2473;
constexpr float half = 0.5F;

using SharedPicture = std::shared_ptr<const toolkit::IndexedPicture>;

SharedPicture builtIn(const char* file) {
    return std::make_shared<const toolkit::IndexedPicture>(
        toolkit::decodePicture(toolkit::embeddedFile(file)));
}

/// Decoded once, when a scale first asks for it.
const SharedPicture& builtInFull() {
    static const auto picture = builtIn("/card/full.bin");
    return picture;
}

/// Built into the program, so that a start needn't decode the full picture.
const SharedPicture& builtInHalf() {
    static const auto picture = builtIn("/card/half.bin");
    return picture;
}

} // namespace

CardPicture::CardPicture(const std::shared_ptr<const toolkit::Bitmap>& picture)
    : replacement_({picture, std::make_shared<const toolkit::Bitmap>(halved(*picture))}) {}

void CardPicture::load(const std::filesystem::path& path) {
    *this = CardPicture(std::make_shared<const toolkit::Bitmap>(toolkit::loadBitmap(path)));
}

int CardPicture::width() const { return replacement_ ? replacement_->full->width() : builtInWidth; }

int CardPicture::height() const {
    return replacement_ ? replacement_->full->height() : builtInHeight;
}

PictureInMaking CardPicture::startScaled(const ScaleRequest& request) const {
    if (request.factor > half)
        return replacement_ ? zev::startScaled(replacement_->full, request)
                            : zev::startScaled(builtInFull(), request);
    ScaleRequest ofHalf = request;
    ofHalf.factor /= half;
    return replacement_ ? zev::startScaled(replacement_->half, ofHalf)
                        : zev::startScaled(builtInHalf(), ofHalf);
}

} // namespace zev
