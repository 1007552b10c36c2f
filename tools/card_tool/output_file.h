#pragma once

#include <filesystem>
#include <string_view>

namespace card {

/// Writes a whole file. Throws Failure unless every byte arrived.
void writeBytes(const std::filesystem::path& path, std::string_view bytes);

} // namespace card
