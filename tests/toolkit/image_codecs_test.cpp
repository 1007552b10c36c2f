#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "toolkit/base/files.h"
#include "toolkit/failure_of.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/picture/image_codecs.h"

namespace toolkit::test {
namespace {

class ImageCodecs : public testing::Test {
  protected:
    static CodecId encoderOf(std::string_view pattern) {
        for (const ImageEncoder& encoder : imageEncoders())
            if (encoder.FilenameExtension.find(pattern) != std::string::npos) return encoder.id;
        return {};
    }
    static Bitmap manyColors() {
        Bitmap bitmap(200, 200);
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 200; ++x) bitmap.setPixel(x, y, rgb(x, y, x * y % 256));
        return bitmap;
    }
    const TemporaryFolder folder;
};

TEST_F(ImageCodecs, EachHasAnIdentifierOfItsOwn) {
    const auto encoders = imageEncoders();
    ASSERT_EQ(encoders.size(), 4U);
    for (std::size_t i = 1; i < encoders.size(); ++i) EXPECT_NE(encoders[i].id, encoders[0].id);
}

TEST_F(ImageCodecs, APictureOfManyColoursKeepsThemAllInPngAndBmp) {
    const Bitmap source = manyColors();
    saveImage(source, folder / "a.png", encoderOf("*.PNG"), {});
    savePicture(source, folder / "a.bmp");
    for (const char* name : {"a.png", "a.bmp"}) {
        const Bitmap read = loadBitmap(folder / name);
        for (int i = 0; i < 200; ++i) EXPECT_EQ(read.pixel(i, 199 - i), source.pixel(i, 199 - i));
    }
}

TEST_F(ImageCodecs, MoreThan256ColoursThatLookAlikeStayApartInPng) {
    Bitmap source(20, 20);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) source.setPixel(x, y, rgb(200 + x, 200 + y, 250));
    saveImage(source, folder / "a.png", encoderOf("*.PNG"), {});
    const Bitmap read = loadBitmap(folder / "a.png");
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) EXPECT_EQ(read.pixel(x, y), source.pixel(x, y));
}

TEST_F(ImageCodecs, APictureOfFewColoursIsWrittenWithAPalette) {
    Bitmap source(100, 100, white);
    source.fill(10, 10, 30, 30, rgb(195, 17, 25));
    saveImage(source, folder / "a.png", encoderOf("*.PNG"), {});
    constexpr std::size_t colorType = 25;
    EXPECT_EQ(readFile(folder / "a.png").at(colorType), 3);
}

TEST_F(ImageCodecs, AHigherQualityIsALargerJpeg) {
    saveImage(manyColors(), folder / "low.jpg", encoderOf("*.JPG"), 20);
    saveImage(manyColors(), folder / "high.jpg", encoderOf("*.JPG"), 80);
    EXPECT_LT(fileLength(folder / "low.jpg"), fileLength(folder / "high.jpg"));
}

TEST_F(ImageCodecs, FailuresAreTold) {
    const Bitmap source(3, 3);
    EXPECT_EQ(failureOf([&] { saveImage(source, folder / "a", {}, {}); }),
              static_cast<int>(Failure::InvalidProcedureCall));
    EXPECT_EQ(failureOf([&] { savePicture(Bitmap(), folder / "a"); }),
              static_cast<int>(Failure::InvalidPicture));
    EXPECT_EQ(failureOf([&] { savePicture(source, folder / "none" / "a"); }),
              static_cast<int>(Failure::PathNotFound));
}

} // namespace
} // namespace toolkit::test
