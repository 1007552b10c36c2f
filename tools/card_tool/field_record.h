#pragma once

#include "card_tool/sheet.h"
#include "card_tool/typeface.h"

namespace card {

/// A field as a layout file tells of it: its label's rectangle in whole design pixels.
struct FieldRecord {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int size = 1;
};

/// Places the label so that its character's middle stands on the mark's place, with the fonts as
/// large as they are on a screen of that resolution.
[[nodiscard]] FieldRecord markRecord(const MarkPlace& mark, const Typefaces& faces,
                                     int twipsPerPixel);

/// Places the label so that the text's base line lies on the printed rule or just above it.
[[nodiscard]] FieldRecord textRecord(const TextPlace& text, const Typefaces& faces,
                                     int twipsPerPixel);

/// The number that layout files give a colour.
[[nodiscard]] constexpr int colourNumber(Ink ink) {
    return ink == Ink::Red ? 2 : ink == Ink::Blue ? 3 : 1;
}
/// The character of the mark font.
[[nodiscard]] constexpr int symbolNumber(MarkKind kind) {
    return kind == MarkKind::Check ? 252 : 161;
}

} // namespace card
