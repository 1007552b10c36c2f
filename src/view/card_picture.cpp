#include "view/card_picture.h"

#include "toolkit/indexed_picture.h"
#include "view/scale_picture.h"

namespace zev {
namespace {

constexpr int builtInWidth = 2396;
constexpr int builtInHeight = 2473;
constexpr float half = 0.5F;

toolkit::Bitmap builtIn(const char* name) {
    return expanded(toolkit::decodePicture(toolkit::embeddedFile(name)));
}

} // namespace

void CardPicture::load(const std::filesystem::path& path) {
    replacement_ = std::make_shared<const toolkit::Bitmap>(toolkit::loadBitmap(path));
}

int CardPicture::width() const { return replacement_ ? replacement_->width() : builtInWidth; }

int CardPicture::height() const { return replacement_ ? replacement_->height() : builtInHeight; }

toolkit::Bitmap CardPicture::scaledTo(float scale, int width, int height) const {
    if (scale > half) {
        const ScaleRequest whole{.factor = scale, .width = width, .height = height};
        return replacement_ ? scaled(*replacement_, whole)
                            : scaled(builtIn("/card/full.bin"), whole);
    }
    // The half comes ready made with the program, so a start needs no full picture.
    const ScaleRequest fromHalf{.factor = scale / half, .width = width, .height = height};
    return scaled(replacement_ ? halved(*replacement_) : builtIn("/card/half.bin"), fromHalf);
}

} // namespace zev
