// The program's texts: bytes of Windows-1252, one byte a character, so a position is an index.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace toolkit {

constexpr char noBreakSpace = '\xA0';
constexpr char superscriptTwo = '\xB2';

/// Codes compare unsigned: 'é' is above 'z'.
constexpr unsigned char code(char character) { return static_cast<unsigned char>(character); }

/// The Unicode value that a byte of the code page stands for; the five unused bytes map to
/// themselves.
[[nodiscard]] char32_t unicodeOf(char character);

/// The byte for a Unicode value, none where the code page lacks it.
[[nodiscard]] std::optional<char> ansiOf(char32_t value);

[[nodiscard]] std::string utf8FromAnsi(std::string_view text);

/// Characters that the code page lacks become "?"; malformed UTF-8 too.
[[nodiscard]] std::string ansiFromUtf8(std::string_view utf8);

/// Lower case of ASCII and Latin letters of the code page.
[[nodiscard]] char lowerCase(char character);
[[nodiscard]] std::string lowerCase(std::string_view text);
[[nodiscard]] bool equalWithoutCase(std::string_view left, std::string_view right);

/// Cuts blanks (code 32 only) from both ends.
[[nodiscard]] std::string_view trim(std::string_view text);

} // namespace toolkit
