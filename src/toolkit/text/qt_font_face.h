// A face of a family with its measures and glyphs. Internal: only the toolkit's own sources may
// include it.
#pragma once

#include <array>

#include <QtGui/QFont>
#include <QtGui/QRawFont>

#include "toolkit/text/advance_table.h"
#include "toolkit/text/font_spec.h"

namespace toolkit {

struct FontFace {
    AdvanceTable measures;
    std::array<quint32, 256> glyphs{}; ///< by the byte of the text
};

/// The face for a font's name and style, whatever its size; looked up once in a run.
[[nodiscard]] const FontFace& fontFace(const FontSpec& font);

/// The family and style that Qt is asked for, without a size.
[[nodiscard]] QFont styledFont(const FontSpec& font);
/// Another family in the font's style.
[[nodiscard]] QFont styledFont(const FontSpec& font, const QString& family);

} // namespace toolkit
