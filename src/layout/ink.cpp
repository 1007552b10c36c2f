#include "layout/ink.h"

#include <algorithm>

namespace zev {

std::optional<InkEdges> findInk(const toolkit::Bitmap& picture, toolkit::Color reference) {
    const std::uint32_t blank = toolkit::pixelOf(reference);
    std::optional<InkEdges> edges;
    for (int y = 0; y < picture.height(); ++y) {
        const std::uint32_t* row = picture.row(y);
        for (int x = 0; x < picture.width(); ++x) {
            if (row[x] == blank) continue;
            if (!edges) edges = InkEdges{.left = x, .bottom = y, .right = x, .top = y};
            edges->left = std::min(edges->left, x);
            edges->right = std::max(edges->right, x);
            edges->bottom = y;
        }
    }
    return edges;
}

} // namespace zev
