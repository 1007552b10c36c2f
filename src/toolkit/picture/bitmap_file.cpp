#include "toolkit/picture/bitmap_file.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

#include "toolkit/base/error.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/qt_picture.h"

namespace toolkit {
namespace {

bool isKnownFormat(const QByteArray& format) {
    return format == "gif" || format == "png" || format == "jpeg" || format == "bmp";
}

QImage decodeImage(const std::string& content) {
    QByteArray bytes =
        QByteArray::fromRawData(content.data(), static_cast<qsizetype>(content.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    if (!isKnownFormat(reader.format())) throw RunTimeError(Failure::InvalidPicture);
    QImage image = reader.read();
    if (image.isNull()) throw RunTimeError(Failure::InvalidPicture);
    return image;
}

} // namespace

Bitmap loadBitmap(const std::filesystem::path& path) {
    const QImage image = decodeImage(readFile(path));
    // Paper shows through where the picture is transparent.
    Bitmap bitmap(image.width(), image.height(), white);
    QImage target = imageOver(bitmap);
    QPainter painter(&target);
    painter.drawImage(0, 0, image);
    return bitmap;
}

void savePng(const Bitmap& bitmap, const std::filesystem::path& path) {
    QBuffer buffer;
    if (bitmap.empty() || !imageOver(bitmap).save(&buffer, "PNG"))
        throw RunTimeError(Failure::DeviceIo);
    const QByteArray& bytes = buffer.data();
    writeFile(path, {bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace toolkit
