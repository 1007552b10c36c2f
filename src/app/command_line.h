// The card that a command line names.
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// The text behind the last "\" or "/", cut at its first "."; quotes aren't treated.
[[nodiscard]] std::string cardNameOf(std::string_view commandLine);

} // namespace zev
