// What a person calls each field, for screen readers and menus.
#pragma once

#include <filesystem>
#include <string>

#include "card_tool/typesetter.h"

namespace card_tool {

/// Reads the names, "id: section, field" on each line, and writes them by field number: "mark 12
/// section, field". Throws Failure with the line where one is malformed, and for a field without a
/// name, a name without a field, and a name that two fields have.
[[nodiscard]] std::string spokenNames(const std::filesystem::path& path, const Sheet& sheet);

} // namespace card_tool
