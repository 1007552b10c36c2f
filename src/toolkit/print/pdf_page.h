// A page with one picture as a PDF file.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/picture/bitmap.h"

namespace toolkit {

/// Lengths in points, 72 to the inch. The picture is given from the page's top left corner.
struct PdfPage {
    double width = 0;
    double height = 0;
    double pictureLeft = 0;
    double pictureTop = 0;
    double pictureWidth = 0;
    double pictureHeight = 0;
    std::string_view title{}; ///< in the code page
};

/// The file's content. The picture is stored once, without loss, at its own resolution.
[[nodiscard]] std::string pdfFile(const PdfPage& page, const Bitmap& picture);

} // namespace toolkit
