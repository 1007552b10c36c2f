// Qt's images over the program's pixels. Internal to the toolkit's sources.
#pragma once

#include <QtGui/QImage>

#include "toolkit/picture/bitmap.h"

namespace toolkit {

/// The picture's own pixels, not a copy.
[[nodiscard]] inline QImage imageOver(const Bitmap& picture) {
    return {reinterpret_cast<const uchar*>(picture.row(0)), picture.width(), picture.height(),
            picture.width() * 4, QImage::Format_RGB32};
}

/// The same to draw upon.
[[nodiscard]] inline QImage imageOver(Bitmap& picture) {
    return {reinterpret_cast<uchar*>(picture.row(0)), picture.width(), picture.height(),
            picture.width() * 4, QImage::Format_RGB32};
}

} // namespace toolkit
