// What menu items do, in the words that explain a row on which the player rests.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zev {

/// The table as a list keeps it: first the separator, a single character, then entries made of the
/// beginning of a caption, the separator and a text.
[[nodiscard]] std::vector<std::string> menuDescriptions();

/// The text of the first entry with whose beginning the caption begins; empty if there is none, or
/// if the table doesn't begin with a separator.
[[nodiscard]] std::string descriptionIn(std::span<const std::string> table,
                                        std::string_view caption);

} // namespace zev
