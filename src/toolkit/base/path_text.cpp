#include "toolkit/base/path_text.h"

#include <algorithm>
#include <array>

#include "toolkit/base/ansi.h"
#include "toolkit/base/utf8.h"

namespace toolkit {
namespace {

/// The letters that go together with a mark, and what they become: a system may keep the names of
/// files with each mark as a character of its own.
struct Accent {
    char32_t mark = 0;
    std::string_view letters;
    std::string_view accented;
};
constexpr std::array accents{
    Accent{0x0300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
    Accent{0x0301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
    Accent{0x0302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
    Accent{0x0303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
    Accent{0x0308, "AEIOUYaeiouy", "\xC4\xCB\xCF\xD6\xDC\x9F\xE4\xEB\xEF\xF6\xFC\xFF"},
    Accent{0x030A, "Aa", "\xC5\xE5"},
    Accent{0x030C, "SZsz", "\x8A\x8E\x9A\x9E"},
    Accent{0x0327, "Cc", "\xC7\xE7"},
};

/// None where they don't go together in the code page.
std::optional<char> accented(char letter, char32_t mark) {
    const auto accent = std::ranges::find(accents, mark, &Accent::mark);
    if (accent == accents.end()) return std::nullopt;
    const std::size_t place = accent->letters.find(letter);
    if (place == std::string_view::npos) return std::nullopt;
    return accent->accented[place];
}

/// Hands over each character of the code page, and none for any other.
template <typename Take>
void forEachCharacter(std::string_view utf8, const Take& take) {
    std::optional<char> letter;
    while (const auto value = takeUtf8(utf8)) {
        if (const auto joined = letter ? accented(*letter, *value) : std::nullopt) {
            letter = joined;
            continue;
        }
        if (letter) take(letter);
        letter = ansiOf(*value);
        if (!letter) take(letter);
    }
    if (letter) take(letter);
}

std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace

std::string displayText(const std::filesystem::path& path) {
    std::string text;
    forEachCharacter(utf8Of(path), [&](auto character) { text += character.value_or('?'); });
    return text;
}

std::filesystem::path pathFromText(std::string_view text) {
    const std::string utf8 = utf8FromAnsi(text);
    return std::u8string(utf8.begin(), utf8.end());
}

std::optional<std::string> textFromPath(const std::filesystem::path& path) {
    std::string text;
    bool fits = true;
    forEachCharacter(utf8Of(path.filename()), [&](auto character) {
        fits = fits && character;
        text += character.value_or('?');
    });
    if (!fits) return std::nullopt;
    return text;
}

} // namespace toolkit
