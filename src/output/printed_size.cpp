#include "output/printed_size.h"

#include <algorithm>

namespace zev {

float printedHeight(const PageFacts& page, float ratio) {
    const float twipsPerInch = static_cast<float>(page.pixelsPerInchX) * page.twipsPerPixelX;
    float height = ratio * page.scaleWidth;
    if (page.widthInches > widestCardInches)
        height = ratio * widestCardInches * twipsPerInch;
    else if (page.widthInches > unknownPageInches)
        height = ratio * page.widthInches * twipsPerInch;
    const float highest =
        page.twipsPerPixelY * page.heightInches * static_cast<float>(page.pixelsPerInchY);
    return std::min(height, highest);
}

DeviceSize deviceSize(const PageFacts& page, float ratio) {
    const bool isWide =
        page.widthInches > widestCardInches || page.widthInches <= unknownPageInches;
    const float inches = isWide ? widestCardInches : page.widthInches;
    const float width = static_cast<float>(page.pixelsPerInchX) * inches;
    const float highest = static_cast<float>(page.pixelsPerInchY) * page.heightInches;
    return {width, width * ratio > highest ? highest : width * ratio};
}

} // namespace zev
