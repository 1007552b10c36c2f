#include "toolkit/base/ansi.h"

#include <algorithm>
#include <array>

#include "toolkit/base/utf8.h"

namespace toolkit {
namespace {

// Codes 0x80 to 0x9F; everything else is the Unicode value of the same number.
constexpr std::array<char16_t, 32> specialCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned firstSpecial = 0x80;
constexpr unsigned pastSpecial = firstSpecial + specialCharacters.size();

} // namespace

char32_t unicodeOf(char character) {
    const unsigned value = code(character);
    const bool special = value >= firstSpecial && value < pastSpecial;
    return special ? specialCharacters[value - firstSpecial] : value;
}

std::optional<char> ansiOf(char32_t value) {
    if (value < firstSpecial || (value >= pastSpecial && value <= 0xFF))
        return static_cast<char>(value);
    const auto found = std::find(specialCharacters.begin(), specialCharacters.end(), value);
    if (found == specialCharacters.end()) return std::nullopt;
    return static_cast<char>(firstSpecial + (found - specialCharacters.begin()));
}

std::string utf8FromAnsi(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char character : text) appendUtf8(utf8, unicodeOf(character));
    return utf8;
}

std::string ansiFromUtf8(std::string_view utf8) {
    std::string text;
    while (const auto value = takeUtf8(utf8)) text += ansiOf(*value).value_or('?');
    return text;
}

char lowerCase(char character) {
    const unsigned value = code(character);
    const bool letter =
        (value >= 'A' && value <= 'Z') || (value >= 0xC0 && value <= 0xDE && value != 0xD7);
    if (letter) return static_cast<char>(value + 0x20);
    if (value == 0x8A || value == 0x8C || value == 0x8E) return static_cast<char>(value + 0x10);
    return value == 0x9F ? '\xFF' : character;
}

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char character) { return lowerCase(character); });
    return lower;
}

bool equalWithoutCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(
        left, right, [](char one, char other) { return lowerCase(one) == lowerCase(other); });
}

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace toolkit
