// Pages as a PDF file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "toolkit/print/page.h"

namespace toolkit {

/// The file's content. Texts are texts, which can be searched and read aloud, their fonts embedded;
/// pictures are stored without loss at their own resolution. The title is in the code page.
[[nodiscard]] std::string pdfDocument(std::span<const Page> pages, std::string_view title);

} // namespace toolkit
