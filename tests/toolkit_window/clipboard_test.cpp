#include "toolkit/window/input/clipboard.h"

#include <gtest/gtest.h>

#include "toolkit/testing/test_clipboard.h"

namespace toolkit::test {
namespace {

TEST(Clipboard, APictureTakesThePlaceOfWhatWasThere) {
    fillClipboard("text");
    Bitmap picture(9, 7, rgb(195, 17, 25));
    picture.setPixel(3, 2, white);
    setClipboardPicture(picture);
    picture.setPixel(3, 2, black);
    const Bitmap read = clipboardPicture();
    ASSERT_EQ(read.width(), 9);
    ASSERT_EQ(read.height(), 7);
    EXPECT_EQ(read.pixel(0, 0), rgb(195, 17, 25));
    EXPECT_EQ(read.pixel(3, 2), white);
}

} // namespace
} // namespace toolkit::test
