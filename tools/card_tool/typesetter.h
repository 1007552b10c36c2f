// Sets the whole card.
#pragma once

#include "card_tool/description.h"
#include "card_tool/sheet.h"
#include "card_tool/typeface.h"

namespace card_tool {

/// Sets the described card: a place for every word, rule, box and field. Throws Failure with the
/// line of the description that doesn't fit, or whose field has a name that is taken already.
[[nodiscard]] Sheet typeset(const Description& description, const Typefaces& faces);

} // namespace card_tool
