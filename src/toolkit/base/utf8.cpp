#include "toolkit/base/utf8.h"

#include <cstddef>

namespace toolkit {
namespace {

constexpr char32_t byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

struct Lead {
    std::size_t followers = 0;
    char32_t bits = 0;
    // Bounds of the first follower: they shut out overlong forms, surrogates and too large values.
    char32_t lowest = 0x80;
    char32_t highest = 0xBF;
};

std::optional<Lead> leadOf(char32_t byte) {
    if (byte < 0x80) return Lead{.followers = 0, .bits = byte};
    if (byte >= 0xC2 && byte <= 0xDF) return Lead{.followers = 1, .bits = byte & 0x1F};
    if (byte >= 0xE0 && byte <= 0xEF)
        return Lead{.followers = 2,
                    .bits = byte & 0x0F,
                    .lowest = byte == 0xE0 ? U'\xA0' : U'\x80',
                    .highest = byte == 0xED ? U'\x9F' : U'\xBF'};
    if (byte >= 0xF0 && byte <= 0xF4)
        return Lead{.followers = 3,
                    .bits = byte & 0x07,
                    .lowest = byte == 0xF0 ? U'\x90' : U'\x80',
                    .highest = byte == 0xF4 ? U'\x8F' : U'\xBF'};
    return std::nullopt;
}

} // namespace

std::optional<char32_t> takeUtf8(std::string_view& utf8) {
    if (utf8.empty()) return std::nullopt;
    const auto lead = leadOf(byteAt(utf8, 0));
    utf8.remove_prefix(1);
    if (!lead) return replacementCharacter;
    char32_t value = lead->bits;
    for (std::size_t follower = 0; follower < lead->followers; ++follower) {
        const char32_t lowest = follower == 0 ? lead->lowest : 0x80;
        const char32_t highest = follower == 0 ? lead->highest : 0xBF;
        if (utf8.empty() || byteAt(utf8, 0) < lowest || byteAt(utf8, 0) > highest)
            return replacementCharacter;
        value = value << 6U | (byteAt(utf8, 0) & 0x3FU);
        utf8.remove_prefix(1);
    }
    return value;
}

void appendUtf8(std::string& utf8, char32_t value) {
    const auto follower = [&](unsigned shift) {
        utf8 += static_cast<char>(0x80U | (value >> shift & 0x3FU));
    };
    if (value < 0x80) {
        utf8 += static_cast<char>(value);
    } else if (value < 0x800) {
        utf8 += static_cast<char>(0xC0U | value >> 6U);
        follower(0);
    } else if (value < 0x10000) {
        utf8 += static_cast<char>(0xE0U | value >> 12U);
        follower(6);
        follower(0);
    } else {
        utf8 += static_cast<char>(0xF0U | value >> 18U);
        follower(12);
        follower(6);
        follower(0);
    }
}

} // namespace toolkit
