// UTF-8 by single characters, for the conversions into and out of the code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace toolkit {

/// What takeUtf8 gives for bytes that are no UTF-8.
constexpr char32_t replacementCharacter = 0xFFFD;

/// Cuts the first character off the text and returns its value; none at the end. A malformed,
/// overlong or cut sequence gives one replacement character for the bytes that belong together.
[[nodiscard]] std::optional<char32_t> takeUtf8(std::string_view& utf8);

/// Adds the character to the text. The value must be one of Unicode's, not a surrogate.
void appendUtf8(std::string& utf8, char32_t value);

} // namespace toolkit
