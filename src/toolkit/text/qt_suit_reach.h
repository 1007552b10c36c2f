// Suit signs that reach as far as their room. Internal: only the toolkit's own sources may include
// it.
#pragma once

#include "toolkit/text/font_spec.h"

namespace toolkit {

/// The same signs in a font that says of each that it is this many twips wide, or wider by less
/// than a tenth of its size: who reads a page by program takes paper behind a sign for a blank.
/// Any other font than the program's own comes back as it is.
[[nodiscard]] FontSpec suitsReaching(const FontSpec& font, float twips);

} // namespace toolkit
