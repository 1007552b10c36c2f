#include "design/find_line.h"

#include <cmath>
#include <optional>

namespace zev {
namespace {

/// The columns and rows that a search for a line reads, twips.
struct Reach {
    float firstRow = 0; ///< from `base`
    float lastRow = 0;
    float base = 0;
    float column = 0; ///< of the vertical search, from the field's left edge
    float across = 0; ///< of the horizontal one, to either side
};

Reach reachOfCheck(const SearchedPicture& picture, const LineSearch& search) {
    return {.firstRow = picture.scaledPixels(search.size >= 3 ? -5 : -3),
            .lastRow = picture.scaledPixels(6),
            .base = picture.edgeOf(search.y),
            .column = picture.scaledPixels(3),
            .across = std::floor(picture.edgeOf(search.width) / 2)};
}

Reach reachOfText(const SearchedPicture& picture, const LineSearch& search) {
    const float width = picture.edgeOf(search.width);
    const float column = std::floor(search.size >= 3 ? std::floor(width) / 3 : width / 2);
    return {.firstRow = picture.scaledPixels(-4),
            .lastRow = picture.scaledPixels(search.size >= 3 ? 20 : 10),
            .base = std::floor(picture.edgeOf(search.y) + picture.scaled(picture.pixels(2) / 3)),
            .column = column,
            .across = column};
}

/// The first place from `from` to `to` that passes the test, both included, step by step.
template <typename Test>
std::optional<float> firstPlace(float from, float to, float step, Test test) {
    float place = from;
    while (step > 0 ? place <= to : place >= to) {
        if (test(place)) return place;
        place += step;
    }
    return std::nullopt;
}

/// Down, then up from the pixel below the foot.
float findVertically(const SearchedPicture& picture, const LineSearch& search, const Reach& reach) {
    const float pixel = picture.pixels(1);
    const float column = search.x + reach.column;
    const auto below = firstPlace(reach.firstRow, reach.lastRow, pixel, [&](float row) {
        return picture.isInk(column, reach.base + row);
    });
    if (below) {
        const bool thick = picture.isInk(column, reach.base + *below + pixel);
        return thick ? *below + pixel : *below;
    }
    const auto above = firstPlace(pixel, picture.scaledPixels(-6), -pixel,
                                  [&](float row) { return picture.isInk(column, search.y + row); });
    if (!above) return 0;
    return *above <= 0 ? *above - pixel : *above;
}

/// To the left, then to the right, from the column of the vertical search.
std::optional<float> findHorizontally(const SearchedPicture& picture, const LineSearch& search,
                                      const Reach& reach, float row) {
    const float pixel = picture.pixels(1);
    const auto inked = [&](float column) { return picture.isInk(search.x + column, row); };
    if (const auto left = firstPlace(reach.column, -reach.across, -pixel, inked))
        return inked(*left - pixel) ? *left - pixel : *left;
    if (const auto right = firstPlace(reach.column, reach.across, pixel, inked))
        return *right > 0 ? *right + pixel : *right;
    return std::nullopt;
}

} // namespace

float findLine(const SearchedPicture& picture, const LineSearch& search, float& horizontal) {
    const bool isText = horizontal == verticalOnly;
    const Reach reach = isText ? reachOfText(picture, search) : reachOfCheck(picture, search);
    const float down = findVertically(picture, search, reach);
    if (isText) return down;
    // Five scaled pixels above the line just found.
    const float row = search.y + down - picture.scaledPixels(5);
    horizontal = findHorizontally(picture, search, reach, row).value_or(horizontal);
    return down;
}

} // namespace zev
