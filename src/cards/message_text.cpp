#include "cards/message_text.h"

#include <array>

#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/base/utf8.h"

namespace zev {
namespace {

constexpr char firstPrintable = ' ';
constexpr char deleteCharacter = '\x7F';

bool isControl(char character) {
    return toolkit::code(character) < toolkit::code(firstPrintable) || character == deleteCharacter;
}

std::string hexadecimal(char character) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const unsigned char value = toolkit::code(character);
    return {digits[value / digits.size()], digits[value % digits.size()]};
}

/// The letter that stands behind a backslash for it; none for most.
char shortEscape(char character) {
    switch (character) {
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    default:
        return '\0';
    }
}

/// `numbered` stands before the two digits of a character that has no letter.
void appendEscaped(std::string& text, char character, std::string_view numbered) {
    const char letter = shortEscape(character);
    if (letter != '\0')
        (text += '\\') += letter;
    else
        text.append(numbered).append(hexadecimal(character));
}

} // namespace

std::string onOneLine(std::string_view utf8) {
    std::string line;
    for (const char character : utf8) {
        if (isControl(character))
            appendEscaped(line, character, "\\x");
        else
            line += character;
    }
    return line;
}

std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path pathOf(std::string_view utf8) {
    if (utf8.find('\0') != std::string_view::npos)
        throw toolkit::RunTimeError(toolkit::Failure::BadFileName);
    try {
        return {std::u8string(utf8.begin(), utf8.end())};
    } catch (const std::system_error&) {
        throw toolkit::RunTimeError(toolkit::Failure::BadFileName);
    }
}

std::string textOf(const std::error_code& error) {
    return toolkit::fileFailure(error.default_error_condition().value()).description();
}

std::string jsonText(std::string_view utf8) {
    std::string text = "\"";
    while (const auto value = toolkit::takeUtf8(utf8)) {
        const bool isAscii = *value <= toolkit::code(deleteCharacter);
        const char character = isAscii ? static_cast<char>(*value) : '\0';
        if (isAscii && isControl(character)) {
            appendEscaped(text, character, "\\u00");
            continue;
        }
        if (character == '"' || character == '\\') text += '\\';
        toolkit::appendUtf8(text, *value);
    }
    return text += '"';
}

} // namespace zev
