// Fonts as pages in a file take them along. Internal: only the toolkit's own sources may include
// it.
#pragma once

#include <QtGui/QFont>

#include "toolkit/text/font_spec.h"

namespace toolkit {

/// The same glyphs under the same numbers in a font that knows no other characters than those of
/// the code page, without a size. The library asks each font of each file for all 65,536
/// characters, and hints the outlines that it takes: this one answers at once and has no hints.
/// Where the font can't be reduced, it's the font itself.
[[nodiscard]] QFont pageFont(const FontSpec& font);

} // namespace toolkit
