// Writes a layout file.
#pragma once

#include <string>

#include "layout/layout_file.h"

namespace zev {

/// The whole file, byte for byte, with CR LF line ends. An empty tab table leaves out the tab part.
[[nodiscard]] std::string writeLayout(const LayoutDocument& document);

} // namespace zev
