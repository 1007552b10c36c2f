#include "design/searched_picture.h"

#include <cmath>
#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/base/number_text.h"

namespace zev {

SearchedPicture::SearchedPicture(toolkit::Bitmap picture, int twipsPerPixel, float scale)
    : picture_(std::move(picture)), paper_(picture_.pixel(0, 0)),
      twips_(static_cast<float>(twipsPerPixel)), scale_(scale) {
    if (!paper_) throw toolkit::RunTimeError(toolkit::Failure::InvalidPicture);
}

bool SearchedPicture::isInk(Pixel pixel) const {
    return picture_.pixel(pixel.column, pixel.row) != paper_;
}

bool SearchedPicture::isInk(float x, float y) const {
    const float column = std::floor(inPixels(x));
    const float row = std::floor(inPixels(y));
    const bool inside = column >= 0 && row >= 0 && column < static_cast<float>(picture_.width()) &&
                        row < static_cast<float>(picture_.height());
    return !inside || isInk({static_cast<int>(column), static_cast<int>(row)});
}

void SearchedPicture::erase(Pixel pixel) { picture_.setPixel(pixel.column, pixel.row, *paper_); }

float SearchedPicture::inPixels(float length) const {
    if (twips_ == 0) throw toolkit::RunTimeError(toolkit::Failure::DivisionByZero);
    return length / twips_;
}

float SearchedPicture::edgeOf(float place) const { return std::floor(inPixels(place)) * twips_; }

float SearchedPicture::cutToPixels(float place) const {
    return std::trunc(inPixels(static_cast<float>(toolkit::toInteger32(place)))) * twips_;
}

SearchedPicture::Pixel SearchedPicture::pixelAt(int x, int y) const {
    const auto count = [this](int place) {
        return static_cast<int>(std::floor(static_cast<double>(place) / twips_));
    };
    return {count(x), count(y)};
}

int SearchedPicture::width() const { return picture_.width(); }
int SearchedPicture::height() const { return picture_.height(); }

} // namespace zev
