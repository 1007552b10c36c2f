// The measures of fonts and of texts in them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/text/font_spec.h"

namespace toolkit {

/// Width of a text in twips: the sum of the unhinted, unkerned advances, so it scales exactly with
/// the size. Each byte is one character; code 160 is as wide as a blank; nothing is an escape.
[[nodiscard]] float textWidth(const FontSpec& font, std::string_view text);

/// Height of a line in twips: ascent plus descent.
[[nodiscard]] float textHeight(const FontSpec& font);

/// Distance in twips from the top of a line to its baseline.
[[nodiscard]] float textAscent(const FontSpec& font);

/// Length of the words at the beginning of a text that fit into a line of this width, twips; the
/// first word always counts. The next line begins after the blank that follows.
[[nodiscard]] std::size_t lengthOfLine(const FontSpec& font, std::string_view text, float width);

/// The lines, broken at blanks, in which a text fits into the width, twips.
[[nodiscard]] std::vector<std::string_view> wrappedLines(const FontSpec& font,
                                                         std::string_view text, float width);

/// Where a text that is too long lacks letters.
enum class Cut { Middle, End };

/// The text, or as much of it as fits into the width, twips, with "..." in the place of the rest.
[[nodiscard]] std::string shortened(const FontSpec& font, std::string_view text, float width,
                                    Cut cut);

/// The name that the font system reports after this one was asked for: the same text where the font
/// is installed or has a substitute, else the name of the font that is used in its place.
[[nodiscard]] std::string fontNameGiven(std::string_view name);

/// The size in points that the font system gives for the one asked for: itself, within 1 to 2160.
[[nodiscard]] float fontSizeGiven(float points);

/// A surface that is never shown: it tells in which font a text was measured.
struct MeasureBox {
    FontSpec Font;
};

} // namespace toolkit
