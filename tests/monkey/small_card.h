// A card of few fields on a picture of few pixels, which is made anew in a moment.
#pragma once

#include <string>
#include <vector>

#include "support/form_test.h"
#include "toolkit/picture/indexed_picture.h"

namespace zev::test {

/// It takes the card's place as "Convention card.gif" in the data folder.
inline toolkit::IndexedPicture smallPicture() {
    constexpr int width = 900;
    constexpr int height = 930;
    toolkit::IndexedPicture picture{width, height, {0xFFFFFFFFU, 0xFF203040U}, {}};
    picture.indices.reserve(std::size_t{width} * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.indices.push_back(x % 100 == 0 || y % 90 == 0 ? 1 : 0);
    return picture;
}

/// Marks and texts with much room between them, and a walk through all of them.
inline std::string smallCard() {
    std::vector<SmallField> marks;
    marks.reserve(12);
    for (int i = 0; i < 12; ++i) {
        const int row = i / 6;
        marks.push_back({.left = static_cast<float>(60 + 180 * (i % 6)),
                         .top = static_cast<float>(60 + 120 * row),
                         .width = 30,
                         .height = 30,
                         .color = 1 + i % 3,
                         .size = 3,
                         .symbol = i % 4 == 3 ? 161 : 252});
    }
    std::vector<SmallField> texts;
    texts.reserve(6);
    for (int i = 0; i < 6; ++i) {
        const int row = i / 2;
        texts.push_back({.left = static_cast<float>(60 + 560 * (i % 2)),
                         .top = static_cast<float>(330 + 90 * row),
                         .width = 420,
                         .height = 24,
                         .color = 1 + i % 3,
                         .size = i == 5 ? 3 : 1 + i % 2});
    }
    return smallLayout(marks, texts,
                       "1,1001\r\n1001,1002\r\n1002,2\r\n2,3\r\n3,1005\r\n1005,1006\r\n1006,4\r\n"
                       "4,5\r\n5,6\r\n6,1012\r\n1012,1\r\n",
                       1012);
}

} // namespace zev::test
