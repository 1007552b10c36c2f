// What a person calls a field: its section of the card, a comma, the field in it, in full words.
#pragma once

#include <string>

namespace zev {

/// By field number. Fields that a player has added are told by kind and number.
[[nodiscard]] std::string nameOfMark(int number);
[[nodiscard]] std::string nameOfText(int number);

} // namespace zev
