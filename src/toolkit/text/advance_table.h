// The widths of a font's characters. Internal to the toolkit.
#pragma once

#include <array>

#include "toolkit/text/font_spec.h"

namespace toolkit {

/// Everything that measuring a text takes, in font units and thus for every size alike.
struct AdvanceTable {
    std::array<int, 256> advances{}; ///< by the byte of the text
    int ascent = 0;
    int descent = 0; ///< below the baseline, positive
    int unitsPerEm = 1;
};

/// The table of a font's face; its size plays no part. Good as long as the process runs, and quick
/// to find: the callers ask again for each text.
[[nodiscard]] const AdvanceTable& advanceTable(const FontSpec& font);

} // namespace toolkit
