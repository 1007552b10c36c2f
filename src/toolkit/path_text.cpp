// Paths as texts. They stay native outside of messages, since a home folder may hold any character.
#include "toolkit/ansi.h"
#include "toolkit/utf8.h"

namespace toolkit {
namespace {

std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace

std::string displayText(const std::filesystem::path& path) { return ansiFromUtf8(utf8Of(path)); }

std::filesystem::path pathFromText(std::string_view text) {
    const std::string utf8 = utf8FromAnsi(text);
    return std::u8string(utf8.begin(), utf8.end());
}

std::optional<std::string> textFromPath(const std::filesystem::path& path) {
    const std::string utf8 = utf8Of(path.filename());
    std::string text;
    std::string_view rest = utf8;
    while (const auto value = takeUtf8(rest)) {
        const auto character = ansiOf(*value);
        if (!character) return std::nullopt;
        text += *character;
    }
    return text;
}

} // namespace toolkit
