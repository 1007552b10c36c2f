#include "view/artwork_file.h"

#include <gtest/gtest.h>

#include "toolkit/base/error.h"

namespace zev::test {
namespace {

using toolkit::FilledRectangle;
using toolkit::Words;

toolkit::Drawing sample() {
    return {
        .width = 2396,
        .height = 2473,
        .items = {FilledRectangle{toolkit::rgb(195, 17, 25), 26, 18.5, 1151, 4},
                  Words{toolkit::white, "Arial Narrow", true, 30, 34.25, 52, "Jacoby 2NT ", 104.25},
                  Words{toolkit::black, "Zevlin Print Suits", false, 28, 99, 52, "\xA7", 20},
                  Words{toolkit::black, "Arial Narrow", false, 28, 120, 52, "caf\xE9", 37.5}}};
}

TEST(ArtworkFile, HoldsWhatTheCardIsPrintedWith) {
    EXPECT_EQ(writeArtwork(sample()), "artwork 2396 2473\n"
                                      "box c31119 26 18.5 1151 4\n"
                                      "words ffffff bold 30 34.25 52 104.25 Jacoby 2NT \n"
                                      "words 000000 suits 28 99 52 20 \xA7\n"
                                      "words 000000 regular 28 120 52 37.5 caf\xE9\n");
}

TEST(ArtworkFile, ReadsWhatItHasWritten) {
    const toolkit::Drawing read = readArtwork(writeArtwork(sample()));
    EXPECT_EQ(read.width, 2396);
    EXPECT_EQ(read.height, 2473);
    EXPECT_EQ(read.items, sample().items);
}

TEST(ArtworkFile, TakesALastLineWithoutAnEnd) {
    EXPECT_EQ(readArtwork("artwork 8 6\nbox 000000 1 2 3 4").items.size(), 1U);
}

TEST(ArtworkFile, WhatIsNoneIsRefused) {
    for (const char* file :
         {"", "\n", "box 000000 1 2 3 4\n", "artwork 8\n", "artwork 0 6\n", "artwork 8 -6\n",
          "artwork 8 6\nbox 00000 1 2 3 4\n", "artwork 8 6\nbox 0000000 1 2 3 4\n",
          "artwork 8 6\nbox 00000g 1 2 3 4\n", "artwork 8 6\nbox 000000 1 2 3\n",
          "artwork 8 6\nbox 000000 1 2 3 x\n", "artwork 8 6\nbox 000000 1 2 3 nan\n",
          "artwork 8 6\nwords 000000 thin 28 1 2 3 a\n", "artwork 8 6\nwords 000000 bold 28 1 2\n",
          "artwork 8 6\nline 1 2\n", "GIF89a"})
        EXPECT_THROW(static_cast<void>(readArtwork(file)), toolkit::RunTimeError) << file;
}

} // namespace
} // namespace zev::test
