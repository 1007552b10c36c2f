// A field of a card as members of a JSON object, without its braces.
#pragma once

#include <string>

#include "cards/filled_fields.h"

namespace zev {

/// "name", "kind" ("mark" or "text") and "number".
[[nodiscard]] std::string fieldIdJson(const CardField& field);
/// "value", true or false for a mark, a string for a text; "highlighted" where it is.
[[nodiscard]] std::string fieldValueJson(const CardField& field);

} // namespace zev
