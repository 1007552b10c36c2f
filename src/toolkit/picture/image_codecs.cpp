#include "toolkit/picture/image_codecs.h"

#include <png.h>

#include <algorithm>
#include <memory>

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QImageWriter>

#include "toolkit/base/error.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/color_table.h"
#include "toolkit/picture/gif_file.h"
#include "toolkit/picture/qt_picture.h"

namespace toolkit {
namespace {

enum class Format { Bmp, Jpeg, Gif, Png };

/// Its place in the list of encoders is what tells a format.
constexpr CodecId idOf(Format format) {
    return {0x5A, 0x45, 0x56, 0x4C, 0x49, 0x4E, 0, 0,
            0,    0,    0,    0,    0,    0,    0, static_cast<std::uint8_t>(format)};
}

/// Of the palette files: half the time of the usual level for a tenth more bytes.
constexpr int pngCompression = 20;

std::string contentOf(const QImage& image, const char* format, int quality, int compression) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    if (quality >= 0) writer.setQuality(quality);
    if (compression >= 0) writer.setCompression(compression);
    if (!writer.write(image)) throw RunTimeError(Failure::InvalidPicture);
    return buffer.data().toStdString();
}

QImage imageOver(const IndexedPicture& picture) {
    QImage image(picture.indices.data(), picture.width, picture.height, picture.width,
                 QImage::Format_Indexed8);
    QList<QRgb> table(picture.palette.begin(), picture.palette.end());
    image.setColorTable(table);
    return image;
}

/// Without filters over the rows, which Qt can't leave out: of a card they make a larger file, and
/// its export would take longer by a sixth, 70 ms instead of 60.
std::string trueColorPng(const Bitmap& picture) {
    const QImage rows = imageOver(picture).convertToFormat(QImage::Format_RGB888);
    png_image file{};
    file.version = PNG_IMAGE_VERSION;
    file.width = static_cast<png_uint_32>(rows.width());
    file.height = static_cast<png_uint_32>(rows.height());
    file.format = PNG_FORMAT_RGB;
    file.flags = PNG_IMAGE_FLAG_FAST;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(file);
    // Most of it is never touched, and so costs nothing.
    const auto content = std::make_unique_for_overwrite<char[]>(size);
    if (png_image_write_to_memory(&file, content.get(), &size, 0, rows.constBits(),
                                  static_cast<png_int_32>(rows.bytesPerLine()), nullptr) == 0)
        throw RunTimeError(Failure::InvalidPicture);
    return {content.get(), size};
}

std::string pngContent(const Bitmap& picture) {
    const auto indexed = exactlyIndexed(picture);
    if (!indexed) return trueColorPng(picture);
    return contentOf(imageOver(*indexed), "png", -1, pngCompression);
}

std::string encoded(const Bitmap& picture, const CodecId& encoder, std::optional<int> quality) {
    if (encoder == idOf(Format::Bmp)) return contentOf(imageOver(picture), "bmp", -1, -1);
    if (encoder == idOf(Format::Jpeg))
        return contentOf(imageOver(picture), "jpeg", quality.value_or(-1), -1);
    if (encoder == idOf(Format::Gif)) return gifFile(nearlyIndexed(picture));
    if (encoder == idOf(Format::Png)) return pngContent(picture);
    throw RunTimeError(Failure::InvalidProcedureCall);
}

} // namespace

std::vector<ImageEncoder> imageEncoders() {
    return {{idOf(Format::Bmp), "*.BMP;*.DIB;*.RLE"},
            {idOf(Format::Jpeg), "*.JPG;*.JPEG;*.JPE;*.JFIF"},
            {idOf(Format::Gif), "*.GIF"},
            {idOf(Format::Png), "*.PNG"}};
}

void saveImage(const Bitmap& picture, const std::filesystem::path& path, const CodecId& encoder,
               std::optional<int> quality) {
    if (picture.empty()) throw RunTimeError(Failure::InvalidPicture);
    writeFile(path, encoded(picture, encoder, quality));
}

void savePicture(const Bitmap& picture, const std::filesystem::path& path) {
    saveImage(picture, path, idOf(Format::Bmp), std::nullopt);
}

} // namespace toolkit
