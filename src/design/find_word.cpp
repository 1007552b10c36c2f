#include "design/find_word.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "toolkit/base/error.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

constexpr std::size_t mostPixels = 50000;

/// Erases all ink that hangs together with a pixel of it, corners included, and returns it. The
/// order of the walk counts only where it fails: what it hasn't reached by then stays.
std::vector<SearchedPicture::Pixel> takeWord(SearchedPicture& picture,
                                             SearchedPicture::Pixel present) {
    std::vector<SearchedPicture::Pixel> taken;
    const auto take = [&](SearchedPicture::Pixel pixel) {
        if (taken.size() == mostPixels)
            throw toolkit::RunTimeError(toolkit::Failure::SubscriptOutOfRange);
        taken.push_back(pixel);
        picture.erase(pixel);
        present = pixel;
    };
    take(present);
    for (std::size_t done = 0;;) {
        const SearchedPicture::Pixel middle = present;
        const std::size_t before = taken.size();
        for (int column = middle.column - 1; column <= middle.column + 1; ++column) {
            for (int row = middle.row - 1; row <= middle.row + 1; ++row) {
                if (picture.isInk({column, row})) take({column, row});
            }
        }
        if (taken.size() > before) continue;
        if (done == taken.size()) return taken;
        present = taken[done++];
    }
}

/// The middle of two places, as a pixel's edge in whole twips.
int middleOf(const SearchedPicture& picture, float first, float second) {
    return toolkit::toInteger32(picture.edgeOf((first + second + picture.pixels(0.5F)) / 2));
}

/// The first place with ink on a row.
std::optional<int> firstInk(const SearchedPicture& picture, int from, int to, int y) {
    // The end of the picture is ink, so this ends there at the latest.
    for (int x = from; x <= to; x += picture.twipsPerPixel()) {
        if (picture.isInk(picture.pixelAt(x, y))) return x;
    }
    return std::nullopt;
}

struct Box {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};

/// The box around pixels that were found `offset` twips to the right of their left edges.
Box boxOf(const SearchedPicture& picture, const std::vector<SearchedPicture::Pixel>& word,
          int offset) {
    const int twips = picture.twipsPerPixel();
    Box box{.left = picture.width() * twips, .top = picture.height() * twips};
    for (const auto& [column, row] : word) {
        box.left = std::min(box.left, column * twips + offset);
        box.right = std::max(box.right, column * twips + offset);
        box.top = std::min(box.top, row * twips);
        box.bottom = std::max(box.bottom, row * twips);
    }
    return box;
}

} // namespace

WayToInk findWord(SearchedPicture& picture, const CircleEdges& circle, int& marker) {
    marker = 100;
    int x = toolkit::toInteger32(circle.left);
    const int y = middleOf(picture, circle.top, circle.bottom);
    marker = 200;
    const int first = toolkit::toInteger32(static_cast<float>(x) + picture.scaledPixels(4));
    const auto ink = firstInk(picture, first, toolkit::toInteger32(circle.right), y);
    std::vector<SearchedPicture::Pixel> word;
    if (ink) {
        marker = 300;
        x = *ink;
        word = takeWord(picture, picture.pixelAt(x, y));
    }
    marker = 400;
    const int offset = x - picture.pixelAt(x, y).column * picture.twipsPerPixel();
    const Box box = boxOf(picture, word, offset);
    marker = 500;
    const auto way = [&](int from, int to, float edge, float otherEdge) {
        return static_cast<float>(
            middleOf(picture, static_cast<float>(from), static_cast<float>(to)) -
            middleOf(picture, edge, otherEdge));
    };
    const WayToInk found{.right = way(box.left, box.right, circle.left, circle.right),
                         .down = way(box.top, box.bottom, circle.top, circle.bottom)};
    marker = 600;
    return found;
}

} // namespace zev
