// What a card says, field by field, as one reads it.
#pragma once

#include <string>
#include <vector>

#include "card/card_file.h"

namespace zev {

struct CardField {
    enum class Kind { Mark, Text } kind = Kind::Mark;
    int number = 0;
    std::string name; ///< its section, a comma, the field in it
    /// In UTF-8 with the signs of the suits, without blanks around; "yes" for a mark, empty for a
    /// field with nothing in it.
    std::string value;
    bool isHighlighted = false;

    [[nodiscard]] bool isFilledIn() const { return !value.empty() || isHighlighted; }
};

/// All fields of a card section by section, the marks of each before its texts.
[[nodiscard]] std::vector<CardField> fieldsOf(const CardDocument& card);

/// Those with something in them.
[[nodiscard]] std::vector<CardField> filledFieldsOf(const CardDocument& card);

struct FieldDifference {
    CardField left;
    CardField right;
};

/// The fields that don't read the same. A field that only one card has is empty in the other; bold,
/// italics and alignment don't count, as they are looks.
[[nodiscard]] std::vector<FieldDifference> differencesOf(CardDocument left, CardDocument right);

} // namespace zev
