#include "view/card_picture.h"

#include "toolkit/picture/bitmap_file.h"
#include "toolkit/picture/embedded_file.h"
#include "toolkit/picture/indexed_picture.h"
#include "view/artwork_file.h"
#include "view/halve_picture.h"

namespace zev {
namespace {

constexpr int builtInWidth = 2396;
constexpr int builtInHeight = 2473;
constexpr float half = 0.5F;

toolkit::IndexedPicture builtIn(const char* file) {
    return toolkit::decodePicture(toolkit::embeddedFile(file));
}

/// Decoded once, when a scale first asks for it.
const toolkit::IndexedPicture& builtInFull() {
    static const auto picture = builtIn("/card/full.bin");
    return picture;
}

/// Built into the program, so that a start needn't decode the full picture.
const toolkit::IndexedPicture& builtInHalf() {
    static const auto picture = builtIn("/card/half.bin");
    return picture;
}

std::shared_ptr<const toolkit::Drawing> builtInArtwork() {
    const auto file = toolkit::embeddedFile("/card/artwork.txt");
    return std::make_shared<const toolkit::Drawing>(
        readArtwork({reinterpret_cast<const char*>(file.data()), file.size()}));
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

toolkit::Bitmap CardPicture::scaled(const ScaleRequest& request) const {
    if (request.factor > half)
        return replacement_ ? zev::scaled(*replacement_->full, request)
                            : zev::scaled(builtInFull(), request);
    ScaleRequest ofHalf = request;
    ofHalf.factor /= half;
    return replacement_ ? zev::scaled(*replacement_->half, ofHalf)
                        : zev::scaled(builtInHalf(), ofHalf);
}

std::shared_ptr<const toolkit::Drawing> CardPicture::artwork() const {
    static const auto artwork = builtInArtwork();
    return replacement_ ? nullptr : artwork;
}

} // namespace zev
