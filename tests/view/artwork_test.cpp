#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "toolkit/window/drawn_card.h"
#include "view/card_picture.h"

namespace zev::test {
namespace {

using toolkit::Bitmap;
using Pixel = std::uint32_t;

int difference(Pixel left, Pixel right) {
    int most = 0;
    for (const unsigned shift : {0U, 8U, 16U})
        most = std::max(most, std::abs(static_cast<int>(left >> shift & 0xFFU) -
                                       static_cast<int>(right >> shift & 0xFFU)));
    return most;
}

/// Whether another colour stands beside the pixel.
bool isEdge(const Bitmap& picture, int x, int y) {
    const Pixel pixel = picture.row(y)[x];
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, picture.height() - 1); ++row)
        for (int column = std::max(x - 1, 0); column <= std::min(x + 1, picture.width() - 1);
             ++column)
            if (picture.row(row)[column] != pixel) return true;
    return false;
}

struct Deviation {
    long edges = 0;
    long inEdges = 0; ///< shades that all edges together are off
    int most = 0;     ///< shades that one edge is off
    int elsewhere = 0;
};

Deviation deviationOf(const Bitmap& drawn, const Bitmap& picture) {
    Deviation deviation;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const int off = difference(drawn.row(y)[x], picture.row(y)[x]);
            if (!isEdge(picture, x, y)) {
                deviation.elsewhere = std::max(deviation.elsewhere, off);
                continue;
            }
            ++deviation.edges;
            deviation.inEdges += off;
            deviation.most = std::max(deviation.most, off);
        }
    return deviation;
}

TEST(Artwork, DrawnAtFullSizeIsThePictureButForTheShadesOfItsEdges) {
    const CardPicture card;
    const Bitmap picture =
        card.scaled({.factor = 1, .width = card.width(), .height = card.height()});
    const Bitmap drawn = toolkit::painted(*card.artwork(), 1, card.width(), card.height());
    const Deviation deviation = deviationOf(drawn, picture);
    EXPECT_EQ(deviation.elsewhere, 0);
    ASSERT_GT(deviation.edges, 100'000);
    // Glyphs stand at quarters of a pixel.
    EXPECT_LT(deviation.most, 112);
    EXPECT_LT(static_cast<double>(deviation.inEdges) / static_cast<double>(deviation.edges), 6);
}

} // namespace
} // namespace zev::test
