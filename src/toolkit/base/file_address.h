// Files that another program names by an address.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace toolkit {

/// The file of this machine that a "file:" address means, percent signs resolved, whether it is
/// there or not. On Windows an address may name another machine's. None for any other text.
[[nodiscard]] std::optional<std::filesystem::path> fileOfAddress(std::string_view address);

} // namespace toolkit
